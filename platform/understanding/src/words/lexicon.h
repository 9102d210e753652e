// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/wordclass.h"

#include <QHash>
#include <QString>

#include <bitset>
#include <vector>

namespace understanding {

/// The class called @p name in the rule files, WordClass::Count for none.
WordClass wordClassNamed(const QString &name);

/// A word found in a text.
struct WordMatch
{
    int length = 0;
    WordClasses classes;
};

/// The words of the rule file words.txt, indexed by their first two characters, longest first.
class Lexicon final
{
public:
    static const Lexicon &instance();

    /// The longest word at @p position; length 0 for none.
    WordMatch longestAt(const QString &text, int position) const;

    /// The classes that @p word has anywhere, not only at the end of a clause; none if it is not listed.
    WordClasses classesOf(const QString &word) const { return m_words.value(word); }

private:
    Lexicon();
    void addPattern(const QString &pattern, WordClass wordClass);
    void addWord(const QString &word, WordClass wordClass);

    struct Entry
    {
        QString word;
        int length = 0;
        QChar second; ///< of the word's characters, a null character if there is none
        QChar third;
        WordClasses classes;
        WordClasses classesAtClauseEnd; ///< those marked with "$"
    };
    static std::size_t pairPlace(QChar first, QChar second);
    /// @p entry with the classes that it has at @p position; length 0 if it does not stand there.
    static WordMatch matchOf(const Entry &entry, const QString &text, int position);

    QHash<QString, WordClasses> m_words;
    QHash<QString, WordClasses> m_wordsAtClauseEnd;
    std::vector<std::vector<Entry>> m_byFirst;
    std::vector<quint16> m_bucket; ///< by character; 0 is the empty bucket
    /// Whether a word may begin with two characters, by pairPlace(): they seldom do, and searching the bucket
    /// takes longer.
    std::bitset<0x10000> m_pairs;
};

} // namespace understanding
