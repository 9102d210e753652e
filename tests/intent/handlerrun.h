// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"
#include "scriptedability.h"
#include "semantic/semantic.h"

#include <QMetaType>
#include <QStringList>

#include <memory>

/// What the scripted contacts application does with the next requests.
struct Script
{
    int callCode = 0; ///< other than 0: the call itself fails
    QStringList answers;
};
Q_DECLARE_METATYPE(Script)

/// The answer @p json, which may use single quotes, and @p second to the request after it.
Script answers(const char *json, const char *second = nullptr);
Script callFails(int code);

/// One card that a handler announced, and the reply as it was then.
struct Announcement
{
    int action = -1;
    QVariant payload;
    Reply *reply = nullptr;
    QString textThen;
    int typeThen = 0;
};

/// What one handler did with one intent.
struct HandlerRun
{
    std::unique_ptr<IReplyableIntent> handler;
    int code = 0;
    int codeOfReply = 0; ///< what handleReply() returned
    Reply reply;
    QVector<Announcement> cards;
    QVector<AbilityEvent> requests; ///< of the action
    QStringList actionsOfReply;     ///< that the reply asked of the contacts application
};

/// An intent with slots in the JSON form "[{'name':'id','value':'123'}]"; single quotes stand for double
/// ones.
CloudIntent intentWith(const char *slotArray = "[]");

/// Gives the slot at @p slot the spoken text @p text.
void setSlotText(CloudIntent &intent, int slot, const QString &text);

/// @p json with its single quotes made double ones.
QString quoted(const char *json);

/**
 * Lets @p handler act on @p intent with the contacts application scripted, then reply. Cards are attached to
 * the reply the way the dispatcher does it, with cardOf() as the widget.
 */
HandlerRun runHandler(IReplyableIntent *handler, const CloudIntent &intent, const Script &script);

/// Only the reply of @p handler to @p code.
HandlerRun replyOf(IReplyableIntent *handler, int code, const CloudIntent &intent = intentWith());

/// The widget that stands for an announced card.
QWidget *cardOf();

/// The expected outcome of one row: what every handler's table checks.
struct Expected
{
    enum CardOrder { NoCard, CardBeforeText, CardAfterText, CardAddedToTexts };

    int code = 0;
    QString text;
    int type = 0;
    CardOrder order = NoCard;
    int card = -1;
    QString conferences; ///< the ids of those that the card carries, separated by blanks
    bool opensList = false;
};
Q_DECLARE_METATYPE(Expected)

Expected texts(int code, const char *text);
Expected textsThenList(int code, const char *text);
Expected cardBefore(int code, const char *text, int card, const char *conferences = "");
Expected cardAfter(int code, const char *text, int card, const char *conferences = "");
/// After texts that do not announce it.
Expected cardAddedToTexts(int code, const char *text, int card, const char *conferences = "");
/// The reply as the constructor made it.
Expected untouched();

/// Fails the running test unless @p run ended as @p expected.
void compareRun(const HandlerRun &run, const Expected &expected);
