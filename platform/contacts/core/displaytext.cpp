// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/displaytext.h"

#include <QCoreApplication>

namespace {

constexpr int MaxLength = 100;

bool isJoiner(QChar c)
{
    return c.unicode() == 0x200c || c.unicode() == 0x200d;
}

} // namespace

QString cleanDisplayText(const QString &text)
{
    QString clean;
    clean.reserve(qMin(text.size(), MaxLength));
    for (int i = 0; i < text.size() && clean.size() < MaxLength; ++i) {
        const QChar c = text.at(i);
        if (c.isSpace()) {
            clean.append(QLatin1Char(' '));
        } else if (c.isHighSurrogate()) {
            if (i + 1 < text.size() && text.at(i + 1).isLowSurrogate() && clean.size() + 2 <= MaxLength) {
                const QChar low = text.at(++i);
                if (QChar::category(QChar::surrogateToUcs4(c, low)) != QChar::Other_Format) {
                    clean.append(c).append(low);
                }
            }
        } else if (!c.isLowSurrogate() && c.category() != QChar::Other_Control &&
                   (c.category() != QChar::Other_Format || isJoiner(c))) {
            clean.append(c);
        }
    }
    return clean.simplified();
}

QString listOfNames(const QStringList &names)
{
    return names.join(QCoreApplication::translate("DisplayText", ", ", "between names"));
}
