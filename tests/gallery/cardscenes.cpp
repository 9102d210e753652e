// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardscenes.h"

#include "conferencecardinterface.h"
#include "contactreplywidget.h"
#include "scenerecords.h"
#include "scriptedability.h"
#include "signalactiontype.h"
#include "titleitem.h"

#include <lumo/lcombobox.h>
#include <lumo/lspinbox.h>

#include <QPushButton>
#include <QtTest>

namespace {

using Card = std::unique_ptr<QWidget>;

/// Creates the only dispatcher: each listener builds a card, and a reply holds only the last one.
void listenOnce()
{
    static ContactReplyWidget dispatcher;
}

/// Returns the card that the plugin would put into its reply.
template <typename Record>
Card announce(int action, const Record &record)
{
    listenOnce();
    Reply reply;
    ConferenceCardInterface::instance()->noticeSentActionSignals(action, QVariant::fromValue(record), &reply);
    return Card(reply.widget);
}

ContactCreatedConferenceDetail created(const QVector<ContactDetailMsg> &conferences)
{
    ContactCreatedConferenceDetail detail;
    detail.conferences = conferences;
    return detail;
}

ContactCreatedConferenceDetail createdWith(const ContactInviteMemberDetail &people)
{
    ContactCreatedConferenceDetail detail;
    detail.inviteDetail = people;
    return detail;
}

Card found(const QVector<ContactDetailMsg> &conferences)
{
    return announce(Query_List, ContactQueryConferenceDetail{conferences});
}

Card editable()
{
    return announce(Create_Success, created({SceneRecords::conference()}));
}

Card createDuplicate()
{
    return announce(Create_Duplicate, createdWith(SceneRecords::duplicates()));
}

Card inviteDuplicate()
{
    return announce(Invite_Duplicate, SceneRecords::duplicates());
}

Card inviteLimit()
{
    return announce(Invite_ExceedLimit, SceneRecords::exceededLimit(2));
}

// User actions on a card.

void answerRequests(bool successfully)
{
    ScriptedAbility &ability = ScriptedAbility::instance();
    ability.reset();
    const int code = successfully ? 0 : -16020;
    const QString answer = successfully ? QStringLiteral("{\"ret\":\"OK\"}") : QString();
    for (const char *action :
         {"Update Conference", "Delete Conference", "Create Conference", "Invite Members"}) {
        ability.setAnswer(QString::fromLatin1(action), code, answer);
    }
}

void press(const QWidget &card, const QString &text)
{
    const auto buttons = card.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    qFatal("The card has no button %s", qPrintable(text));
}

void changeDuration(QWidget &card)
{
    const auto combos = card.findChildren<LComboBox *>();
    for (LComboBox *combo : combos) {
        if (combo->windowTitle() == QLatin1String("timeLengthBox")) {
            combo->setCurrentIndex(3);
        }
    }
}

template <bool Succeeds>
void modify(QWidget &card)
{
    answerRequests(Succeeds);
    changeDuration(card);
    press(card, QStringLiteral("修 改"));
}

template <bool Succeeds>
void cancel(QWidget &card)
{
    answerRequests(Succeeds);
    press(card, QStringLiteral("取 消"));
}

void pickTwo(QWidget &card)
{
    const auto rows = card.findChildren<TiTleItem *>();
    for (const int index : {0, 3}) {
        QTest::mouseClick(rows.at(index), Qt::LeftButton);
    }
}

void pickAsManyAsPossible(QWidget &card)
{
    const auto rows = card.findChildren<TiTleItem *>();
    for (TiTleItem *row : rows) {
        QTest::mouseClick(row, Qt::LeftButton);
    }
}

template <bool Succeeds>
void pickTwoAndConfirm(QWidget &card)
{
    answerRequests(Succeeds);
    pickTwo(card);
    press(card, QStringLiteral("确 认"));
}

void focusCard(QWidget &card)
{
    // The window has already given it the focus, but not for the Tab key's reason.
    card.clearFocus();
    card.setFocus(Qt::TabFocusReason);
}

/// Focuses @p control as the Tab key would, so that the focus ring is painted.
void focusByKeyboard(QWidget &control)
{
    control.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    control.setFocus(Qt::TabFocusReason);
}

void focusSecondRow(QWidget &card)
{
    focusByKeyboard(*card.findChildren<TiTleItem *>().at(1));
}

void focusModifyButton(QWidget &card)
{
    changeDuration(card);
    const auto buttons = card.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QStringLiteral("修 改")) {
            focusByKeyboard(*button);
        }
    }
}

} // namespace

QVector<CardScene> cardScenes()
{
    using namespace SceneRecords;
    return {
        {"create", editable, nullptr},
        {"create-changed", editable, changeDuration},
        {"create-unusual", [] { return announce(Create_Success, created({unusualConference()})); }, nullptr},
        {"create-long", [] { return announce(Create_Success, created({longConference()})); }, nullptr},
        {"create-modified", editable, modify<true>},
        {"create-modify-failed", editable, modify<false>},
        {"create-cancelled", editable, cancel<true>},
        {"create-cancel-failed", editable, cancel<false>},
        {"create-duplicate", createDuplicate, nullptr},
        {"create-duplicate-picked", createDuplicate, pickTwo},
        {"create-duplicate-confirmed", createDuplicate, pickTwoAndConfirm<true>},
        {"create-duplicate-failed", createDuplicate, pickTwoAndConfirm<false>},
        {"create-duplicate-long", [] { return announce(Create_Duplicate, createdWith(longDuplicates())); },
         pickAsManyAsPossible},
        {"create-overlap", [] { return announce(Create_TimeOverlap, created({conference(1)})); }, nullptr},
        {"invite-duplicate", inviteDuplicate, nullptr},
        {"invite-duplicate-picked", inviteDuplicate, pickTwo},
        {"invite-duplicate-confirmed", inviteDuplicate, pickTwoAndConfirm<true>},
        {"invite-limit", inviteLimit, nullptr},
        {"invite-limit-picked", inviteLimit, pickAsManyAsPossible},
        {"invite-limit-confirmed", inviteLimit, pickTwoAndConfirm<true>},
        {"join-one", [] { return announce(JoinMy_List, ContactQueryConferenceDetail{{conference(0)}}); },
         nullptr},
        {"join-two", [] { return announce(JoinMy_List, ContactQueryConferenceDetail{conferences(2)}); },
         nullptr},
        {"query-waiting", [] { return found({conference(0)}); }, nullptr},
        {"query-in-progress", [] { return found({conference(1)}); }, nullptr},
        {"query-ended", [] { return found({conference(2)}); }, nullptr},
        {"query-three", [] { return found(conferences(3)); }, nullptr},
        {"query-four", [] { return found(conferences(4)); }, nullptr},
        {"query-thousands", [] { return found(conferences(10000)); }, nullptr},
        {"query-long", [] { return found({longConference()}); }, nullptr},
        {"query-long-list",
         [] {
             return found({longConference(), longConference()});
         },
         nullptr},
        {"query-crowded", [] { return found({crowdedConference(100)}); }, nullptr},
        {"query-empty", [] { return found({}); }, nullptr},
        {"unknown-action", [] { return announce(7, ContactQueryConferenceDetail{}); }, nullptr},
        {"focus-card", [] { return found({conference(0)}); }, focusCard},
        {"focus-row", createDuplicate, focusSecondRow},
        {"focus-button", editable, focusModifyButton},
    };
}
