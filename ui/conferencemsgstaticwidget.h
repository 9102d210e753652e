// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "card/cardinput.h"
#include "card/cardrowlist.h"
#include "card/selectionbudget.h"
#include "conferencerecords.h"

#include <speakmate/reply.h>

#include <QWidget>

#include <functional>
#include <memory>

class CandidateList;
class ConferenceEditor;
struct Confirmation;

/**
 * The card under an answer. Call exactly one builder, once. Until then, or given nothing to show, the card is
 * empty. A click on the card, and Return or Space while it has the focus, open the contacts application.
 *
 * The parts of the three kinds of card live in card/: rows to read, the editor of a conference, and a list of
 * candidates. This class puts them together and passes on what happens.
 *
 * Buttons block the GUI thread until the contacts application has answered, and then emit
 * signalSendShowMessgae(). Any receiver may delete the card, at any moment.
 *
 * Lives on the GUI thread. Made without a parent and handed to the host, which owns it from then on.
 */
class ConferenceMsgStaticWidget : public QWidget
{
    Q_OBJECT

public:
    enum Mode { List = 0, Single = 1 };

    explicit ConferenceMsgStaticWidget(QWidget *parent = nullptr);
    ~ConferenceMsgStaticWidget() override;

    // Builders.

    /// Shows the first conference of @p list, read-only.
    void singleInit(const QVector<ContactDetailMsg> &list);
    /// Shows the first three conferences of @p list, read-only, and a link to the rest.
    void multipleInit(const QVector<ContactDetailMsg> &list);
    /// Shows the first conference of @p list for editing or cancelling. Keeps no reference to the list.
    void createInviteConference(QVector<ContactDetailMsg> &list);
    /// Offers the people who may be meant, for a new conference. Without @p isConfirmable there is no button.
    void createMultiplePerson(const ContactCreatedConferenceDetail &detail, bool isConfirmable);
    /// Offers the people who may be meant, for an invitation.
    void inviteMultiplePerson(const ContactInviteMemberDetail &detail);
    /// Offers the people of an invitation that was too large, for a smaller one.
    void invitePersonLimit(const ContactInviteMemberDetail &detail);

    // Rows. Each belongs to the card and is noted in its list of rows; the caller adds it to a layout. A
    // static row shows its value, any other edits it.

    QWidget *getConferenceTitleWidget();
    QWidget *getConferenceStatusWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceNumberWidget(const ContactDetailMsg &conference);
    QWidget *getConferenceBeginTimeWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceTimeLengthWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferencePersonNumWidget(const ContactDetailMsg &conference, bool isStatic);
    QWidget *getConferenceparticipateNameWidget(const ContactDetailMsg &conference);
    /// The row with the buttons to cancel and to modify the conference.
    QWidget *getCreateConferenceBtn();

    /// Sets @p conference as the baseline that edits are compared against.
    void setConstConferenceMsg(const ContactDetailMsg &conference);
    /// Whether the edited values differ from the baseline.
    bool getConferenceMsgState() const;

    /// Gives @p widget the theme's text colour with @p alpha (0 to 255). On the card it follows the theme.
    void setWidgetColor(QWidget *widget, int alpha);
    /// Brings up the contacts application with its list of conferences.
    void openContactApp();

    Mode mode() const { return m_mode; }
    /// How many more of the card's people may be picked.
    SelectionBudget &selectionBudget();

public Q_SLOTS:
    void slotModifyConference();
    void slotCancleConference();
    /// Modifies the conference and opens the contacts application. No button of the card is connected to it.
    void slotInviteConference();
    void slotMultipleSelectBtn();
    void slotInviteMultipleSelectBtn();
    void slotReserverConferencepersonLimit();

Q_SIGNALS:
    /// The outcome of a button, to be shown and spoken. The spelling is the interface's.
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
    void addRow(QWidget *row) { m_rows.add(row); }
    void addConfirmButton(void (ConferenceMsgStaticWidget::*slot)());
    void becomeStatic();

    void activate(QObject *control);
    void confirm(const Confirmation &confirmation);
    /// Sends what a button asks for and replies, unless the card is gone by then. It may be gone afterwards,
    /// too.
    void sendAndReply(const std::function<int()> &send, QString (*words)(int code));
    void reply(const QString &text);

    CardRowList m_rows;
    CardInput m_input;
    Mode m_mode = List;
    ConferenceEditor *m_editor;
    std::unique_ptr<CandidateList> m_candidates;
};
