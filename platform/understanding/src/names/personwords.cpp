// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/personwords.h"

#include "names/headreader.h"
#include "names/namecharacters.h"
#include "names/tokenjoiner.h"
#include "text/characterset.h"
#include "text/scan.h"

namespace understanding {

namespace {

class PersonWords final : private TokenJoiner
{
public:
    PersonWords(const QString &text, Tokens &tokens) : TokenJoiner(text, tokens) {}

    void run()
    {
        joinAll([this] { return joinRelative() || joinKnownOwner() || joinOwner() || takeJob(); });
    }

private:
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
        return isKin(charAt(m_text, position)) ? 1 : 0;
    }

    /// Joins what describes somebody up to @p end, from where on the token @p name holds only the name.
    void joinModifier(int end, std::size_t name)
    {
        join(end, WordClass::Address, name).inModifier = true;
        m_tokens[name].length = m_tokens[name].end() - end;
        m_tokens[name].position = end;
    }

    /// 我弟 in 跟我弟陈麒, 我家老二 in 叫上我家老二丁一
    bool joinRelative()
    {
        const Token &owner = m_tokens[m_at];
        static const CharacterSet owners(u"我咱俺你您他她");
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
        joinModifier(end, last);
        m_relativeEnd = m_tokens[last].end();
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

    /// 在 in 约在上海出差的周扬, 谈 in 约负责谈判的仇律师, 别 in 约别克的王总, 下午 in 约下午班的李娜: behind
    /// a word that calls they can only describe.
    bool onlyDescribes(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        const std::size_t next = at + 1;
        if (next == m_tokens.size() || token.inTopic || m_tokens[next].position != token.end()) {
            return false;
        }
        if (at == m_at && token.length == 1 && m_text.at(token.position) == QChar(u'在')) {
            return m_tokens[next].kind != Token::Kind::Time;
        }
        if (m_tokens[next].kind != Token::Kind::Other) {
            return false;
        }
        if (token.kind == Token::Kind::Time) {
            return at == m_at && m_text.at(token.end()) == QChar(u'班');
        }
        if (token.length != 1 || m_text.midRef(token.end(), m_tokens[next].length).startsWith(QChar(u'的'))) {
            return false;
        }
        return token.is(WordClass::Topic) || (at == m_at && m_text.at(token.position) == QChar(u'别'));
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
        for (std::size_t at = m_at;
             at < m_tokens.size() && (describes(at) || introduces(at) || onlyDescribes(at)); ++at) {
            const Token &token = m_tokens[at];
            const int of = token.kind == Token::Kind::Other
                               ? m_text.midRef(token.position, token.length).indexOf(QChar(u'的'))
                               : -1;
            if (token.end() - first.position > longest + token.length) {
                return false;
            }
            introduced = introduced || introduces(at);
            if (of < 0) {
                word = word || onlyDescribes(at) || (token.kind == Token::Kind::Word && token.length > 1);
                continue;
            }
            int position = token.position + of + 1;
            std::size_t name = nameFrom(position < token.end() ? at : at + 1, position);
            const int left = token.end() - position;
            if (endsGroup(charAt(m_text, position - 2)) && (left == 2 || left == 3)) { // 开发组的凯文
                name = at;
                position = token.position + of + 1;
            }
            if (name == m_tokens.size()) {
                continue; // 介绍的那个装修公司的牛经理
            }
            if (!word || (person && !introduced)) {
                return false;
            }
            joinModifier(position, name);
            return true;
        }
        return false;
    }

    /// 张伟的徒弟 in 拉张伟的徒弟阿伟进来, where 张伟 is known.
    bool joinKnownOwner()
    {
        const std::size_t of = m_at + 1;
        const std::size_t next = m_at + 2;
        if (m_tokens[m_at].kind != Token::Kind::Name || next > m_tokens.size() || !isSomebodyExpected() ||
            of >= m_tokens.size() || m_tokens[of].kind != Token::Kind::Other ||
            m_text.at(m_tokens[of].position) != QChar(u'的')) {
            return false;
        }
        const QString rest = m_text.mid(m_tokens[of].position + 1, m_tokens[of].length - 1);
        const int modifier = modifierLength(rest);
        int position = m_tokens[of].position + 1 + modifier;
        std::size_t name = of;
        if (modifier == 0 && next < m_tokens.size()) {
            position = m_tokens[next].position;
            const bool told = isModifier(rest) && m_tokens[next].kind == Token::Kind::Name;
            name = told ? next : rest.isEmpty() ? nameFrom(next, position) : m_tokens.size();
        }
        if ((modifier == 0 && name == of) || name == m_tokens.size()) {
            return false;
        }
        joinModifier(position, name);
        return true;
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
        join(job.end(), WordClass::Title, next);
        return true;
    }

    int m_relativeEnd = -1; ///< where the name behind the last relative ends
};

} // namespace

void joinPersonWords(const QString &text, Tokens &tokens)
{
    PersonWords(text, tokens).run();
}

} // namespace understanding
