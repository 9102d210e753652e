// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/contactindex.h"

#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int ShortestName = 2;

bool isLatin(QChar character)
{
    return character.unicode() < 0x80 &&
           (character.isLetterOrNumber() || QStringLiteral("@._-").contains(character));
}

bool splitsLatinWord(const QString &text, int position)
{
    return position > 0 && position < text.size() && isLatin(text.at(position - 1)) &&
           isLatin(text.at(position));
}

} // namespace

ContactIndex::ContactIndex(const QStringList &names)
{
    for (const QString &name : names) {
        const QString trimmed = name.trimmed();
        if (trimmed.size() >= ShortestName) {
            m_byFirst[trimmed.at(0).toLower()].append(trimmed);
        }
    }
    for (QVector<QString> &sameFirst : m_byFirst) {
        std::stable_sort(sameFirst.begin(), sameFirst.end(),
                         [](const QString &a, const QString &b) { return a.size() > b.size(); });
    }
}

QString ContactIndex::longestAt(const QString &text, int position) const
{
    if (m_byFirst.isEmpty()) {
        return {};
    }
    const auto sameFirst = m_byFirst.constFind(text.at(position).toLower());
    if (sameFirst == m_byFirst.cend()) {
        return {};
    }
    for (const QString &name : *sameFirst) {
        if (text.midRef(position, name.size()).compare(name, Qt::CaseInsensitive) == 0 &&
            !splitsLatinWord(text, position) && !splitsLatinWord(text, position + name.size())) {
            return name;
        }
    }
    return {};
}

} // namespace understanding
