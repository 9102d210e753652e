// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"

#include "card/candidatelist.h"
#include "card/cardaccessible.h"
#include "card/cardfooter.h"
#include "card/cardpanel.h"
#include "card/cardreplies.h"
#include "card/cardtheme.h"
#include "card/cardwait.h"
#include "card/conferenceeditor.h"
#include "card/conferencerows.h"
#include "card/confirmation.h"
#include "conferencecardinterface.h"
#include "defaultlog.h"

#include <QComboBox>
#include <QPointer>
#include <QPushButton>

namespace {
constexpr int ShownConferences = 3;
} // namespace

ConferenceMsgStaticWidget::ConferenceMsgStaticWidget(QWidget *parent)
    : QWidget(parent)
    , m_rows(this)
    , m_editor(new ConferenceEditor(this))
    , m_candidates(std::make_unique<CandidateList>(this, m_rows))
{
    CardAccessible::registerFactory();
    setMinimumHeight(0);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("联系人"));
    setAccessibleDescription(QStringLiteral("打开联系人应用"));
    CardTheme::follow(this, [this] { CardTheme::refreshTexts(*this); });
}

ConferenceMsgStaticWidget::~ConferenceMsgStaticWidget() = default;

void ConferenceMsgStaticWidget::singleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty()) {
        return;
    }
    m_rows.clear();
    m_mode = Single;
    const ContactDetailMsg &conference = list.first();
    addRow(getConferenceTitleWidget());
    addRow(getConferenceStatusWidget(conference, true));
    addRow(m_rows.listed(ConferenceRows::separator(this)));
    addRow(getConferenceNumberWidget(conference));
    addRow(getConferenceBeginTimeWidget(conference, true));
    addRow(getConferenceTimeLengthWidget(conference, true));
    addRow(getConferencePersonNumWidget(conference, true));
    addRow(getConferenceparticipateNameWidget(conference));
    m_rows.adjustSize();
}

void ConferenceMsgStaticWidget::multipleInit(const QVector<ContactDetailMsg> &list)
{
    if (list.isEmpty()) {
        return;
    }
    m_mode = List;
    addRow(getConferenceTitleWidget());
    const QVector<ContactDetailMsg> shown = list.mid(0, ShownConferences);
    for (const ContactDetailMsg &conference : shown) {
        QWidget *item = ConferenceRows::item(this);
        m_rows.addInside(*item, ConferenceRows::summary(conference, item));
        addRow(item);
    }
    if (list.size() > ShownConferences) {
        auto *footer = new CardFooter(list.size(), this);
        footer->installEventFilter(this);
        connect(footer, &QPushButton::clicked, this, &ConferenceMsgStaticWidget::openContactApp);
        addRow(footer);
    }
    m_rows.adjustSize();
}

void ConferenceMsgStaticWidget::createInviteConference(QVector<ContactDetailMsg> &list)
{
    m_editor->setConferences(list);
    m_rows.clear();
    if (list.isEmpty()) {
        return;
    }
    const ContactDetailMsg conference = list.first();
    setConstConferenceMsg(conference);
    addRow(getConferenceTitleWidget());
    addRow(getConferenceStatusWidget(conference, false));
    addRow(m_rows.listed(ConferenceRows::separator(this)));
    addRow(getConferenceBeginTimeWidget(conference, false));
    addRow(getConferenceTimeLengthWidget(conference, false));
    addRow(getConferencePersonNumWidget(conference, false));
    addRow(getConferenceparticipateNameWidget(conference));
    addRow(getCreateConferenceBtn());
    m_rows.adjustSize();
}

void ConferenceMsgStaticWidget::createMultiplePerson(const ContactCreatedConferenceDetail &detail,
                                                     bool isConfirmable)
{
    m_candidates->setResolvedUsers(detail.inviteDetail.normalUsers);
    m_candidates->setStartTime(detail.scheduleTimeMsecs);
    m_candidates->addTitle(getConferenceTitleWidget());
    m_candidates->addRows(detail.inviteDetail.duplicateUsers);
    if (isConfirmable) {
        addConfirmButton(&ConferenceMsgStaticWidget::slotMultipleSelectBtn);
    }
    m_rows.adjustSize();
}

void ConferenceMsgStaticWidget::inviteMultiplePerson(const ContactInviteMemberDetail &detail)
{
    m_candidates->setResolvedUsers(detail.normalUsers);
    m_candidates->addTitle(getConferenceTitleWidget());
    m_candidates->addRows(detail.duplicateUsers);
    addConfirmButton(&ConferenceMsgStaticWidget::slotInviteMultipleSelectBtn);
    m_rows.adjustSize();
}

void ConferenceMsgStaticWidget::invitePersonLimit(const ContactInviteMemberDetail &detail)
{
    m_candidates->setResolvedUsers(detail.normalUsers);
    // 0 is also what an answer without a number reads as; then the application decides.
    if (detail.canInviteNum > 0) {
        m_candidates->budget().limitTo(detail.canInviteNum);
    }
    m_candidates->addTitle(getConferenceTitleWidget());
    m_candidates->addRows(detail.normalUsers);
    m_candidates->addRows(detail.duplicateUsers);
    addConfirmButton(&ConferenceMsgStaticWidget::slotReserverConferencepersonLimit);
    m_rows.adjustSize();
}

QWidget *ConferenceMsgStaticWidget::getConferenceTitleWidget()
{
    return m_rows.listed(ConferenceRows::title(this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceStatusWidget(const ContactDetailMsg &conference,
                                                              bool isStatic)
{
    return m_rows.listed(ConferenceRows::status(conference, isStatic, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceNumberWidget(const ContactDetailMsg &conference)
{
    return m_rows.listed(ConferenceRows::number(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceBeginTimeWidget(const ContactDetailMsg &conference,
                                                                 bool isStatic)
{
    return m_rows.listed(isStatic ? ConferenceRows::beginTime(conference, this)
                                  : m_editor->beginTime(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceTimeLengthWidget(const ContactDetailMsg &conference,
                                                                  bool isStatic)
{
    return m_rows.listed(isStatic ? ConferenceRows::timeLength(conference, this)
                                  : m_editor->timeLength(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferencePersonNumWidget(const ContactDetailMsg &conference,
                                                                 bool isStatic)
{
    return m_rows.listed(isStatic ? ConferenceRows::personNum(conference, this)
                                  : m_editor->personNum(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getConferenceparticipateNameWidget(const ContactDetailMsg &conference)
{
    return m_rows.listed(ConferenceRows::participants(conference, this));
}

QWidget *ConferenceMsgStaticWidget::getCreateConferenceBtn()
{
    QWidget *row = m_rows.listed(m_editor->buttons(this));
    connect(m_editor->cancelButton(), &QPushButton::clicked, this,
            &ConferenceMsgStaticWidget::slotCancleConference);
    connect(m_editor->modifyButton(), &QPushButton::clicked, this,
            &ConferenceMsgStaticWidget::slotModifyConference);
    return row;
}

void ConferenceMsgStaticWidget::setConstConferenceMsg(const ContactDetailMsg &conference)
{
    m_editor->setReference(conference);
}

bool ConferenceMsgStaticWidget::getConferenceMsgState() const
{
    return m_editor->isChanged();
}

void ConferenceMsgStaticWidget::setWidgetColor(QWidget *widget, int alpha)
{
    CardTheme::setText(*widget, alpha);
}

void ConferenceMsgStaticWidget::openContactApp()
{
    const CardWait wait(*this);
    // The application tells the user itself when it cannot show its list.
    ConferenceCardInterface::instance()->openConferenceList();
}

SelectionBudget &ConferenceMsgStaticWidget::selectionBudget()
{
    return m_candidates->budget();
}

void ConferenceMsgStaticWidget::slotModifyConference()
{
    if (m_editor->conferences().isEmpty()) {
        return;
    }
    m_editor->apply();
    // What was asked for is shown before the application has answered, and stays when it refuses.
    becomeStatic();
    sendAndReply([this] { return m_editor->sendChange(); }, CardReplies::modified);
}

void ConferenceMsgStaticWidget::slotCancleConference()
{
    if (m_editor->conferences().isEmpty()) {
        return;
    }
    becomeStatic();
    const QPointer<ConferenceMsgStaticWidget> alive(this);
    sendAndReply([this] { return m_editor->sendCancellation(); }, CardReplies::cancelled);
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
    confirm(Confirmation::create());
}

void ConferenceMsgStaticWidget::slotInviteMultipleSelectBtn()
{
    confirm(Confirmation::invite());
}

void ConferenceMsgStaticWidget::slotReserverConferencepersonLimit()
{
    confirm(Confirmation::inviteWithinLimit());
}

bool ConferenceMsgStaticWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_input.controlFocused(static_cast<const QFocusEvent &>(*event));
    }
    const QPointer<QObject> alive(watched);
    if (CardInput::isPress(*event)) {
        activate(watched);
    }
    // Where a receiver of the click deleted the card, there is nobody left to give the event to.
    return alive.isNull() || QWidget::eventFilter(watched, event);
}

void ConferenceMsgStaticWidget::focusInEvent(QFocusEvent *event)
{
    qCDebug(defaultLog) << "focusInEvent";
    if (m_input.focusIn(*event)) {
        update();
    }
}

void ConferenceMsgStaticWidget::focusOutEvent(QFocusEvent * /*event*/)
{
    m_input.focusOut();
    update();
}

void ConferenceMsgStaticWidget::keyPressEvent(QKeyEvent *event)
{
    // Acted on when the key is let go. Not passed on either: the host's default button is not meant.
    if (!hasFocus() || !CardInput::isActivationKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void ConferenceMsgStaticWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (!hasFocus() || !CardInput::isActivationKey(*event)) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (!event->isAutoRepeat() && isEnabled() && m_input.takeRelease()) {
        openContactApp();
    }
}

void ConferenceMsgStaticWidget::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (isEnabled()) {
        openContactApp();
    }
}

void ConferenceMsgStaticWidget::paintEvent(QPaintEvent * /*event*/)
{
    CardPanel::paint(*this, m_input.isFramed() ? CardPanel::Frame::Focus : CardPanel::Frame::None);
}

void ConferenceMsgStaticWidget::resizeEvent(QResizeEvent * /*event*/)
{
    // The layout does it all.
}

void ConferenceMsgStaticWidget::addConfirmButton(void (ConferenceMsgStaticWidget::*slot)())
{
    connect(m_candidates->addConfirmButton(), &QPushButton::clicked, this, slot);
}

void ConferenceMsgStaticWidget::becomeStatic()
{
    m_rows.removeAll(m_input.reasonToInheritFocus());
    singleInit(m_editor->conferences());
}

void ConferenceMsgStaticWidget::activate(QObject *control)
{
    if (auto *button = qobject_cast<QPushButton *>(control)) {
        const bool isAction = m_editor->owns(button) || button == m_candidates->confirmButton() ||
                              qobject_cast<const CardFooter *>(button) != nullptr;
        if (!isAction || !button->isEnabled()) {
            return;
        }
        const QPointer<ConferenceMsgStaticWidget> alive(this);
        Q_EMIT button->clicked();
        // The button may be gone and the focus with the card, which then hears of the key's release.
        if (!alive.isNull()) {
            m_input.keyPressedButton(hasFocus());
        }
        return;
    }
    auto *box = qobject_cast<QComboBox *>(control);
    if (box != nullptr && ConferenceEditor::isListBox(*box)) {
        box->showPopup();
    }
}

void ConferenceMsgStaticWidget::confirm(const Confirmation &confirmation)
{
    if (!m_candidates->startConfirming()) {
        return;
    }
    const QVector<UserInfo> members = m_candidates->members(confirmation);

    const QPointer<ConferenceMsgStaticWidget> alive(this);
    const int code = CardWait::during(*this, m_candidates->confirmButton(),
                                      [&] { return confirmation.send(members, m_candidates->startTime()); });
    if (alive.isNull()) {
        return;
    }
    m_candidates->endConfirming(m_input.reasonToInheritFocus());
    m_rows.adjustSize();
    reply(confirmation.reply(members, code));
    if (!alive.isNull() && confirmation.cardAfterwards == Confirmation::CardAfterwards::Disabled) {
        setEnabled(false);
    }
}

void ConferenceMsgStaticWidget::sendAndReply(const std::function<int()> &send, QString (*words)(int code))
{
    const QPointer<ConferenceMsgStaticWidget> alive(this);
    const int code = CardWait::during(*this, nullptr, send);
    if (!alive.isNull()) {
        reply(words(code));
    }
}

void ConferenceMsgStaticWidget::reply(const QString &text)
{
    // The code says that there is an answer; how the request ended is in the text.
    Q_EMIT signalSendShowMessgae(Reply(0, text, Reply::Texts));
}
