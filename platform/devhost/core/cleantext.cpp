// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cleantext.h"

#include <QVector>

namespace devhost {

namespace {

constexpr int LongestText = 20000;

bool isJoiner(uint character)
{
    return character == 0x200c || character == 0x200d;
}

bool isShown(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format:
        return isJoiner(character);
    default:
        return true;
    }
}

} // namespace

QString cleanText(const QString &text)
{
    QString clean;
    clean.reserve(qMin(text.size(), LongestText));
    const QVector<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        if (clean.size() >= LongestText) {
            return clean + QChar(0x2026);
        }
        if (character == '\n') {
            clean.append(QLatin1Char('\n'));
        } else if (character == '\t') {
            clean.append(QLatin1Char(' '));
        } else if (isShown(character)) {
            clean.append(QString::fromUcs4(&character, 1));
        }
    }
    return clean;
}

} // namespace devhost
