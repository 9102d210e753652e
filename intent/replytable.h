// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ireplyableintent.h"
#include "replyrow.h"

#include <QVariant>

/// Turns result codes into replies.
namespace Replies {

/// Gives the reply to an outcome that all handlers share: the call failed or timed out, nobody is logged in.
/// False for any other @p code.
bool giveShared(int code, Reply &reply);

/// Sets @p reply and announces the card that goes with it, if any, carrying @p record.
void give(int code, const QString &text, const Companion &companion, const QVariant &record, Reply &reply);

/**
 * Gives the shared reply to @p code, or else the one of the first row of @p table that matches; leaves
 * @p reply alone if there is none.
 * @return @p code, as handleReply() does.
 */
template <typename Record>
int answer(int code, const ReplyTable<Record> &table, const Record &record, const CloudIntent &intent,
           Reply &reply)
{
    if (giveShared(code, reply)) {
        return code;
    }
    for (const ReplyRow<Record> &row : table) {
        if (row.matches(code, record)) {
            const Companion &companion = row.companion();
            give(code, row.text(record, intent), companion,
                 companion.isCard() ? QVariant::fromValue(record) : QVariant(), reply);
            break;
        }
    }
    return code;
}

/// For handlers without a record.
inline int answer(int code, const ReplyTable<> &table, const CloudIntent &intent, Reply &reply)
{
    return answer(code, table, NoRecord(), intent, reply);
}

} // namespace Replies
