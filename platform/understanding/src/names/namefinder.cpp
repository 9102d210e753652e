// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namefinder.h"

#include "names/namelook.h"
#include "text/scan.h"
#include "words/lexicon.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestName = 12;

class NameFinder final
{
public:
    NameFinder(const QString &raw, const QString &text, const Tokens &tokens)
        : m_raw(raw)
        , m_text(text)
        , m_tokens(tokens)
    {
    }

    std::vector<FoundName> run()
    {
        for (std::size_t at = 0; at < m_tokens.size(); ++at) {
            at = step(at);
        }
        std::stable_sort(m_names.begin(), m_names.end(),
                         [](const FoundName &a, const FoundName &b) { return a.position < b.position; });
        return std::move(m_names);
    }

    std::vector<FoundName> runFromStart()
    {
        takeNames(0, true);
        return std::move(m_names);
    }

private:
    /// Looks at one token; returns the last one that is done with.
    std::size_t step(std::size_t at)
    {
        const Token &token = m_tokens[at];
        if (token.inTopic) {
            return at;
        }
        constexpr WordClasses leads = WordClass::Trigger | WordClass::NameLabel | WordClass::Separator;
        if (token.isAny(leads)) {
            if (token.is(WordClass::Separator)) {
                takeLeft(at);
            }
            const bool clauseSign = token.is(WordClass::Separator) && !token.is(WordClass::Trigger);
            return takeZone(at, token.is(WordClass::WeakTrigger) || clauseSign);
        }
        if (token.kind == Token::Kind::Name) {
            addKnown(token, false);
        } else if (token.kind == Token::Kind::Other || isSmallWordInName(at)) {
            return takeSubject(at);
        }
        return at;
    }

    void addKnown(const Token &token, bool called)
    {
        m_names.push_back({token.position, m_raw.mid(token.position, token.length), token.name, called});
    }

    void addUnknown(int position, const QString &normal, bool called)
    {
        int at = position;
        const QStringList names = splitNames(normal);
        for (const QString &name : names) {
            const QString said = m_raw.mid(at, name.size());
            m_names.push_back({at, said, said, called});
            at += name.size();
        }
    }

    /// The name between @p start and @p end, without what surrounds it.
    void addChunk(int start, int end, bool mustLookLikeName, bool called)
    {
        const QString chunk = m_text.mid(start, end - start);
        QString name = withoutParticles(chunk);
        // 研发部的赵云 is 赵云.
        const int of = name.lastIndexOf(QChar(u'的'));
        if (of >= 0 && of + 2 < name.size()) {
            name = name.mid(of + 1);
        }
        if (name.size() < 2 || name.size() > LongestName || (mustLookLikeName && !looksLikeName(name))) {
            return;
        }
        if (Lexicon::instance().classesOf(name).has(WordClass::Nobody)) {
            return;
        }
        const int offset = chunk.indexOf(name);
        addUnknown(start + offset, name, called);
    }

    /// 赵云和...: who stands left of 和.
    void takeLeft(std::size_t at)
    {
        if (at == 0 || m_tokens[at - 1].kind != Token::Kind::Other || m_tokens[at - 1].inTopic) {
            return;
        }
        const Token &left = m_tokens[at - 1];
        const bool taken = std::any_of(m_names.cbegin(), m_names.cend(),
                                       [&](const FoundName &name) { return name.position >= left.position; });
        if (!taken && left.end() == m_tokens[at].position) {
            addChunk(left.position, left.end(), true, true);
        }
    }

    bool standsApartBefore(std::size_t at) const
    {
        return at == 0 || m_tokens[at - 1].kind == Token::Kind::Space ||
               m_tokens[at - 1].isAny(WordClass::Punctuation | WordClass::Separator);
    }

    bool standsApartBehind(std::size_t at) const
    {
        return at + 1 == m_tokens.size() || m_tokens[at + 1].kind == Token::Kind::Space ||
               m_tokens[at + 1].isAny(WordClass::Punctuation | WordClass::Separator);
    }

    bool hasConference() const
    {
        return std::any_of(m_tokens.cbegin(), m_tokens.cend(), [](const Token &token) {
            return token.is(WordClass::Conference) && !token.inTopic;
        });
    }

    /// The last token of the run of characters that begins at @p at: 关羽 is a word and a character.
    std::size_t lastOfRun(std::size_t at, std::size_t limit) const
    {
        while (at + 1 < m_tokens.size() && at < limit && !m_tokens[at + 1].inTopic &&
               (m_tokens[at + 1].kind == Token::Kind::Other || isSmallWordInName(at + 1))) {
            ++at;
        }
        return at;
    }

    /// Somebody whom no word calls: 赵云参加, 赵云也来, 赵云明天三点开会, 发起会议 赵云. Returns the last
    /// token taken.
    std::size_t takeSubject(std::size_t at)
    {
        const Token &token = m_tokens[at];
        std::size_t last = token.kind == Token::Kind::Other ? at : lastOfRun(at, at + LongestName);
        if (last > at && m_tokens[last].kind != Token::Kind::Other) {
            --last; // 关羽也: the word behind is none of the name's
        }
        if (m_tokens[last].kind != Token::Kind::Other) {
            return at;
        }
        std::size_t next = last + 1;
        while (next < m_tokens.size() && m_tokens[next].is(WordClass::Filler) && m_tokens[next].length == 1) {
            ++next;
        }
        const int end = m_tokens[last].end();
        const bool joins =
            next < m_tokens.size() && m_tokens[next].isAny(WordClass::Join | WordClass::Arrive);
        const bool isLast = last + 1 == m_tokens.size();
        const bool afterOpening =
            isLast && at > 0 &&
            (m_tokens[at - 1].is(WordClass::Conference) || m_tokens[at - 1].kind == Token::Kind::Time);
        const bool beforeTime = at == 0 && !isLast && m_tokens[last + 1].kind == Token::Kind::Time;
        const bool beforeOpening = at == 0 && !isLast &&
                                   m_tokens[last + 1].isAny(WordClass::WeakOpen | WordClass::StrongOpen) &&
                                   splitNames(m_text.mid(token.position, end - token.position)).size() > 1;
        const bool apart = at > 0 && standsApartBefore(at) && standsApartBehind(last);
        const std::size_t before = m_names.size();
        if (joins) {
            addChunk(token.position, end, true, m_tokens[next].is(WordClass::Arrive));
        } else if (beforeOpening) {
            addChunk(token.position, end, false, false);
        } else if ((afterOpening || beforeTime || apart) && hasConference()) {
            addChunk(token.position, end, true, false);
        }
        return m_names.size() > before ? last : at;
    }

    bool isSmallWordInName(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        constexpr WordClasses hard = WordClass::Separator | WordClass::WeakOpen | WordClass::Conference |
                                     WordClass::Punctuation | WordClass::Nobody;
        const bool measure = m_text.at(token.position) == QChar(u'个'); // in no name, and in 约个时间
        return token.kind == Token::Kind::Word && token.length == 1 && !token.isAny(hard) && !measure;
    }

    std::size_t skipToNames(std::size_t lead) const
    {
        std::size_t at = lead + 1;
        constexpr WordClasses between = WordClass::Measure;
        const bool label = m_tokens[lead].isAny(WordClass::NameLabel);
        while (at < m_tokens.size()) {
            const Token &token = m_tokens[at];
            const bool linked =
                label && (token.isAny(WordClass::LabelLink | WordClass::Have | WordClass::NameLabel) ||
                          token.is(WordClass::Punctuation));
            if (!token.isAny(between) && token.kind != Token::Kind::Space && !linked) {
                break;
            }
            ++at;
        }
        return at;
    }

    /// The names behind the word at @p lead; returns the last token that belongs to them.
    std::size_t takeZone(std::size_t lead, bool mustLookLikeName)
    {
        const std::size_t before = m_names.size();
        std::size_t end = takeNames(skipToNames(lead), mustLookLikeName);
        // What follows tells that it is somebody, however unlikely the name: 把加藤拉进来.
        constexpr WordClasses takesPeople =
            WordClass::Arrive | WordClass::Buddy | WordClass::BuddyNoun | WordClass::InviteNoun;
        if (mustLookLikeName && m_names.size() == before && end < m_tokens.size() &&
            m_tokens[end].isAny(takesPeople)) {
            end = takeNames(skipToNames(lead), false);
        }
        // Where nobody stood, nothing is used up: 约 in 约个会.
        return m_names.size() > before ? end - 1 : lead;
    }

    /// Takes names from @p at on; returns the first token that is none of theirs.
    std::size_t takeNames(std::size_t at, bool mustLookLikeName)
    {
        bool afterComma = false;
        while (at < m_tokens.size() && !m_tokens[at].inTopic) {
            const Token &token = m_tokens[at];
            if (token.kind == Token::Kind::Name) {
                at = takeKnownName(at);
            } else if (token.kind == Token::Kind::Latin) {
                addUnknown(token.position, m_text.mid(token.position, token.length), true);
            } else if (token.kind == Token::Kind::Other || isSmallWordInName(at)) {
                std::size_t last = lastOfRun(at, m_tokens.size());
                if (last + 1 < m_tokens.size() && m_tokens[last + 1].is(WordClass::Title)) { // 张主任
                    ++last;
                }
                addChunk(token.position, m_tokens[last].end(), mustLookLikeName || afterComma, true);
                at = last;
            } else if (token.is(WordClass::Punctuation) && m_text.at(token.position) == QLatin1Char(',')) {
                afterComma = true;
            } else if (!token.isAny(WordClass::Separator | WordClass::Nobody) &&
                       token.kind != Token::Kind::Space) {
                break;
            }
            ++at;
        }
        return at;
    }

    /// A known name; with one character more it is another, unknown one (张伟 and 张伟杰).
    std::size_t takeKnownName(std::size_t at)
    {
        const Token &token = m_tokens[at];
        if (at + 1 < m_tokens.size()) {
            const Token &next = m_tokens[at + 1];
            const QString rest = m_text.mid(next.position, next.length);
            const bool oneMore = next.kind == Token::Kind::Other && next.length == 1 && token.length < 3 &&
                                 token.name.at(0).unicode() >= 0x80 && !isParticle(rest.at(0)) &&
                                 !Lexicon::instance().classesOf(rest).has(WordClass::Title);
            if (oneMore) {
                addUnknown(token.position, m_text.mid(token.position, token.length + 1), true);
                return at + 1;
            }
        }
        addKnown(token, true);
        return skipTitle(at);
    }

    static bool isParticle(QChar character)
    {
        return withoutParticles(QString(character) + character).isEmpty();
    }

    std::size_t skipTitle(std::size_t at) const
    {
        return at + 1 < m_tokens.size() && m_tokens[at + 1].is(WordClass::Title) ? at + 1 : at;
    }

    const QString &m_raw;
    const QString &m_text;
    const Tokens &m_tokens;
    std::vector<FoundName> m_names;
};

} // namespace

std::vector<FoundName> findNames(const QString &raw, const QString &text, const Tokens &tokens)
{
    return NameFinder(raw, text, tokens).run();
}

std::vector<FoundName> findAnsweredNames(const QString &raw, const QString &text, const Tokens &tokens)
{
    return NameFinder(raw, text, tokens).runFromStart();
}

} // namespace understanding
