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

/// How the scripted contacts application answers the next requests.
struct Script
{
    int callCode = 0; ///< if not 0, the call itself fails with it
    QStringList answers;
};
Q_DECLARE_METATYPE(Script)

/// Answers @p json, which may use single quotes, then @p second to the next request.
Script answers(const char *json, const char *second = nullptr);
Script callFails(int code);

/// A card that a handler announced, and the reply at that moment.
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
    QVector<AbilityEvent> requests; ///< made by the action
    QStringList actionsOfReply;     ///< requested by handleReply()
};

/// An intent with slots in the JSON form "[{'name':'id','value':'123'}]"; single quotes stand for double
/// ones.
CloudIntent intentWith(const char *slotArray = "[]");

/// Gives the slot at @p slot the spoken text @p text.
void setSlotText(CloudIntent &intent, int slot, const QString &text);

/// Returns @p json with double instead of single quotes.
QString quoted(const char *json);

/**
 * Lets @p handler act on @p intent with the scripted contacts application, then reply. Attaches cards to the
 * reply as the dispatcher does, with cardOf() as the widget.
 */
HandlerRun runHandler(IReplyableIntent *handler, const CloudIntent &intent, const Script &script);

/// Runs only the reply of @p handler to @p code.
HandlerRun replyOf(IReplyableIntent *handler, int code, const CloudIntent &intent = intentWith());

/// A placeholder pointer for an announced card; never dereference it.
QWidget *cardOf();

/// The expected outcome in a row of a handler's table.
struct Expected
{
    enum CardOrder { NoCard, CardBeforeText, CardAfterText, CardAddedToTexts };

    int code = 0;
    QString text;
    int type = 0;
    CardOrder order = NoCard;
    int card = -1;
    QString conferences; ///< the ids of the card's conferences, separated by blanks
    bool opensList = false;
};
Q_DECLARE_METATYPE(Expected)

Expected texts(int code, const char *text);
Expected textsThenList(int code, const char *text);
Expected cardBefore(int code, const char *text, int card, const char *conferences = "");
Expected cardAfter(int code, const char *text, int card, const char *conferences = "");
/// Expects a card after texts that do not announce it.
Expected cardAddedToTexts(int code, const char *text, int card, const char *conferences = "");
/// Expects the reply as constructed.
Expected untouched();

/// Fails the running test unless @p run ended as @p expected.
void compareRun(const HandlerRun &run, const Expected &expected);
