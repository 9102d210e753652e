// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "textlayout.h"

#include <QVector>

namespace devhost {

namespace {

bool isWide(uint c)
{
    return (c >= 0x1100 && c <= 0x115f) || (c >= 0x2e80 && c <= 0xa4cf) || (c >= 0xac00 && c <= 0xd7a3) ||
           (c >= 0xf900 && c <= 0xfaff) || (c >= 0xfe30 && c <= 0xfe6f) || (c >= 0xff00 && c <= 0xff60) ||
           (c >= 0xffe0 && c <= 0xffe6) || (c >= 0x1f300 && c <= 0x1faff) || (c >= 0x20000 && c <= 0x3fffd);
}

int widthOf(uint c)
{
    const QChar::Category category = QChar::category(c);
    if (category == QChar::Mark_NonSpacing || category == QChar::Other_Format) {
        return 0;
    }
    return isWide(c) ? 2 : 1;
}

} // namespace

int terminalWidth(const QString &text)
{
    int width = 0;
    const QVector<uint> characters = text.toUcs4();
    for (const uint c : characters) {
        width += widthOf(c);
    }
    return width;
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines;
    const QStringList paragraphs = text.split(QLatin1Char('\n'));
    for (const QString &paragraph : paragraphs) {
        QString line;
        int width = 0;
        const QVector<uint> characters = paragraph.toUcs4();
        for (const uint c : characters) {
            if (width + widthOf(c) > columns) {
                lines.append(line);
                line.clear();
                width = 0;
            }
            line.append(QString::fromUcs4(&c, 1));
            width += widthOf(c);
        }
        lines.append(line);
    }
    return lines;
}

} // namespace devhost
