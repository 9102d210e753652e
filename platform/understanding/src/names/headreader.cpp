// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/headreader.h"

#include "names/namelook.h"
#include "text/rulefile.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestRole = 4;
constexpr int LongestHead = 5; // 欧阳工程师

const QSet<QString> &roles()
{
    static const QSet<QString> loaded = [] {
        QSet<QString> all;
        const QStringList lines = ruleLines(QStringLiteral("roles.txt"));
        for (const QString &line : lines) {
            const QStringList words = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                all.insert(word);
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
    return start;
}

} // namespace understanding
