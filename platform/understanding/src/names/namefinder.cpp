// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/namefinder.h"

#include "names/headreader.h"
#include "names/namelook.h"
#include "names/namerunreader.h"
#include "text/characterset.h"
#include "text/scan.h"
#include "words/lexicon.h"
#include "words/negation.h"

#include <algorithm>

namespace understanding {

namespace {

class NameFinder final : private NameRunReader
{
public:
    NameFinder(const QString &raw, const QString &text, const Tokens &tokens)
        : NameRunReader(raw, text, tokens)
    {
    }

    std::vector<FoundName> run()
    {
        for (std::size_t at = 0; at < m_tokens.size(); ++at) {
            at = step(at);
        }
        if (m_lost) {
            doubtLast();
        }
        std::stable_sort(m_names.begin(), m_names.end(),
                         [](const FoundName &a, const FoundName &b) { return a.position < b.position; });
        return std::move(m_names);
    }

    std::vector<FoundName> runFromStart()
    {
        constexpr WordClasses leading = WordClass::Filler | WordClass::LabelLink | WordClass::Punctuation |
                                        WordClass::Request | WordClass::Repair;
        std::size_t at = 0;
        while (at < m_tokens.size() && m_tokens[at].isAny(leading)) { // 嗯，张伟 and 那就张伟吧
            ++at;
        }
        takeNames(at, true);
        return std::move(m_names);
    }

private:
    /// Handles the token at @p at; returns the last token handled.
    std::size_t step(std::size_t at)
    {
        const Token &token = m_tokens[at];
        if (token.inTopic) {
            return at;
        }
        constexpr WordClasses leads = WordClass::Trigger | WordClass::NameLabel | WordClass::Separator;
        if (const std::size_t office = m_latin.endOfOffice(at); office > at) { // Amy@市场部
            return office;
        }
        if (token.isAny(leads) && !m_places.isOpeningOne(at)) {
            m_listed = m_text.at(token.position) == QChar(u'、');
            if (token.is(WordClass::Separator)) {
                takeLeft(at);
            }
            m_lost = m_lost || isLostBefore(m_tokens, at);
            const bool clauseSign =
                token.is(WordClass::Separator) && !token.is(WordClass::Trigger) && !m_listed;
            const std::size_t before = m_names.size();
            const std::size_t last = takeZone(at, token.is(WordClass::WeakTrigger) || clauseSign);
            if (isNegatedBefore(m_text, m_tokens, at)) { // 不叫李娜，叫张伟
                m_names.resize(before);
                return m_places.endOfClause(at, last);
            }
            return last;
        }
        if (isNegatedBefore(m_text, m_tokens, at)) { // 不让李娜参加
            return at;
        }
        if (token.kind == Token::Kind::Name) {
            addKnown(token, false);
        } else if (token.kind == Token::Kind::Other || m_places.isSmallWordInName(at)) {
            return takeSubject(at);
        }
        return at;
    }

    /// Takes the name left of a separator: 赵云 in 赵云和....
    void takeLeft(std::size_t at)
    {
        if (at == 0 || m_tokens[at - 1].inTopic) {
            return;
        }
        const Token &left = m_tokens[at - 1];
        const bool titled = m_listed && left.is(WordClass::Title) && at > 1 && !m_tokens[at - 2].inTopic &&
                            m_tokens[at - 2].kind == Token::Kind::Other; // 供应商金总、...
        if (left.kind != Token::Kind::Other && left.kind != Token::Kind::Latin && !titled) {
            return;
        }
        const int start = m_tokens[titled ? at - 2 : m_latin.firstOf(at - 1)].position;
        const bool taken = std::any_of(m_names.cbegin(), m_names.cend(),
                                       [&](const FoundName &name) { return name.position >= start; });
        if (!taken && left.end() == m_tokens[at].position) {
            if (start < left.position && !titled) { // Tom Lee、...
                addOne(start, left.end() - start, true);
            } else {
                addChunk(start, left.end(), !m_listed, true);
            }
        }
    }

    /// Takes somebody whom no word calls: 赵云参加, 赵云也来, 赵云明天三点开会, 发起会议 赵云. Returns the
    /// last token taken.
    std::size_t takeSubject(std::size_t at)
    {
        const Token &token = m_tokens[at];
        std::size_t last = token.kind == Token::Kind::Other ? at : m_places.lastOfRun(at, at + LongestName);
        if (last > at && m_tokens[last].kind != Token::Kind::Other) {
            --last; // 关羽也: the word behind is not part of the name
        }
        if (m_tokens[last].kind != Token::Kind::Other) {
            return at;
        }
        if (const int comer = m_places.comerLength(at)) { // 宋阳必须到
            addChunk(token.position, token.position + comer, false, true);
            return at;
        }
        if (token.length == 1 && last == at && last + 1 < m_tokens.size() &&
            m_tokens[last + 1].is(WordClass::Title) &&
            m_tokens[last + 1].position == m_tokens[last].end()) { // 陈工
            ++last;
        }
        last = endOfPeopleRow(at, last);
        std::size_t next = last + 1;
        static const CharacterSet addressed(u"你您"); // 陈工你也叫上
        while (next < m_tokens.size() && m_tokens[next].length <= 2 &&
               (m_tokens[next].isAny(WordClass::Filler | WordClass::NameTail) ||
                addressed.contains(m_text.at(m_tokens[next].position)))) {
            ++next;
        }
        const int end = m_tokens[last].end();
        // 赵云也来
        const bool comes = next + 1 == m_tokens.size() && next > last + 1 && m_tokens[next].length == 1 &&
                           m_text.at(m_tokens[next].position) == QChar(u'来');
        const bool joins =
            comes || (next < m_tokens.size() && m_tokens[next].isAny(WordClass::Join | WordClass::Arrive));
        const bool isLast = last + 1 == m_tokens.size();
        const bool afterOpening =
            isLast && at > 0 &&
            (m_tokens[at - 1].is(WordClass::Conference) || m_tokens[at - 1].kind == Token::Kind::Time);
        const bool beforeTime = at == 0 && !isLast && m_tokens[last + 1].kind == Token::Kind::Time;
        const bool beforeOpening = at == 0 && !isLast &&
                                   m_tokens[last + 1].isAny(WordClass::WeakOpen | WordClass::StrongOpen) &&
                                   splitNames(m_text.mid(token.position, end - token.position)).size() > 1;
        const bool apart = at > 0 && m_places.standsApartBefore(at) && m_places.standsApartBehind(last);
        const std::size_t before = m_names.size();
        if (joins) {
            addChunk(token.position, end, true, m_tokens[next].is(WordClass::Arrive));
        } else if (beforeOpening) {
            addChunk(token.position, end, false, false);
        } else if ((afterOpening || beforeTime || apart) && m_places.hasConference()) {
            addChunk(token.position, end, true, false);
        }
        return m_names.size() > before ? last : at;
    }

    /// The last token of 王总老王 and of 产品经理吴迪, which begin at @p at; @p last if nobody else follows.
    std::size_t endOfPeopleRow(std::size_t at, std::size_t last) const
    {
        std::size_t run = last;
        while (run + 1 < qMin(m_tokens.size(), at + LongestName) &&
               m_tokens[run + 1].position == m_tokens[run].end() &&
               (m_tokens[run + 1].kind == Token::Kind::Other || m_tokens[run + 1].is(WordClass::Title))) {
            ++run;
        }
        if (run == last) {
            return last;
        }
        const int start = m_tokens[at].position;
        const QString said = m_text.mid(start, m_tokens[run].end() - start);
        const int modifier = modifierLength(said);
        const bool described = modifier > 0 && isPersonsName(said.mid(modifier));
        return readPeopleRow(said).isWhole || described ? run : last;
    }

    /// Takes the names behind the word at @p lead; returns the last token that belongs to them.
    std::size_t takeZone(std::size_t lead, bool mustLookLikeName)
    {
        const std::size_t before = m_names.size();
        const std::size_t first = m_places.skipToNames(lead);
        if (m_places.callsAgain(lead, first)) { // 请约卢老师
            return lead;
        }
        // 拉个表格给我
        mustLookLikeName = mustLookLikeName || m_places.isOfKind(lead) ||
                           (first > lead + 1 && m_text.at(m_tokens[first - 1].end() - 1) == QChar(u'个'));
        std::size_t end = takeNames(first, mustLookLikeName);
        // What follows shows that it is a person, however unlikely the name: 把加藤拉进来.
        WordClasses takesPeople =
            WordClass::Arrive | WordClass::Buddy | WordClass::BuddyNoun | WordClass::InviteNoun;
        if (m_tokens[lead].is(WordClass::Request)) { // 把子轩叫上开会
            takesPeople.add(WordClass::Pull);
        }
        if (mustLookLikeName && m_names.size() == before && end < m_tokens.size() &&
            m_tokens[end].isAny(takesPeople)) {
            end = takeNames(m_places.skipToNames(lead), false);
        }
        if (end < m_tokens.size() && m_tokens[end].isAny(takesPeople)) {
            // 拉个懂技术的进来
            const bool described = charAt(m_text, m_tokens[end].position - 1) == QChar(u'的');
            std::for_each(
                m_names.begin() + static_cast<std::ptrdiff_t>(before), m_names.end(), [&](FoundName &name) {
                    name.doubtful = !isLikelyName(name.name) || (described && !isPersonsName(name.name));
                });
        }
        const bool listed = m_tokens[lead].is(WordClass::Separator) && lead > 0 && !m_names.empty() &&
                            m_names.back().position + m_names.back().said.size() == m_tokens[lead].position;
        if (listed && m_names.size() == before && first < m_tokens.size() &&
            m_tokens[first].kind == Token::Kind::Other) {
            doubtLast(); // 秦院士以及不知道谁
        }
        // If nobody was found, consume nothing: 约 in 约个会.
        return m_names.size() > before ? end - 1 : lead;
    }

    /// 他在宿舍 behind the names, but not 他老婆李娜.
    bool startsRemark(std::size_t at) const
    {
        return m_tokens[at].is(WordClass::Actor) && m_tokens[at - 1].is(WordClass::Punctuation) &&
               !(at + 1 < m_tokens.size() && m_tokens[at + 1].is(WordClass::Title));
    }

    /// 别 in 小凯和乐乐，别叫阿强, 不 in 邀请小凯，不请阿强.
    bool excludesNext(std::size_t at) const
    {
        constexpr WordClasses calls = WordClass::Trigger | WordClass::Pull | WordClass::Invite;
        const bool negation = m_tokens[at].length == 1 || m_tokens[at].is(WordClass::Negation);
        return negation && at + 1 < m_tokens.size() && m_tokens[at + 1].isAny(calls) &&
               isNegatedBefore(m_text, m_tokens, at + 1);
    }

    /// Takes names from @p at on; returns the first token behind them.
    std::size_t takeNames(std::size_t at, bool mustLookLikeName)
    {
        constexpr std::size_t farthest = 24; // tokens without a name; keeps long sentences linear
        bool afterComma = false;
        bool passedOver = false; // something in the list that is no name
        std::size_t limit = at + farthest;
        std::size_t count = m_names.size();
        while (at < qMin(limit, m_tokens.size()) && !m_tokens[at].inTopic) {
            if (m_names.size() > count) {
                if (passedOver) { // 叫上小凯，某某，还有果果
                    doubtLast();
                }
                count = m_names.size();
                limit = at + farthest;
            }
            if (excludesNext(at)) {
                return at;
            }
            const std::size_t behind = m_places.endOfModifier(at);
            if (behind > at && m_modifierStart < 0) {
                m_modifierStart = m_tokens[at].position;
            }
            at = behind;
            const Token &token = m_tokens[at];
            if (afterComma && startsRemark(at)) { // 拉上小胖，他在宿舍
                return at;
            }
            m_lost = m_lost || isLostBefore(m_tokens, at);
            const bool someoneFollows =
                (m_latin.isSomebodyBehindSpace(at + 1) &&
                 !isRelative(m_text.mid(token.position, token.length))) ||
                (m_places.isSomebody(at + 1) && // 妹夫 in 我妹妹妹夫
                 !isRelative(m_text.mid(m_tokens[at + 1].position, m_tokens[at + 1].length)));
            if (m_places.isOnlyRelative(at)) { // 叫上我姐: ask, for that is nobody's name
                addOne(token.position, 2, true);
                m_names.back().doubtful = true;
                at += 2;
                continue;
            }
            if (token.is(WordClass::Nobody) && token.length == 1 &&
                followsName(m_tokens[at])) { // 叫王磊来我办公室
                return at;
            }
            if (token.kind == Token::Kind::Name) {
                at = takeKnownName(at);
            } else if (m_places.isAddressBeforeName(at) || m_places.isPointer(at) ||
                       (token.isAny(WordClass::Title | WordClass::Topic) && token.length > 1 &&
                        someoneFollows)) { // 董事长王建国, 评审专家戚教授
                m_modifierStart = m_modifierStart < 0 ? token.position : m_modifierStart;
            } else if (token.is(WordClass::Title) && token.length > 1 &&
                       !token.is(WordClass::Nobody)) { // 跟老板开会
                addOne(token.position, token.length, true);
            } else if (m_latin.isPrefix(at)) {
                addOne(token.position, m_tokens[at + 1].end() - token.position, true);
                ++at;
            } else if (token.kind == Token::Kind::Latin) {
                at = takeLatinName(at);
            } else if (token.kind == Token::Kind::Other || m_places.isSmallWordInName(at) ||
                       m_places.isPlainBeforeName(at) || m_places.isNumberBeforeName(at)) {
                const bool follows = followsName(m_tokens[at]);
                const std::size_t before = m_names.size();
                at = takeRun(at, mustLookLikeName || afterComma || follows);
                passedOver = passedOver || (afterComma && m_names.size() == before && token.length > 1 &&
                                            token.kind == Token::Kind::Other);
                if (follows && m_names.size() == before && m_modifierStart < 0) { // 跟Jerry过方案
                    return at + 1;
                }
            } else if (m_text.at(token.position) == QLatin1Char('(') && followsName(token)) {
                at = m_places.endOfBrackets(at); // 李总(远航集团)
            } else if (token.is(WordClass::Punctuation) && m_text.at(token.position) == QLatin1Char(',')) {
                afterComma = true;
            } else if (!token.isAny(WordClass::Separator | WordClass::Nobody) && !m_places.isOwner(at) &&
                       token.kind != Token::Kind::Space) {
                break;
            }
            ++at;
        }
        return at;
    }

    bool m_lost = false; ///< somebody stands in a list who was not found
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
