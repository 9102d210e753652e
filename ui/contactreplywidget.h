// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <speakmate/reply.h>

#include <QObject>

class ConferenceCardInterface;
class ConferenceMsgStaticWidget;

/**
 * Turns the outcome of a request into a card: listens to the gateway, builds the card inside its emission and
 * attaches it to the reply. Lives on the GUI thread as long as the plugin. It does not own the cards; the
 * host shows and deletes them. The order of the members is fixed.
 */
class ContactReplyWidget : public QObject
{
    Q_OBJECT

public:
    explicit ContactReplyWidget(QObject *parent = nullptr);

    /// Stops building cards. Replies of cards that are still shown are passed on as before.
    void stopListening();

public Q_SLOTS:
    /// @p actionType is a SignalActionType; @p data holds the record that belongs to it.
    void slotNoticeAction(const int &actionType, const QVariant &data, Reply *reply);

Q_SIGNALS:
    /// A reply that a card gave later, from one of its buttons. The spelling is the interface's.
    void signaleSendShowMessage(Reply reply);

private:
    void build(int actionType, const QVariant &data);

    /// Null once the gateway is gone, which at the end of the process may be earlier than the plugin.
    ConferenceCardInterface *m_interface;
    /// The latest card, used only while it is built. It may since have been deleted.
    ConferenceMsgStaticWidget *m_card = nullptr;
    ContactCreatedConferenceDetail m_created;
};
