// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The part of the card that has buttons: what they do, and the cards that have them.

#include "conferencemsgstaticwidget.h"

#include "card/cardtheme.h"
#include "card/conferenceeditor.h"
#include "card/conferencerows.h"
#include "conferencecardinterface.h"
#include "request/requesttexts.h"
#include "titleitem.h"

#include <lumo/lfontsizemanager.h>
#include <lumo/lsuggestbutton.h>

#include <QApplication>
#include <QDebug>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int ButtonSpacing = 10;
constexpr int DividerWidth = 1;
constexpr int SpaceAfterTitle = 10;
constexpr int SpaceAfterCandidate = 2;
constexpr int SpaceBeforeConfirm = 8;
constexpr int ConfirmHeight = 36;

/// Blocks for each request, and no exception comes out of it. The card may be gone afterwards.
ConferenceCardInterface *gateway()
{
    return ConferenceCardInterface::instance();
}

/// The names to say, each once if they are to be @p distinct.
QStringList namesOf(const QVector<UserInfo> &users, bool distinct)
{
    QStringList names;
    for (const UserInfo &user : users) {
        if (!distinct || !names.contains(user.name)) {
            names.append(user.name);
        }
    }
    return names;
}

} // namespace

void ConferenceMsgStaticWidget::createInviteConference(QVector<ContactDetailMsg> &list)
{
    m_conferences = list;
    m_rows.clear();
    if (m_conferences.isEmpty()) {
        return;
    }
    const ContactDetailMsg conference = m_conferences.first();
    setConstConferenceMsg(conference);
    addRow(getConferenceTitleWidget());
    addRow(getConferenceStatusWidget(conference, false));
    addLine();
    addRow(getConferenceBeginTimeWidget(conference, false));
    addRow(getConferenceTimeLengthWidget(conference, false));
    addRow(getConferencePersonNumWidget(conference, false));
    addRow(getConferenceparticipateNameWidget(conference));
    addRow(getCreateConferenceBtn());
    takeOwnSize();
}

void ConferenceMsgStaticWidget::createMultiplePerson(const ContactCreatedConferenceDetail &detail,
                                                     bool isConfirmable)
{
    m_inviteDetail = detail.inviteDetail;
    m_startTime = detail.scheduleTimeMsecs;
    addSelectionTitle();
    addCandidates(m_inviteDetail.duplicateUsers);
    if (isConfirmable) {
        addConfirmButton(&ConferenceMsgStaticWidget::slotMultipleSelectBtn);
    }
    takeOwnSize();
}

void ConferenceMsgStaticWidget::inviteMultiplePerson(const ContactInviteMemberDetail &detail)
{
    m_inviteDetail = detail;
    addSelectionTitle();
    addCandidates(detail.duplicateUsers);
    addConfirmButton(&ConferenceMsgStaticWidget::slotInviteMultipleSelectBtn);
    takeOwnSize();
}

void ConferenceMsgStaticWidget::invitePersonLimit(const ContactInviteMemberDetail &detail)
{
    m_inviteDetail = detail;
    // 0 is also what an answer that does not say comes to; then the application decides.
    if (detail.canInviteNum > 0) {
        m_selectionBudget.limitTo(detail.canInviteNum);
    }
    addSelectionTitle();
    for (const UserInfo &user : detail.normalUsers) {
        addCandidate(user);
    }
    addCandidates(detail.duplicateUsers);
    addConfirmButton(&ConferenceMsgStaticWidget::slotReserverConferencepersonLimit);
    takeOwnSize();
}

QWidget *ConferenceMsgStaticWidget::getCreateConferenceBtn()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ButtonSpacing);

    m_cancelButton = new QPushButton(QStringLiteral("取 消"), row);
    prepareButton(*m_cancelButton);
    connect(m_cancelButton.data(), &QPushButton::clicked, this,
            &ConferenceMsgStaticWidget::slotCancleConference);
    layout->addWidget(m_cancelButton);

    QPushButton *divider = ConferenceRows::line(row);
    divider->setFixedWidth(DividerWidth);
    layout->addWidget(divider);

    m_modifyButton = new LSuggestButton(QStringLiteral("修 改"), row);
    m_modifyButton->setEnabled(false);
    prepareButton(*m_modifyButton);
    connect(m_modifyButton.data(), &QPushButton::clicked, this,
            &ConferenceMsgStaticWidget::slotModifyConference);
    layout->addWidget(m_modifyButton);
    return listed(row);
}

void ConferenceMsgStaticWidget::slotModifyConference()
{
    if (m_conferences.isEmpty()) {
        return;
    }
    m_editor->applyTo(m_conferences.first());
    // What was asked for is shown before the application has answered, and stays when it refuses.
    becomeStatic();
    update();

    const QPointer<ConferenceMsgStaticWidget> alive(this);
    const int code = gateway()->UpdateVideoConference(RequestText::updateConference(m_conferences.first()));
    qDebug() << "create conference code:" << code;
    if (!alive.isNull()) {
        reply(CardReplies::modified(code));
    }
}

void ConferenceMsgStaticWidget::slotCancleConference()
{
    if (m_conferences.isEmpty()) {
        return;
    }
    becomeStatic();

    const QPointer<ConferenceMsgStaticWidget> alive(this);
    // A copy: the card's own may be gone before the request is done with it.
    const QString conferenceId = m_conferences.first().confId;
    const int code = gateway()->deleteVideoConference(conferenceId);
    qDebug() << "Cancle conference code:" << code;
    if (!alive.isNull()) {
        reply(CardReplies::cancelled(code));
    }
    if (!alive.isNull()) {
        setEnabled(false);
    }
}

void ConferenceMsgStaticWidget::slotInviteConference()
{
    const QPointer<ConferenceMsgStaticWidget> alive(this);
    slotModifyConference();
    if (!alive.isNull()) {
        openContactApp();
    }
}

void ConferenceMsgStaticWidget::slotMultipleSelectBtn()
{
    confirm({CardReplies::Purpose::Create, true, false, true});
}

void ConferenceMsgStaticWidget::slotInviteMultipleSelectBtn()
{
    confirm({CardReplies::Purpose::Invite, true, false, false});
}

void ConferenceMsgStaticWidget::slotReserverConferencepersonLimit()
{
    confirm({CardReplies::Purpose::InviteWithinLimit, false, true, false});
}

void ConferenceMsgStaticWidget::becomeStatic()
{
    while (!m_rows.isEmpty()) {
        removeLastRow();
    }
    singleInit(m_conferences);
}

void ConferenceMsgStaticWidget::removeLastRow()
{
    QWidget *row = m_rows.takeLast();
    const QWidget *focused = QApplication::focusWidget();
    if (focused != nullptr && (focused == row || row->isAncestorOf(focused))) {
        // Hiding the row would hand the focus on as if Tab had been pressed, and frame whatever comes next.
        setFocus(m_controlFocusReason == Qt::MouseFocusReason ? Qt::OtherFocusReason : Qt::TabFocusReason);
    }
    row->hide();
    // It lives until the event loop has its turn, and must not ask once more.
    row->disconnect(this);
    const auto buttons = row->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        button->disconnect(this);
    }
    m_layout->removeWidget(row);
    row->deleteLater();
}

void ConferenceMsgStaticWidget::prepareButton(QPushButton &button)
{
    button.setFont(LFontSizeManager::instance()->get(LFontSizeManager::T6, button.font()));
    setWidgetColor(&button, CardTheme::ValueAlpha);
    // In a dialog the button would react to Return itself, in addition to the card's event filter.
    button.setAutoDefault(false);
    // A click on a button that is disabled is not one on the card behind it.
    button.setAttribute(Qt::WA_NoMousePropagation);
    button.installEventFilter(this);
}

void ConferenceMsgStaticWidget::addSelectionTitle()
{
    addRow(getConferenceTitleWidget());
    m_layout->addSpacing(SpaceAfterTitle);
}

void ConferenceMsgStaticWidget::addCandidates(const QVector<DuplicateUsers> &groups)
{
    for (const DuplicateUsers &group : groups) {
        for (const UserInfo &user : group.users) {
            addCandidate(user);
        }
    }
}

void ConferenceMsgStaticWidget::addCandidate(const UserInfo &user)
{
    auto *row = new TiTleItem(user.name, this);
    row->insertConferenceMsg(user);
    addRow(listed(row));
    m_layout->addSpacing(SpaceAfterCandidate);
}

void ConferenceMsgStaticWidget::addConfirmButton(void (ConferenceMsgStaticWidget::*slot)())
{
    m_layout->addSpacing(SpaceBeforeConfirm);
    m_confirmButton = new QPushButton(QStringLiteral("确 认"), this);
    m_confirmButton->setFixedHeight(ConfirmHeight);
    prepareButton(*m_confirmButton);
    connect(m_confirmButton.data(), &QPushButton::clicked, this, slot);
    addRow(listed(m_confirmButton));
}

QVector<UserInfo> ConferenceMsgStaticWidget::pickedUsers() const
{
    QVector<UserInfo> users;
    for (const QWidget *row : m_rows) {
        const auto *candidate = qobject_cast<const TiTleItem *>(row);
        if (candidate != nullptr && candidate->isSelected()) {
            users.append(candidate->getUserInfo());
        }
    }
    return users;
}

void ConferenceMsgStaticWidget::confirm(const Confirmation &confirmation)
{
    // A library that lets events through while it waits could bring a second click.
    if (std::exchange(m_isConfirming, true)) {
        return;
    }
    QVector<UserInfo> members = pickedUsers();
    if (confirmation.withResolvedUsers) {
        members += m_inviteDetail.normalUsers;
    }

    const QPointer<ConferenceMsgStaticWidget> alive(this);
    // A copy: the card's own may be gone before the request is done with it.
    const qint64 startTime = m_startTime;
    const int code =
        confirmation.purpose == CardReplies::Purpose::Create
            ? gateway()->createVideoConference(
                  RequestText::createConference(RequestText::membersPicked(members), startTime), startTime)
            : gateway()->inviteVideoConference(
                  RequestText::inviteMembers(RequestText::membersPicked(members)));
    if (alive.isNull()) {
        return;
    }
    m_isConfirming = false;
    if (!m_confirmButton.isNull()) {
        m_confirmButton.clear();
        removeLastRow();
    }
    takeOwnSize();
    reply(CardReplies::confirmed(confirmation.purpose, namesOf(members, confirmation.distinctNames), code));
    if (!alive.isNull() && confirmation.disablesCard) {
        setEnabled(false);
    }
}

void ConferenceMsgStaticWidget::reply(const QString &text)
{
    // The code says that there is an answer; how the request ended is in the text.
    Q_EMIT signalSendShowMessgae(Reply(0, text, Reply::Texts));
}
