// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/personwords.h"

#include "names/headreader.h"
#include "names/namelook.h"
#include "text/scan.h"

#include <algorithm>
#include <optional>

namespace understanding {

namespace {

bool isLead(const Token &token)
{
    constexpr WordClasses leads = WordClass::Trigger | WordClass::Separator | WordClass::NameLabel |
                                  WordClass::Invite | WordClass::Pull;
    return token.isAny(leads) && !token.inTopic;
}

/// True when a name begins at @p position, in @p token or with it.
bool nameBegins(const QString &text, const Tokens &tokens, std::size_t at, int position)
{
    const Token &token = tokens[at];
    if (token.kind == Token::Kind::Name || token.kind == Token::Kind::Latin) {
        return token.position == position;
    }
    int end = token.end();
    const bool smallWord = token.kind == Token::Kind::Word && token.length == 1 && at + 1 < tokens.size() &&
                           tokens[at + 1].kind == Token::Kind::Other && !isLead(token); // 关丽
    const bool titled = token.kind == Token::Kind::Other && end - position == 1 && at + 1 < tokens.size() &&
                        tokens[at + 1].is(WordClass::Title); // 蒲先生
    if (smallWord || titled) {
        end = tokens[at + 1].end();
    } else if (token.kind != Token::Kind::Other) {
        return false;
    }
    const std::size_t next = at + 1;
    constexpr WordClasses never = WordClass::Separator | WordClass::Trigger | WordClass::Punctuation |
                                  WordClass::Conference | WordClass::WeakOpen;
    if (!smallWord && end - position == 1 && next < tokens.size() && tokens[next].length == 1 &&
        tokens[next].position == end && !tokens[next].isAny(never)) { // 丁一
        ++end;
    }
    constexpr int longestName = 4;
    for (int length = 2; length <= qMin(longestName, end - position); ++length) {
        const QString name = text.mid(position, length);
        const bool doubled = length == 2 && name.at(0) == name.at(1); // 晓晓
        if ((doubled || isPersonsName(name)) && !isThing(name) && !isRelative(name)) {
            return true;
        }
    }
    return false;
}

/// Builds the tokens anew while it goes over them.
class PersonWords final
{
public:
    PersonWords(const QString &text, Tokens &tokens) : m_text(text), m_tokens(tokens) {}

    void run()
    {
        m_joined.reserve(m_tokens.size());
        while (m_at < m_tokens.size()) {
            if (!joinGroup() && !joinRelative() && !joinOwner() && !takeJob()) {
                m_joined.push_back(m_tokens[m_at++]);
            }
        }
        m_tokens = std::move(m_joined);
    }

private:
    /// Behind a word that calls, or at the start of what only names somebody: 视频组的史小平.
    bool isSomebodyExpected()
    {
        constexpr WordClasses leading = WordClass::Filler | WordClass::Punctuation | WordClass::LabelLink;
        if (!m_joined.empty() && isLead(m_joined.back())) {
            return true;
        }
        return onlyNames() && std::all_of(m_joined.cbegin(), m_joined.cend(),
                                          [](const Token &token) { return token.isAny(leading); });
    }

    bool isBehindLead() const { return !m_joined.empty() && isLead(m_joined.back()); }

    Token wordUntil(int end, WordClass wordClass) const
    {
        Token word;
        word.kind = Token::Kind::Word;
        word.position = m_tokens[m_at].position;
        word.length = end - word.position;
        word.classes = wordClass;
        return word;
    }

    /// 所有人, 同事们, 一帮人: all of those whom the words before describe.
    bool isCollective(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        if (m_text.at(token.end() - 1) == QChar(u'们')) {
            static const QString speakers = QStringLiteral("我咱俺你");
            return !speakers.contains(m_text.at(token.position));
        }
        if (!token.isAny(WordClass::Nobody | WordClass::NameTail) || token.length < 2) {
            return false;
        }
        static const QString beginnings = QStringLiteral("所全各大一那这每几");
        static const QString counts = QStringLiteral("两三四五俩仨"); // 产品的两个人
        const QChar first = m_text.at(token.position);
        const bool some = token.is(WordClass::NameTail) && counts.contains(first) &&
                          charAt(m_text, token.position - 1) == QChar(u'的');
        const bool all = some || beginnings.contains(first);
        const std::size_t next = at + 1;
        const bool somebodyNext =
            next < m_tokens.size() && nameBegins(m_text, m_tokens, next, m_tokens[next].position);
        return all && !somebodyNext;
    }

    /// 渠道部, 研发中心的, 三班: what the collective word at @p at may follow. 王师傅 in 王师傅他们 is called
    /// by name.
    bool describesGroup(std::size_t at) const
    {
        const int start = m_tokens[m_at].position;
        const int end = m_tokens[at].position;
        const QString said = m_text.mid(start, end - start);
        static const QString offices = QStringLiteral("部门组处科室班队院校厂店社局所站司心团系级届区");
        static const QString others = QStringLiteral("他她几");
        if (said.size() > 1 && offices.contains(said.at(said.size() - 1))) {
            return true;
        }
        return !others.contains(m_text.at(end)) && !m_tokens[at - 1].is(WordClass::Title) && isModifier(said);
    }

    /// The last token of the group that the collective word at @p at begins: 同学 in 全班同学.
    std::size_t lastOfGroup(std::size_t at) const
    {
        const std::size_t next = at + 1;
        const std::size_t behind = at + 2;
        const bool kind = next < m_tokens.size() && m_tokens[next].is(WordClass::Title) &&
                          m_tokens[next].length > 1 && m_tokens[next].position == m_tokens[at].end();
        const bool named =
            behind < m_tokens.size() && nameBegins(m_text, m_tokens, behind, m_tokens[behind].position);
        return kind && !named ? next : at;
    }

    /// 渠道部所有人, 研究生们
    bool joinGroup()
    {
        if (!isSomebodyExpected()) {
            return false;
        }
        constexpr int longestGroup = 10;
        constexpr WordClasses describing =
            WordClass::Plain | WordClass::Title | WordClass::Nobody | WordClass::Mine | WordClass::NameTail;
        for (std::size_t at = m_at; at < m_tokens.size(); ++at) {
            const Token &token = m_tokens[at];
            if (token.position - m_tokens[m_at].position > longestGroup) {
                return false;
            }
            const bool many = token.length == 1 && m_text.at(token.position) == QChar(u'们');
            const std::size_t last = lastOfGroup(at);
            if (isCollective(at) && (at == m_at ? last > at : many || describesGroup(at))) {
                m_joined.push_back(wordUntil(m_tokens[last].end(), WordClass::Nobody));
                m_at = last + 1;
                return true;
            }
            constexpr WordClasses never = WordClass::Separator | WordClass::Trigger | WordClass::Punctuation |
                                          WordClass::Conference | WordClass::Address; // 兄弟们
            const bool describes = token.kind == Token::Kind::Other || token.kind == Token::Kind::Latin ||
                                   token.kind == Token::Kind::Number || token.isAny(describing) ||
                                   (token.kind == Token::Kind::Word && token.length == 1); // 场 in 市场部
            if (!describes || token.isAny(never)) {
                return false;
            }
        }
        return false;
    }

    /// The length of the word for a relative at @p position: 弟 in 我弟陈麒.
    int relativeLength(int position) const
    {
        if (const int length =
                firstOf(m_text, position,
                        {u"侄女儿", u"女儿", u"同桌", u"同学", u"同窗", u"太太", u"爱人", u"爸爸", u"妈妈",
                         u"老爸", u"老妈", u"老大", u"老二", u"老三", u"老四", u"老幺", u"弟媳", u"弟妹"})) {
            return length;
        }
        constexpr int longest = 4;
        for (int length = longest; length > 1; --length) {
            if (isRelative(m_text.mid(position, length))) {
                return length;
            }
        }
        static const QString relatives = QStringLiteral("妈爸娘爹姐哥弟妹爷奶姨舅叔伯姑婶嫂");
        return position < m_text.size() && relatives.contains(m_text.at(position)) ? 1 : 0;
    }

    /// 我弟 in 跟我弟陈麒, 我家老二 in 叫上我家老二丁一
    bool joinRelative()
    {
        const Token &owner = m_tokens[m_at];
        static const QString owners = QStringLiteral("我咱俺你您他她");
        const bool listed = m_relativeEnd == owner.position; // 咱爸杨树林咱妈吴桂兰
        if (!owner.isAny(WordClass::Nobody | WordClass::Mine) ||
            !owners.contains(m_text.at(owner.position)) || !(listed || isSomebodyExpected())) {
            return false;
        }
        const int length = relativeLength(owner.end());
        const int end = owner.end() + length;
        std::size_t last = m_at + 1;
        while (last < m_tokens.size() && m_tokens[last].end() <= end) {
            ++last;
        }
        if (length == 0 || last == m_tokens.size() || !nameBegins(m_text, m_tokens, last, end)) {
            return false;
        }
        m_joined.push_back(wordUntil(end, WordClass::Address));
        m_joined.back().inModifier = true;
        m_relativeEnd = m_tokens[last].end();
        m_tokens[last].length = m_tokens[last].end() - end;
        m_tokens[last].position = end;
        m_at = last;
        return true;
    }

    /// True for what may stand in a description that ends with 的: 上次来, 做视频, but no name and no time.
    bool describes(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        constexpr WordClasses never = WordClass::Punctuation | WordClass::Negation | WordClass::Query |
                                      WordClass::Question | WordClass::Topic | WordClass::Arrive |
                                      WordClass::Request | WordClass::Filler;
        const bool isPointer =
            firstOf(m_text, token.position, {u"那个", u"这个", u"那位", u"这位"}) == token.length;
        const bool separates =
            token.isAny(WordClass::Separator | WordClass::Trigger) && !token.is(WordClass::WeakTrigger);
        return (token.kind == Token::Kind::Other || token.kind == Token::Kind::Word ||
                token.kind == Token::Kind::Latin) &&
               (isPointer || !token.isAny(never)) && !separates;
    }

    /// The place of the name that @p at begins with, or that follows what tells of somebody: 那位, 谈判代表.
    std::size_t nameFrom(std::size_t at, int &position) const
    {
        constexpr std::size_t farthest = 4;
        if (at < m_tokens.size() && nameBegins(m_text, m_tokens, at, position)) {
            return at;
        }
        const std::size_t end = qMin(m_tokens.size(), at + farthest);
        for (std::size_t next = at; next + 1 < end; ++next) {
            const Token &token = m_tokens[next];
            const bool kinds = token.kind == Token::Kind::Other || token.kind == Token::Kind::Word;
            if (!kinds || token.isAny(WordClass::Punctuation | WordClass::Separator | WordClass::Arrive)) {
                return m_tokens.size();
            }
            if (token.isAny(WordClass::Title | WordClass::Nobody) && token.length > 1 &&
                nameBegins(m_text, m_tokens, next + 1, token.end())) {
                position = token.end();
                return next + 1;
            }
        }
        return m_tokens.size();
    }

    /// 介绍 in 李姐介绍的牛经理: who is called is not who introduced them.
    bool introduces(std::size_t at) const
    {
        return charAt(m_text, m_tokens[at].end()) == QChar(u'的') &&
               firstOf(m_text, m_tokens[at].position,
                       {u"介绍", u"推荐", u"提到", u"请来", u"找来", u"带来"}) > 0;
    }

    /// 视频组的 in 约视频组的史小平, 上次来的那位 in 跟上次来的那位蒲先生: words of the rules describe
    /// somebody.
    bool joinOwner()
    {
        constexpr int longest = 14;
        constexpr WordClasses speakers = WordClass::Nobody | WordClass::Mine | WordClass::Measure;
        const Token &first = m_tokens[m_at];
        const bool person =
            first.kind == Token::Kind::Other && nameBegins(m_text, m_tokens, m_at, first.position);
        if (!isSomebodyExpected() || first.isAny(speakers) || !(meets() || onlyNames())) {
            return false;
        }
        bool word = false;
        bool introduced = false;
        for (std::size_t at = m_at; at < m_tokens.size() && (describes(at) || introduces(at)); ++at) {
            const Token &token = m_tokens[at];
            const int of = token.kind == Token::Kind::Other
                               ? m_text.midRef(token.position, token.length).indexOf(QChar(u'的'))
                               : -1;
            if (token.end() - first.position > longest + token.length) {
                return false;
            }
            introduced = introduced || introduces(at);
            if (of < 0) {
                word = word || (token.kind == Token::Kind::Word && token.length > 1);
                continue;
            }
            int position = token.position + of + 1;
            std::size_t name = nameFrom(position < token.end() ? at : at + 1, position);
            static const QString offices = QStringLiteral("部门组处科室班队院校");
            const int left = token.end() - position;
            if (offices.contains(charAt(m_text, position - 2)) && (left == 2 || left == 3)) { // 开发组的凯文
                name = at;
                position = token.position + of + 1;
            }
            if (name == m_tokens.size()) {
                continue; // 介绍的那个装修公司的牛经理
            }
            if (!word || (person && !introduced)) {
                return false;
            }
            m_joined.push_back(wordUntil(position, WordClass::Address));
            m_joined.back().inModifier = true;
            m_tokens[name].length = m_tokens[name].end() - position;
            m_tokens[name].position = position;
            m_at = name;
            return true;
        }
        return false;
    }

    /// 翻译 in 让翻译小阮进会 describes somebody, in 翻译一下 it is a request.
    bool takeJob()
    {
        const Token &job = m_tokens[m_at];
        const std::size_t next = m_at + 1;
        const bool ofSomething = !m_joined.empty() && m_joined.back().kind == Token::Kind::Other &&
                                 m_text.at(m_joined.back().end() - 1) == QChar(u'的'); // 上海的翻译小阮
        if (!job.is(WordClass::Unsupported) || !(ofSomething || isSomebodyExpected()) ||
            next >= m_tokens.size() || m_tokens[next].position != job.end() ||
            !nameBegins(m_text, m_tokens, next, job.end()) ||
            !isModifier(m_text.mid(job.position, job.length)) || !(meets() || onlyNames())) {
            return false;
        }
        m_joined.push_back(job);
        m_joined.back().classes = WordClass::Title;
        m_at = next;
        return true;
    }

    /// True where nothing is done, as in an answer: 上海的Zoë和翻译小柳.
    bool onlyNames()
    {
        if (!m_onlyNames) {
            constexpr WordClasses deeds = WordClass::Conference | WordClass::Join | WordClass::Arrive |
                                          WordClass::ComeMeet | WordClass::Pull | WordClass::Invite |
                                          WordClass::StrongOpen | WordClass::Query | WordClass::Add |
                                          WordClass::Close | WordClass::Request;
            m_onlyNames = std::none_of(m_tokens.cbegin(), m_tokens.cend(), [](const Token &token) {
                return token.isAny(deeds) || token.kind == Token::Kind::Time ||
                       (token.is(WordClass::Trigger) && !token.is(WordClass::Separator));
            });
        }
        return *m_onlyNames;
    }

    /// True when people come together somewhere in the sentence.
    bool meets()
    {
        if (!m_meets) {
            constexpr WordClasses meeting = WordClass::Conference | WordClass::Join | WordClass::Arrive |
                                            WordClass::ComeMeet | WordClass::Video;
            m_meets = std::any_of(m_tokens.cbegin(), m_tokens.cend(), [](const Token &token) {
                return token.isAny(meeting) || (token.is(WordClass::Pull) && token.length > 1); // 叫上
            });
        }
        return *m_meets;
    }

    const QString &m_text;
    Tokens &m_tokens;
    Tokens m_joined;
    std::size_t m_at = 0;
    int m_relativeEnd = -1; ///< where the name behind the last relative ends
    std::optional<bool> m_meets;
    std::optional<bool> m_onlyNames;
};

} // namespace

void joinPersonWords(const QString &text, Tokens &tokens)
{
    PersonWords(text, tokens).run();
}

} // namespace understanding
