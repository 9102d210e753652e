// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/lexicon.h"

#include "text/characterset.h"
#include "text/rulefile.h"
#include "text/scan.h"

#include <QSet>

#include <algorithm>

namespace understanding {

namespace {

constexpr struct
{
    const char *name;
    WordClass wordClass;
} ClassNames[] = {
    {"conference", WordClass::Conference},
    {"video", WordClass::Video},
    {"talk", WordClass::Talk},
    {"strong open", WordClass::StrongOpen},
    {"governing open", WordClass::GoverningOpen},
    {"weak open", WordClass::WeakOpen},
    {"measure", WordClass::Measure},
    {"open particle", WordClass::OpenParticle},
    {"join", WordClass::Join},
    {"weak join", WordClass::WeakJoin},
    {"mine", WordClass::Mine},
    {"ongoing", WordClass::Ongoing},
    {"back", WordClass::Back},
    {"close", WordClass::Close},
    {"close alone", WordClass::CloseAlone},
    {"invite", WordClass::Invite},
    {"invite noun", WordClass::InviteNoun},
    {"arrive", WordClass::Arrive},
    {"come meet", WordClass::ComeMeet},
    {"query", WordClass::Query},
    {"question", WordClass::Question},
    {"question particle", WordClass::QuestionParticle},
    {"asked time", WordClass::AskedTime},
    {"have", WordClass::Have},
    {"schedule", WordClass::Schedule},
    {"next", WordClass::Next},
    {"add", WordClass::Add},
    {"buddy", WordClass::Buddy},
    {"buddy noun", WordClass::BuddyNoun},
    {"account label", WordClass::AccountLabel},
    {"id label", WordClass::IdLabel},
    {"password label", WordClass::PasswordLabel},
    {"no password", WordClass::NoPassword},
    {"label link", WordClass::LabelLink},
    {"trigger", WordClass::Trigger},
    {"pull", WordClass::Pull},
    {"weak trigger", WordClass::WeakTrigger},
    {"name label", WordClass::NameLabel},
    {"separator", WordClass::Separator},
    {"nobody", WordClass::Nobody},
    {"name tail", WordClass::NameTail},
    {"title", WordClass::Title},
    {"filler", WordClass::Filler},
    {"punctuation", WordClass::Punctuation},
    {"plain", WordClass::Plain},
    {"negation", WordClass::Negation},
    {"recurring", WordClass::Recurring},
    {"either or", WordClass::EitherOr},
    {"zone", WordClass::Zone},
    {"lunar", WordClass::Lunar},
    {"festival", WordClass::Festival},
    {"unclear day", WordClass::UnclearDay},
    {"unclear soon", WordClass::UnclearSoon},
    {"how to", WordClass::HowTo},
    {"unsupported", WordClass::Unsupported},
    {"cancel", WordClass::Cancel},
    {"change", WordClass::Change},
    {"topic", WordClass::Topic},
    {"give up", WordClass::GiveUp},
    {"request", WordClass::Request},
    {"actor", WordClass::Actor},
    {"reported", WordClass::Reported},
    {"framed", WordClass::Framed},
    {"repair", WordClass::Repair},
    {"address", WordClass::Address},
};

bool isClauseEnd(const QString &text, int position)
{
    static const CharacterSet ends(u",.!?;、 。~吧呢啊呀了哦啦嘛哈吗么");
    return position >= text.size() || ends.contains(text.at(position));
}

} // namespace

WordClass wordClassNamed(const QString &name)
{
    for (const auto &row : ClassNames) {
        if (name == QLatin1String(row.name)) {
            return row.wordClass;
        }
    }
    return WordClass::Count;
}

const Lexicon &Lexicon::instance()
{
    static const Lexicon lexicon;
    return lexicon;
}

Lexicon::Lexicon() : m_byFirst(1), m_bucket(0x10000)
{
    WordClass current = WordClass::Count;
    const QStringList lines = ruleLines(QStringLiteral("words.txt"));
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']')) && line.size() > 3) {
            current = wordClassNamed(line.mid(1, line.size() - 2));
            if (current == WordClass::Count) {
                qFatal("words.txt: there is no section called %s.", qPrintable(line));
            }
            continue;
        }
        const QStringList patterns = line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (const QString &pattern : patterns) {
            addPattern(pattern, current);
        }
    }

    QSet<QString> all;
    for (auto word = m_words.cbegin(); word != m_words.cend(); ++word) {
        all.insert(word.key());
    }
    for (auto word = m_wordsAtClauseEnd.cbegin(); word != m_wordsAtClauseEnd.cend(); ++word) {
        all.insert(word.key());
    }
    for (const QString &word : qAsConst(all)) {
        quint16 &bucket = m_bucket[word.at(0).unicode()];
        if (bucket == 0) {
            bucket = static_cast<quint16>(m_byFirst.size());
            m_byFirst.emplace_back();
        }
        const QChar second = charAt(word, 1);
        m_pairs.set(pairPlace(word.at(0), second));
        m_byFirst[bucket].push_back({word, word.size(), second, charAt(word, 2), m_words.value(word),
                                     m_wordsAtClauseEnd.value(word)});
    }
    for (std::vector<Entry> &entries : m_byFirst) {
        std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
            return a.second != b.second ? a.second < b.second : a.length > b.length;
        });
    }
}

void Lexicon::addPattern(const QString &pattern, WordClass wordClass)
{
    const int open = pattern.indexOf(QLatin1Char('{'));
    const int close = pattern.indexOf(QLatin1Char('}'), open);
    if (open < 0 || close < 0) {
        addWord(pattern, wordClass);
        return;
    }
    const QStringList choices = pattern.mid(open + 1, close - open - 1).split(QLatin1Char('|'));
    for (const QString &choice : choices) {
        addPattern(pattern.left(open) + choice + pattern.mid(close + 1), wordClass);
    }
}

void Lexicon::addWord(const QString &word, WordClass wordClass)
{
    const bool onlyAtClauseEnd = word.size() > 1 && word.endsWith(QLatin1Char('$'));
    const QString bare = onlyAtClauseEnd ? word.chopped(1) : word;
    if (!bare.isEmpty()) {
        (onlyAtClauseEnd ? m_wordsAtClauseEnd : m_words)[bare].add(wordClass);
    }
}

std::size_t Lexicon::pairPlace(QChar first, QChar second)
{
    constexpr std::size_t spread = 31;
    return (first.unicode() * spread + second.unicode()) % 0x10000;
}

WordMatch Lexicon::matchOf(const Entry &entry, const QString &text, int position)
{
    if (!startsAt(text, position, entry.word)) {
        return {};
    }
    WordClasses classes = entry.classes;
    if (!entry.classesAtClauseEnd.isEmpty() && isClauseEnd(text, position + entry.length)) {
        classes.add(entry.classesAtClauseEnd);
    }
    return classes.isEmpty() ? WordMatch() : WordMatch{entry.length, classes};
}

WordMatch Lexicon::longestAt(const QString &text, int position) const
{
    const QChar first = charAt(text, position);
    const QChar second = charAt(text, position + 1);
    const std::vector<Entry> &entries = m_byFirst[m_bucket[first.unicode()]];
    if (m_pairs.test(pairPlace(first, second))) {
        const QChar third = charAt(text, position + 2);
        auto entry = std::lower_bound(entries.cbegin(), entries.cend(), second,
                                      [](const Entry &a, QChar character) { return a.second < character; });
        for (; entry != entries.cend() && entry->second == second; ++entry) {
            const bool mayStand = entry->length < 3 || entry->third == third;
            const WordMatch match = mayStand ? matchOf(*entry, text, position) : WordMatch();
            if (match.length > 0) {
                return match;
            }
        }
    }
    // The word of one character stands before all others.
    const bool alone = !entries.empty() && entries.front().length == 1;
    return alone ? matchOf(entries.front(), text, position) : WordMatch();
}

} // namespace understanding
