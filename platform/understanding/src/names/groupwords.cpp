// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/groupwords.h"

#include "names/headreader.h"
#include "names/namecharacters.h"
#include "names/namelook.h"
#include "names/tokenjoiner.h"
#include "text/characterset.h"
#include "text/scan.h"

namespace understanding {

namespace {

class GroupWords final : private TokenJoiner
{
public:
    GroupWords(const QString &text, Tokens &tokens) : TokenJoiner(text, tokens) {}

    void run()
    {
        joinAll([this] { return joinOurs() || joinGroup(); });
    }

private:
    /// 所有人, 同事们, 一帮人: all of those whom the words before describe.
    bool isCollective(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        if (m_text.at(token.end() - 1) == QChar(u'们')) {
            const QChar first = m_text.at(token.position);
            return !isSpeaker(first) && first != QChar(u'你');
        }
        if (isMembers(at)) {
            return true;
        }
        if (!token.isAny(WordClass::Nobody | WordClass::NameTail) || token.length < 2) {
            return false;
        }
        static const CharacterSet beginnings(u"所全各大一那这每几");
        static const CharacterSet counts(u"两三四五俩仨"); // 产品的两个人
        const QChar first = m_text.at(token.position);
        const bool some = token.is(WordClass::NameTail) && counts.contains(first) &&
                          charAt(m_text, token.position - 1) == QChar(u'的');
        const bool all = some || beginnings.contains(first);
        const std::size_t next = at + 1;
        const bool somebodyNext =
            next < m_tokens.size() && nameBegins(m_text, m_tokens, next, m_tokens[next].position);
        return all && !somebodyNext;
    }

    /// 成员 in 小组成员, but not in 小组成员李娜 and 小组成员：李娜
    bool isMembers(std::size_t at) const
    {
        const Token &token = m_tokens[at];
        const std::size_t next = at + 1;
        const int start = m_tokens[m_at].position; // 项目组 in 项目组成员 is a name
        const int group = firstOf(m_text, start, {u"小组", u"团队", u"本组", u"全组", u"班级"});
        if (group == 0 || start + group != token.position ||
            firstOf(m_text, token.position, {u"成员"}) != token.length) {
            return false;
        }
        constexpr WordClasses naming = WordClass::Punctuation | WordClass::LabelLink | WordClass::Have;
        return next == m_tokens.size() ||
               (!m_tokens[next].isAny(naming) && m_tokens[next].kind != Token::Kind::Space &&
                !nameBegins(m_text, m_tokens, next, m_tokens[next].position));
    }

    /// 渠道部, 研发中心的, 三班: what the collective word at @p at may follow. 王师傅 in 王师傅他们 is called
    /// by name.
    bool describesGroup(std::size_t at) const
    {
        const int start = m_tokens[m_at].position;
        const int end = m_tokens[at].position;
        const QString said = m_text.mid(start, end - start);
        static const CharacterSet others(u"他她几");
        if (said.size() > 1 && endsGroup(said.at(said.size() - 1))) {
            return true;
        }
        return !others.contains(m_text.at(end)) && !m_tokens[at - 1].is(WordClass::Title) && isModifier(said);
    }

    /// 和 in 三组和四组的同事们
    bool joinsGroups(std::size_t at) const
    {
        return at > m_at && m_tokens[at].is(WordClass::Separator) && m_tokens[at].length == 1 &&
               endsGroup(m_text.at(m_tokens[at].position - 1));
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

    /// 备课组 in 给我们备课组开个会, 摄影社 in 帮摄影社定个会, 办公室的老师 in 帮我们办公室的老师召集会议.
    bool joinOurs()
    {
        static const CharacterSet leading(u"们帮给替");
        if (m_joined.empty() || !leading.contains(m_text.at(m_joined.back().end() - 1)) ||
            !m_joined.back().isAny(WordClass::Request | WordClass::Nobody | WordClass::Trigger)) {
            return false;
        }
        constexpr int longest = 8;
        constexpr WordClasses opening = WordClass::WeakOpen | WordClass::StrongOpen;
        const int start = m_tokens[m_at].position;
        std::size_t last = m_at;
        for (std::size_t at = m_at; at + 1 < m_tokens.size() && m_tokens[at].end() - start <= longest; ++at) {
            const Token &next = m_tokens[at + 1];
            QString said = m_text.mid(start, m_tokens[at].end() - start);
            said.chop(said.endsWith(QChar(u'的')) ? 1 : 0); // 办公室的老师
            const bool group =
                said.size() > 1 && (endsGroup(said.back()) || said.endsWith(QStringLiteral("委员会")) ||
                                    said.endsWith(QStringLiteral("家委会")));
            // 帮王组开个会 and 帮张伟李娜组个会 mean people
            const bool somebody = m_text.at(start - 1) != QChar(u'们') && isPersonsName(said.left(2));
            const bool members = last > m_at && m_tokens[at].is(WordClass::Title);
            if ((group && !somebody) || members) {
                last = at + 1;
            }
            if (last == at + 1 && next.isAny(opening) && !next.is(WordClass::Measure)) {
                join(m_tokens[at].end(), WordClass::Nobody, at + 1);
                return true;
            }
            const bool describes = m_tokens[at].kind == Token::Kind::Other || m_tokens[at].length == 1 ||
                                   m_tokens[at].isAny(WordClass::Plain | WordClass::Title);
            if (!describes || m_tokens[at].isAny(WordClass::Punctuation | WordClass::Separator)) {
                return false;
            }
        }
        return false;
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
                join(m_tokens[last].end(), WordClass::Nobody, last + 1);
                return true;
            }
            constexpr WordClasses never = WordClass::Separator | WordClass::Trigger | WordClass::Punctuation |
                                          WordClass::Conference | WordClass::Address; // 兄弟们
            if (joinsGroups(at)) {
                continue;
            }
            const bool describes = token.kind == Token::Kind::Other || token.kind == Token::Kind::Latin ||
                                   token.kind == Token::Kind::Number || token.isAny(describing) ||
                                   (token.kind == Token::Kind::Word && token.length == 1); // 场 in 市场部
            if (!describes || token.isAny(never)) {
                return false;
            }
        }
        return false;
    }
};

} // namespace

void joinGroups(const QString &text, Tokens &tokens)
{
    GroupWords(text, tokens).run();
}

} // namespace understanding
