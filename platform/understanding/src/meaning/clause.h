// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/allowedwords.h"
#include "meaning/reading.h"

namespace understanding {

/// A part of the sentence between punctuation.
class Clause final
{
public:
    Clause(const Reading &reading, const QString &intent, std::size_t begin, std::size_t end);

    bool isOrder() const;

    /// 第7次迭代会，...: only the name of the conference, which need not be understood.
    bool isTitle() const;
    /// 她还没进会, behind the order that calls her.
    bool tellsWhyCalled() const;
    bool isRequested() const;
    /// True for a request, but not for a mere proposal like 咱们开个会？.
    bool isPolitelyRequested() const;
    bool callsSomebody() const;
    bool isSupposed() const;
    /// 我妈喊我吃饭: somebody else calls the speaker.
    bool isCalledAway() const;
    /// 张伟明天三点开会: somebody whom no word calls, right before what is done.
    bool hasOtherSubject() const;
    /// 秦姐, alone before an order: somebody whom nothing calls.
    bool isOnlySomebody() const;
    /// 老板喊开会了, 我的会到点了: somebody without a name does it, or it comes about, so it is only news.
    bool isTold() const;
    /// 领导要求明天开会: told or wished, whatever follows.
    bool isOnlyReported() const;
    /// 他们终于开完了: reports what others have done.
    bool isReport() const;
    /// 张伟李娜必须到场, 张伟主持: who comes was said, and not found.
    bool leavesOutSomebody() const;
    /// 老板不同意, 不是我说的: takes back the order beside it.
    bool isObjection() const;
    /// tmr下午三点: a time beside something strange.
    bool isTimeCutOff() const;
    /// 阿姐 in 阿姐，帮我开个会.
    bool isAddressing() const;
    /// 会议号你记一下，123456: the number is only told.
    bool tellsNumber() const;
    /// 不带小王: somebody is told to stay away.
    bool excludesSomebody() const;

    bool isRefused() const;
    /// 结束了会议, 会议结束了: done, unless it is asked for (把会议关了, 散了吧).
    bool isFinished() const;
    bool isUnderstood() const;

private:
    /// 把王总拉进会了吧, 帮我邀请张伟了吧: supposes that it is done; 把会订了吧, 把李娜叫了吧 order it.
    bool isSupposedDone() const;
    /// True if a word asks for what is said. 吧 alone only supposes it: 会议结束了吧.
    bool isAskedFor() const;
    template <typename Holds>
    bool any(Holds holds) const;
    bool has(WordClasses classes) const;
    QString textOf(const Token &token) const;
    /// 不, 别 ... anywhere before what would be done; 密码不用 negates nothing.
    bool isNegated() const;
    /// 王磊离开会议了, 他结束了会议, 谁邀请了张三: somebody else stands before the verb, called by no word.
    bool isSomebodyElses() const;
    /// 王磊 in 王磊退会了.
    bool isStranger(const Token &token) const;
    bool isUncalled(const Token &name) const;
    /// 老板, 同事: a person without a name.
    bool isSomebody(const Token &token) const;
    /// 昨天和张三开会: nobody opens a conference on a past day.
    bool isPast() const;
    /// 球队 in 球队那边有会不, 修车厂 in 修车厂今天三点开个会: the people among whom the speaker is, not
    /// somebody else who meets.
    bool isOwnGroup(std::size_t at) const;
    /// 昨天 in 加昨天认识的张伟为好友: the past day only tells who or what is meant.
    bool isModifying(std::size_t pastDay) const;
    /// 我下午三点有个会: there is one already; no new one is wanted.
    bool isStatement() const;
    /// 会议号是123456, without a word that joins.
    bool isOnlyNumber() const;
    /// 开会要带什么 asks about something other than which conferences there are.
    bool isOtherQuestion() const;
    /// 会议有多少人, 明天的会重要吗: asks something about a known conference.
    bool asksAboutConference() const;
    /// 320号上午九点: conferences are joined now, so the number may be a date.
    bool isAtOtherTime() const;
    /// 帮我订个会议室: a room is no conference.
    bool isAboutRoom() const;
    /// 会议要密码吗 asks; 能帮我开个会吗 is polite.
    bool isQuestion() const;
    /// 腾出手来帮我...: what leads up to the request does not matter.
    bool isPreamble(std::size_t at) const;
    /// 007 in 邀请张伟007, 1号 in 邀请张伟1号: may tell who is meant.
    bool isOfName(std::size_t at) const;
    /// 下 in 明天下三点, 午 in 开午会: the rest of a time that was only partly read.
    bool isPieceOfTime(std::size_t at) const;
    bool isExplained(std::size_t at) const;
    /// 需求 in 开个需求会, 张总的 in 加入张总的会议, 需求 in 对一下需求: what kind of conference it is.
    bool isDescription(std::size_t at) const;
    /// 护理部 in 护理部培训会帮我建一个: which conference it is, before the verb that is asked for.
    bool isTitleBeforeVerb(std::size_t at) const;
    /// 车间 in 明天三点车间开会，叫上老魏: a group that meets, and somebody else is called.
    bool isGroupBeforeOpening(std::size_t at) const;
    /// 小区 in 小区业主会给我建一个: whose conference it is, and nobody's name.
    bool isGroupTitle(std::size_t at) const;
    /// 项目 in 明天三点，李娜张伟，项目总结会.
    bool isOnlyTitle(std::size_t at) const;
    /// team in team meeting.
    bool isBeforeConference(std::size_t at) const;
    /// 赵院长发来 in 赵院长发来的会议号, 跨年 in 跨年会议号202712310: whose number it is, or of which
    /// conference.
    bool isOfNumber(std::size_t at) const;
    /// 兄弟 in 兄弟，开会 and 开会吧兄弟, 同志 in 王磊同志.
    bool isAddress(std::size_t at) const;
    /// Looks once for what isExplained() needs to know of the whole clause.
    void survey();
    /// Little words that change nothing.
    bool isNothing(const Token &token) const;

    const Reading &m_reading;
    const Tokens &m_tokens;
    const QString &m_intent;
    const AllowedWords &m_allowed;
    const std::size_t m_begin;
    const std::size_t m_end;
    const bool m_isQuery;
    std::size_t m_firstSaid;       ///< the first token that is more than politeness
    std::size_t m_lastSaid = 0;    ///< the last one
    std::size_t m_numberOwned = 0; ///< 会议号 in 赵院长发来的会议号, the last one
    int m_ownDeed = -1;            ///< where 我先 stands in 孩子哭了我先退会, the last one
};

template <typename Holds>
bool Clause::any(Holds holds) const
{
    for (std::size_t at = m_begin; at < m_end; ++at) {
        if (!m_tokens[at].inTopic && holds(at)) {
            return true;
        }
    }
    return false;
}

} // namespace understanding
