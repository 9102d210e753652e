// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "meaning/reading.h"

#include <vector>

namespace understanding {

/// Where an order may begin.
struct OrderStart
{
    int position;
    bool onlyToldBefore; ///< all earlier clauses are background
    bool queryOnly;      ///< valid only for a query: 孩子要打疫苗，我后天有什么会
};

/// Where the order may begin behind clauses that only tell how it came about: 重新 in
/// 刚掉线了，重新进一下我的会议, 麻烦 in 老板找我，麻烦退出会议. In the order in which they should be tried;
/// empty for none.
std::vector<OrderStart> startsOfOrder(const Reading &reading);

/// Where a question about one's conferences ends before what has nothing to do with it:
/// 下午有会吗，我要带狗去洗澡. 0 if there is no such place.
int endOfQuestion(const Reading &reading);

/// 他跟我说的, 昨天王磊问我, 帮我转告他, 他们不让: an order behind @p told may be somebody else's, or
/// unwanted.
bool tellsWhatOthersWant(const QString &told);

/// True if the order for @p intent read from @p start on, as @p rest, lacks all people, the time or the
/// digits that @p whole holds: 跟宋阳没聊完，接着开会.
bool dropsSomething(const Reading &whole, const Reading &rest, const QString &intent, int start);

} // namespace understanding
