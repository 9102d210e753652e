// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

namespace understanding {

// Reasons to doubt that something is wanted now, whatever the clauses of the sentence say.

/// 让张伟退出会议, 会议结束的时间, 我可以退会吗: the speaker does not order to leave.
[[nodiscard]] bool isLeftByOther(const Reading &reading);

/// 明天的会我去: tells who goes, but does not ask to join now.
[[nodiscard]] bool onlyGoes(const Reading &reading);

/// 我昨天进的会议是123456, 加一下老同学，号码13711112222: a number, but no order to join it.
[[nodiscard]] bool isNumberOfOther(const Reading &reading);

/// True where no single account of somebody else was said: 一三八零，零一三八, one number cut in two or two
/// of them; 加mike2和lucy3, 加mike2还是mike3; 尾号8000, 我的账号是mike2.
[[nodiscard]] bool isAccountUnclear(const Reading &reading);

/// 如果明天下雨，帮我开会: what depends on something is not wanted now.
[[nodiscard]] bool isConditional(const Reading &reading);

/// 明天有会吗，要是没有我就去钓鱼: true if a question stands in a clause before the condition.
[[nodiscard]] bool asksBeforeCondition(const Reading &reading);

/// True for 如果, 只要 and their like.
[[nodiscard]] bool isCondition(const QString &word);

/// 标题就写, 通知上说: what follows the clause between the tokens @p begin and @p end is not the speaker's
/// own.
[[nodiscard]] bool introducesQuote(const QString &text, const Tokens &tokens, std::size_t begin,
                                   std::size_t end);

/// 要不要退会, 是不是该开个会了: asks whether to do it.
[[nodiscard]] bool wonders(const Reading &reading);

/// 三点开会对吧, 邀请张伟，是吧, 散会行吧: asks for agreement with what was said. 请散会，行吧 orders
/// politely.
[[nodiscard]] bool asksForAgreement(const Reading &reading);

/// 是不是该开个会了, unlike 明天是不是要开会, which asks what there is.
[[nodiscard]] bool proposesOpening(const Reading &reading);

/// 8 in 8会，通知马超 and 20 in 20约张伟开会: the rest of a time or of something else.
[[nodiscard]] bool holdsLooseNumber(const Reading &reading);

/// 五点 in 和小李三.五点开会, 三点 in 零下三点: the rest of something else.
[[nodiscard]] bool holdsRestOfTime(const Reading &reading);

// What leaves open whether, when or for whom something is to be done.

/// 明天三点安排个评审, 和张伟讨论方案, 约张伟明天三点: people may well meet in one room.
[[nodiscard]] bool namesNoConference(const Reading &reading);

/// 这个会可以散了吧, 可以开会了吧: asks whether one may.
[[nodiscard]] bool asksWhetherMay(const Reading &reading);

/// 有空跟张伟开个会: some day.
[[nodiscard]] bool comesSomeDay(const Reading &reading);

/// 加李娜好友，帮我约张伟开会: two things at once.
[[nodiscard]] bool alsoAddsFriend(const Reading &reading);

/// 和杜鹃的视频会议: a conference is named, and nothing is to be done with it.
[[nodiscard]] bool onlyNamesConference(const Reading &reading);

/// A座会议室，帮忙预定: a room is no conference.
[[nodiscard]] bool onlyNamesRoom(const Reading &reading);

/// 明天三点我没空了，帮我约张伟开会: the hour is not that of the conference.
[[nodiscard]] bool isBusyThen(const Reading &reading);

/// 帮我回复他，加入123456; 告诉张伟，退出会议: somebody else is to read it.
[[nodiscard]] bool passesOn(const QString &text);

/// 叫李娜还是叫李楠, 邀请孙丽代替李娜, 约张伟开会李娜请假: it stays open who is to come.
[[nodiscard]] bool leavesOpenWhoComes(const Reading &reading);

/// 这个会就到这儿，叫上张伟: to leave, and to call somebody?
[[nodiscard]] bool alsoCalls(const Reading &reading);

/// 邀请邻居家的小龙，进咱们会议: somebody else is to come.
[[nodiscard]] bool alsoInvites(const Reading &reading);

/// 号错了, 刚才密码说错了, 说错号了: another one follows.
[[nodiscard]] bool tellsWrongNumber(const QString &clause);

/// 明天下午三点和李娜开会，算了; 加入880100002，算了，先不进: nothing is wanted after all.
[[nodiscard]] bool isTakenBack(const Reading &reading);

} // namespace understanding
