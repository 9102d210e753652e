// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencecardinterface.h"
#include "ireplyableintent.h"
#include "signalactiontype.h"
#include "wire/resultcodes.h"

#include <QStringList>
#include <QVector>

/// The record of a handler that has none.
struct NoRecord
{
};
Q_DECLARE_METATYPE(NoRecord)

/// What a reply brings beside its texts.
struct Companion
{
    enum Kind {
        Nothing,
        CardBeforeText, ///< the card is attached, then the text replaces code, texts and type
        CardAfterText,
        CardByItself,   ///< after the text, which does not announce it: the card adds its bit to the type
        ConferenceList, ///< the contacts application shows its own list
    };

    Kind kind = Nothing;
    int card = 0; ///< a SignalActionType
};

constexpr Companion TextOnly{};
constexpr Companion ThenConferenceList{Companion::ConferenceList};

constexpr Companion cardBeforeText(SignalActionType card)
{
    return {Companion::CardBeforeText, card};
}

constexpr Companion cardAfterText(SignalActionType card)
{
    return {Companion::CardAfterText, card};
}

constexpr Companion cardByItself(SignalActionType card)
{
    return {Companion::CardByItself, card};
}

/**
 * One outcome of a request and what the user is told then. The first row wins whose code is the outcome's and
 * whose condition holds; an outcome without a row leaves the reply as it was.
 */
template <typename Record>
struct ReplyRow
{
    int code;
    bool (*holds)(const Record &record); ///< null: always
    QString text;                        ///< with %1, %2 for the arguments
    QStringList (*arguments)(const Record &record, const CloudIntent &intent); ///< null: none
    Companion companion;
};

namespace ReplyTable {

/// Answers the outcomes that every handler answers alike. False when @p code is none of them.
bool giveSharedReply(int code, Reply &reply);

/// @p text with its %1 and %2 replaced in one go, so that a name that contains "%2" stays as it is.
QString filled(const QString &text, const QStringList &arguments);

/// Updates the handler's reply for @p code and announces the card, with @p payload, that goes with it.
void give(int code, const QString &text, const Companion &companion, const QVariant &payload,
          IReplyableIntent &handler);

/// Answers @p code from the shared outcomes or else from @p rows.
template <typename Record>
void answer(int code, const QVector<ReplyRow<Record>> &rows, const Record &record, const CloudIntent &intent,
            IReplyableIntent &handler)
{
    if (giveSharedReply(code, *handler.getReply())) {
        return;
    }
    for (const ReplyRow<Record> &row : rows) {
        if (row.code == code && (row.holds == nullptr || row.holds(record))) {
            const QStringList arguments =
                row.arguments == nullptr ? QStringList() : row.arguments(record, intent);
            give(code, filled(row.text, arguments), row.companion, QVariant::fromValue(record), handler);
            return;
        }
    }
}

} // namespace ReplyTable
