// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/framednames.h"

#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

constexpr int LongestFramed = 3;

/// The tokens between a word that calls and what is done.
class Frame final
{
public:
    Frame(const QString &text, const Tokens &tokens, std::size_t lead)
        : m_text(text)
        , m_tokens(tokens)
        , m_begin(lead + 1)
        , m_end(lead + 1)
    {
        while (m_end < m_tokens.size() && length() <= LongestFramed && !endsAt(m_end)) {
            ++m_end;
        }
    }

    std::size_t begin() const { return m_begin; }
    std::size_t end() const { return m_end; }

    int length() const
    {
        return m_end > m_begin ? m_tokens[m_end - 1].end() - m_tokens[m_begin].position : 0;
    }

    QString said() const
    {
        const int start = m_begin < m_tokens.size() ? m_tokens[m_begin].position : m_text.size();
        return m_text.mid(start, m_end > m_begin ? m_tokens[m_end - 1].end() - start : 0);
    }

    bool holdsName() const
    {
        if (length() < 2 || length() > LongestFramed) {
            return false;
        }
        const QString name = said();
        if (!isClosed() || holdsOtherThings()) {
            return false;
        }
        if (name.size() == 2 && name.at(0) == name.at(1)) { // 可可
            return true;
        }
        if (!holdsWord()) {
            return endsLikeVerb(name) && isPersonsName(name) && name.size() == LongestFramed;
        }
        return m_end == m_begin + 1 ? isWordForName(m_tokens[m_begin], name) : isCutInPieces();
    }

private:
    QChar characterOf(std::size_t at) const { return m_text.at(m_tokens[at].position); }

    bool isOpeningVerb(std::size_t at) const
    {
        constexpr WordClasses opening =
            WordClass::WeakOpen | WordClass::StrongOpen | WordClass::GoverningOpen | WordClass::WeakJoin;
        constexpr WordClasses opened = WordClass::Conference | WordClass::Measure | WordClass::Video;
        return m_tokens[at].isAny(opening) && at + 1 < m_tokens.size() && m_tokens[at + 1].isAny(opened);
    }

    /// 和 in 于和伟, 安和 and 和珅 separates nobody: one character is no name.
    bool separates(std::size_t at) const
    {
        static const CharacterSet inNames(u"和与同约");
        if (m_tokens[at].length > 1 || !inNames.contains(characterOf(at))) {
            return true;
        }
        const int before = m_tokens[at].position - m_tokens[m_begin].position;
        const std::size_t next = at + 1;
        if (next == m_tokens.size() || endsBeforeOther(next)) { // 余鱼同, but 跟张伟约明天的会
            return before == 0 || characterOf(at) == QChar(u'约');
        }
        if (before > 1) {
            return true;
        }
        const bool single = m_tokens[next].length == 1 && m_tokens[next].kind == Token::Kind::Other;
        return !single || (next + 1 < m_tokens.size() && !endsBeforeOther(next + 1));
    }

    /// 安逸 in 跟安逸三点开会: a filler behind 跟 that begins like a name and has a time behind it.
    bool isFillerForName(std::size_t at) const
    {
        static const CharacterSet joins(u"和跟与");
        const Token &token = m_tokens[at];
        return at == m_begin && token.is(WordClass::Filler) && token.length == 2 && at > 0 &&
               m_tokens[at - 1].length == 1 && joins.contains(characterOf(at - 1)) &&
               at + 1 < m_tokens.size() && m_tokens[at + 1].kind == Token::Kind::Time &&
               firstOf(m_text, token.position, {u"安逸", u"于是", u"安静", u"明明"}) > 0;
    }

    /// True if what is done, or when, begins at @p at.
    bool endsBeforeOther(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        if (isFillerForName(at)) {
            return false;
        }
        static const CharacterSet adverbs(u"也都就先再还到");
        const bool adverb = token.kind == Token::Kind::Word && token.length == 1 &&
                            adverbs.contains(characterOf(at)) &&
                            token.position - m_tokens[m_begin].position > 1;
        constexpr WordClasses done = WordClass::Arrive | WordClass::ComeMeet | WordClass::InviteNoun |
                                     WordClass::Punctuation | WordClass::Video;
        constexpr WordClasses longer = WordClass::Conference | WordClass::Join | WordClass::NameTail |
                                       WordClass::Filler | WordClass::Pull | WordClass::Separator |
                                       WordClass::Buddy;
        return adverb || token.kind == Token::Kind::Time || token.kind == Token::Kind::Duration ||
               token.kind == Token::Kind::Space || token.kind == Token::Kind::Name || token.isAny(done) ||
               (token.length > 1 && token.isAny(longer)) ||
               (token.is(WordClass::Title) && at > m_begin &&
                m_tokens[at - 1].is(WordClass::Festival)) || // 段国庆老师
               isOpeningVerb(at) ||
               (token.is(WordClass::Separator) && !m_text.at(token.position).isLetter());
    }

    bool endsAt(std::size_t at) const
    {
        return endsBeforeOther(at) || (m_tokens[at].is(WordClass::Separator) && separates(at));
    }

    bool isClosed() const
    {
        static const QChar middleDot(u'·'); // 约贝拉·哈迪德
        return (m_end == m_tokens.size() || endsAt(m_end)) &&
               charAt(m_text, said().size() + m_tokens[m_begin].position) != middleDot;
    }

    /// True if a piece belongs to no name: 了 in 叫完了开会, 个 in 约个时间.
    bool holdsOtherThings() const
    {
        static const CharacterSet never(
            u"了的着得吧吗呢啊呀嘛哦哈呗噢啦咯没俩仨也都就还再又个这那谁他她它您你");
        static const CharacterSet neverFirst(u"不没别在要想到过去来一有是");
        const QString name = said();
        const bool strange = std::any_of(name.cbegin(), name.cend(), [](QChar character) {
            return never.contains(character) || !character.isLetter() || character.unicode() < 0x250;
        });
        if (strange || (neverFirst.contains(name.at(0)) && givenNameWithOne(name, 0) != name.size())) {
            return true;
        }
        if (isSpeaker(name.at(0)) && !isKin(name.at(1))) { // 邀请我收到了
            return true;
        }
        constexpr WordClasses ordinary =
            WordClass::Nobody | WordClass::Mine | WordClass::Measure | WordClass::Title | WordClass::Query |
            WordClass::Question | WordClass::Schedule | WordClass::Address | WordClass::AccountLabel |
            WordClass::IdLabel | WordClass::NameLabel | WordClass::Negation | WordClass::UnclearDay;
        return std::any_of(place(m_begin), place(m_end), [&](const Token &token) {
            return token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin || token.inTopic ||
                   (token.length > 1 && token.isAny(ordinary));
        });
    }

    bool holdsWord() const
    {
        return std::any_of(place(m_begin), place(m_end),
                           [](const Token &token) { return token.kind == Token::Kind::Word; });
    }

    /// 拉 in 跟潘多拉开会 opens nothing.
    static bool endsLikeVerb(const QString &name)
    {
        static const CharacterSet verbs(u"拉同大可下并");
        return verbs.contains(name.at(name.size() - 1));
    }

    /// 约国庆开会 tells when.
    bool isArranging() const
    {
        return m_tokens[m_begin - 1].isAny(WordClass::StrongOpen | WordClass::WeakOpen);
    }

    /// 国庆, 和平: behind 和 they can only be names.
    bool isWordForName(const Token &token, const QString &text) const
    {
        return token.is(WordClass::Plain) || isFillerForName(m_begin) ||
               (token.is(WordClass::Festival) && !isArranging()) ||
               (token.is(WordClass::Framed) && isPersonsName(text));
    }

    /// 让 and 娜: one character is left over, or all of it together looks like a name.
    bool isCutInPieces() const
    {
        const bool leftOver = std::any_of(place(m_begin), place(m_end), [](const Token &token) {
            return token.kind == Token::Kind::Other && token.length == 1;
        });
        const Token &first = m_tokens[m_begin];
        const Token &last = m_tokens[m_end - 1];
        constexpr WordClasses verbs = WordClass::Trigger | WordClass::WeakOpen | WordClass::Join |
                                      WordClass::WeakJoin | WordClass::Close;
        const bool verbLast =
            last.isAny(verbs) && last.length == 1 && isPersonsName(said().left(2)) && !endsLikeVerb(said());
        // 约瑟夫 behind 和, which is no verb.
        const bool foreign = m_tokens[m_begin - 1].is(WordClass::Separator) && first.is(WordClass::Trigger) &&
                             first.length == 1 && !isPersonsName(said().mid(1));
        return leftOver || foreign ? !verbLast || said().size() < LongestFramed
                                   : endsLikeVerb(said()) && isPersonsName(said());
    }

    Tokens::const_iterator place(std::size_t at) const
    {
        return m_tokens.cbegin() + static_cast<std::ptrdiff_t>(at);
    }

    const QString &m_text;
    const Tokens &m_tokens;
    const std::size_t m_begin;
    std::size_t m_end;
};

} // namespace

void joinFramedNames(const QString &raw, const QString &text, Tokens &tokens)
{
    Tokens joined;
    joined.reserve(tokens.size());
    bool changed = false;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        joined.push_back(tokens[at]);
        static const CharacterSet weak(u"给对向安组预请将");
        const Token &lead = tokens[at];
        constexpr WordClasses leads = WordClass::Trigger | WordClass::NameLabel | WordClass::Separator;
        const bool dotted = charAt(text, lead.position - 1) == QChar(u'·'); // 尤里·加加林
        if (!lead.isAny(leads) || lead.inTopic || dotted || weak.contains(text.at(lead.position))) {
            continue;
        }
        const Frame frame(text, tokens, at);
        if (!frame.holdsName()) {
            continue;
        }
        Token name;
        name.kind = Token::Kind::Name;
        name.position = tokens[frame.begin()].position;
        name.length = frame.said().size();
        name.name = raw.mid(name.position, name.length);
        joined.push_back(name);
        at = frame.end() - 1;
        changed = true;
    }
    if (changed) {
        tokens = std::move(joined);
    }
}

} // namespace understanding
