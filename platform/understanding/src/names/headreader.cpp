// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/headreader.h"

#include "names/namelook.h"
#include "text/rulefile.h"

#include <QHash>

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestRole = 4;
constexpr int LongestHead = 5; // 欧阳工程师

/// The words of roles.txt; true for those behind which any two characters are a name.
const QHash<QString, bool> &roles()
{
    static const QHash<QString, bool> loaded = [] {
        QHash<QString, bool> all;
        const QStringList lines = ruleLines(QStringLiteral("roles.txt"));
        for (const QString &line : lines) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                const bool kin = word.startsWith(QLatin1Char('*'));
                all.insert(kin ? word.mid(1) : word, kin);
            }
        }
        return all;
    }();
    return loaded;
}

bool endsWithRole(const QString &text)
{
    for (int length = qMin(LongestRole, text.size()); length > 0; --length) {
        if (roles().contains(text.right(length))) {
            return true;
        }
    }
    return false;
}

} // namespace

bool isModifier(const QString &text)
{
    return text.endsWith(QChar(u'的')) || (endsWithRole(text) && !isSurnameWithTitle(text));
}

int modifierLength(const QString &text)
{
    const int of = text.lastIndexOf(QChar(u'的'));
    const int start = of >= 0 && of + 2 < text.size() ? of + 1 : 0;
    const QString rest = text.mid(start);
    for (int length = qMin(LongestHead, rest.size() - 1); length >= 2; --length) {
        const int cut = rest.size() - length;
        if (isModifier(rest.left(cut)) && isPersonsName(rest.mid(cut))) {
            return start + cut;
        }
    }
    // 闺女秀英, 外孙女朵朵: the given name alone.
    const int cut = rest.size() - 2;
    for (int length = qMin(LongestRole, cut); length > 0; --length) {
        if (roles().value(rest.mid(cut - length, length), false) && !roles().contains(rest.mid(cut))) {
            return start + cut;
        }
    }
    return start;
}

} // namespace understanding
