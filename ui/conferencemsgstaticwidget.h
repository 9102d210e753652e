// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "card/cardreplies.h"
#include "card/selectionbudget.h"
#include "conferencerecords.h"

#include <speakmate/reply.h>

#include <QPointer>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE
class ConferenceEditor;
class LSuggestButton;

/**
 * The card under an answer. One of the builders is to be called, once; without it, or with nothing to show,
 * the card is empty. A click on the card, and Return or Space while it has the focus, open the contacts
 * application.
 *
 * Buttons block the GUI thread until the contacts application has answered, and then emit
 * signalSendShowMessgae(). Whoever hears of that may delete the card, at any moment.
 *
 * Lives on the GUI thread. Made without a parent and handed to the host, which owns it from then on.
 */
class ConferenceMsgStaticWidget : public QWidget
{
    Q_OBJECT

public:
    enum Mode { List = 0, Single = 1 };

    explicit ConferenceMsgStaticWidget(QWidget *parent = nullptr);

    // Builders.

    /// The first conference of @p list, to read.
    void singleInit(const QVector<ContactDetailMsg> &list);
    /// The first three conferences of @p list, to read, and the way to the rest.
    void multipleInit(const QVector<ContactDetailMsg> &list);
    /// The first conference of @p list, to be changed or cancelled. No reference to the list is kept.
    void createInviteConference(QVector<ContactDetailMsg> &list);
    /// The people who may be meant, for a conference that is to be created. Without @p isConfirmable they can
    /// only be looked at.
    void createMultiplePerson(const ContactCreatedConferenceDetail &detail, bool isConfirmable);
    /// The people who may be meant, for an invitation.
    void inviteMultiplePerson(const ContactInviteMemberDetail &detail);
    /// The people of an invitation that was too large, for a smaller one.
    void invitePersonLimit(const ContactInviteMemberDetail &detail);

    // Rows. Each belongs to the card and to its list of rows; adding it to a layout is the caller's part. In
    // a static row values are shown, otherwise edited.

    QWidget *getConferenceTitleWidget();
    QWidget *getConferenceStatusWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceNumberWidget(const ContactDetailMsg &conference);
    QWidget *getConferenceBeginTimeWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceTimeLengthWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferencePersonNumWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceparticipateNameWidget(const ContactDetailMsg &conference);
    /// The row with the buttons to cancel and to change the conference.
    QWidget *getCreateConferenceBtn();

    /// Takes the values of @p conference as those that edits are compared with.
    void setConstConferenceMsg(const ContactDetailMsg &conference);
    /// Whether the edited values differ from them.
    bool getConferenceMsgState() const;

    /// The theme's text colour on @p widget, with @p alpha from 0 to 255; it follows the theme from then on.
    void setWidgetColor(QWidget *widget, int alpha);
    /// Brings up the contacts application with its list of conferences.
    void openContactApp();

    Mode mode() const { return m_mode; }
    /// How many more of the card's people may be picked.
    SelectionBudget &selectionBudget() { return m_selectionBudget; }

public Q_SLOTS:
    void slotModifyConference();
    void slotCancleConference();
    /// Changes the conference and goes on in the contacts application. No button of the card does this.
    void slotInviteConference();
    void slotMultipleSelectBtn();
    void slotInviteMultipleSelectBtn();
    void slotReserverConferencepersonLimit();

Q_SIGNALS:
    /// What a button has done, to be shown and spoken. The spelling is the interface's.
    void signalSendShowMessgae(Reply reply);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// What becomes of a card when its people are confirmed.
    struct Confirmation
    {
        CardReplies::Purpose purpose;
        bool withResolvedUsers; ///< those who were found at once join those who were picked
        bool distinctNames;     ///< in the reply
        bool disablesCard;
    };

    QWidget *listed(QWidget *row);
    void addRow(QWidget *row);
    void addLine();
    void takeOwnSize();
    QWidget *conferenceItem(const ContactDetailMsg &conference);
    QWidget *footer(int count);
    void becomeStatic();
    void removeLastRow();

    void prepareButton(QPushButton &button);
    void addSelectionTitle();
    void addCandidates(const QVector<DuplicateUsers> &groups);
    void addCandidate(const UserInfo &user);
    void addConfirmButton(void (ConferenceMsgStaticWidget::*slot)());
    [[nodiscard]] QVector<UserInfo> pickedUsers() const;

    void activate(QObject *control);
    void confirm(const Confirmation &confirmation);
    void reply(const QString &text);
    void updateModifyButton();
    void followTheme();

    QVBoxLayout *m_layout;
    ConferenceEditor *m_editor;
    Mode m_mode = List;
    QVector<QWidget *> m_rows;
    bool m_focusedByKeyboard = false;
    bool m_ignoresNextRelease = false; ///< the key was pressed on a button that is gone by now
    Qt::FocusReason m_controlFocusReason = Qt::OtherFocusReason;
    QPointer<QPushButton> m_cancelButton;
    QPointer<LSuggestButton> m_modifyButton;
    QPointer<QPushButton> m_confirmButton;
    QPointer<QPushButton> m_footerButton;
    SelectionBudget m_selectionBudget;
    QVector<ContactDetailMsg> m_conferences;
    ContactInviteMemberDetail m_inviteDetail;
    qint64 m_startTime = 0; ///< of the conference to create, milliseconds since the epoch, 0 for now
    bool m_isConfirming = false;
};
