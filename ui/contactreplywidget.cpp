// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactreplywidget.h"

#include "conferencecardinterface.h"
#include "conferencemsgstaticwidget.h"
#include "defaultlog.h"
#include "signalactiontype.h"

#include <array>

namespace {

void buildCandidatesToCreate(ConferenceMsgStaticWidget &card, const QVariant &data)
{
    card.createMultiplePerson(data.value<ContactCreatedConferenceDetail>(), true);
}

void buildOverlap(ConferenceMsgStaticWidget &card, const QVariant &data)
{
    card.singleInit(data.value<ContactCreatedConferenceDetail>().conferences);
}

void buildCandidatesToInvite(ConferenceMsgStaticWidget &card, const QVariant &data)
{
    card.inviteMultiplePerson(data.value<ContactInviteMemberDetail>());
}

void buildCandidatesWithinLimit(ConferenceMsgStaticWidget &card, const QVariant &data)
{
    card.invitePersonLimit(data.value<ContactInviteMemberDetail>());
}

void buildFound(ConferenceMsgStaticWidget &card, const QVariant &data)
{
    const QVector<ContactDetailMsg> found = data.value<ContactQueryConferenceDetail>().conferences;
    if (found.size() > 1) {
        card.multipleInit(found);
    } else {
        card.singleInit(found);
    }
}

/// From Create_Duplicate on, in the order of SignalActionType. The record of Create_Success stays with the
/// dispatcher, which builds that card itself.
constexpr std::array Builders = {
    buildCandidatesToCreate,    buildOverlap, buildCandidatesToInvite,
    buildCandidatesWithinLimit, buildFound,   buildFound,
};
static_assert(Create_Duplicate == Create_Success + 1 && Builders.size() == Query_List);

} // namespace

ContactReplyWidget::ContactReplyWidget(QObject *parent)
    : QObject(parent)
    , m_interface(ConferenceCardInterface::instance())
{
    // So that a card on another thread could answer as well.
    qRegisterMetaType<Reply>();
    connect(m_interface, &ConferenceCardInterface::sentActionSignals, this,
            &ContactReplyWidget::slotNoticeAction, Qt::DirectConnection);
    connect(
        m_interface, &QObject::destroyed, this, [this] { m_interface = nullptr; }, Qt::DirectConnection);
}

void ContactReplyWidget::stopListening()
{
    if (m_interface != nullptr) {
        disconnect(m_interface, &ConferenceCardInterface::sentActionSignals, this, nullptr);
    }
}

void ContactReplyWidget::slotNoticeAction(const int &actionType, const QVariant &data, Reply *reply)
{
    if (reply == nullptr) {
        return;
    }
    reply->type |= Reply::Card;
    reply->widget = nullptr;
    // The card's owner is the program that shows the reply.
    m_card = new ConferenceMsgStaticWidget;
    connect(m_card, &ConferenceMsgStaticWidget::signalSendShowMessgae, this,
            &ContactReplyWidget::signaleSendShowMessage);
    if (actionType == Invite_ExceedLimit) {
        const auto detail = data.value<ContactInviteMemberDetail>();
        qCDebug(defaultLog) << "+++++Invite_ExceedLimit:" << detail.canInviteNum << detail.normalUsers.size()
                            << detail.notExistUsers;
    }
    build(actionType, data);
    reply->widget = m_card;
}

void ContactReplyWidget::build(int actionType, const QVariant &data)
{
    if (actionType == Create_Success) {
        m_created = data.value<ContactCreatedConferenceDetail>();
        m_card->createInviteConference(m_created.conferences);
    } else if (actionType > Create_Success && actionType <= Query_List) {
        Builders.at(static_cast<std::size_t>(actionType - Create_Duplicate))(*m_card, data);
    }
    // Any other action gets an empty card.
}
