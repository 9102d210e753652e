// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencedetail.h"

#include "window/bookaction.h"
#include "window/calendardialog.h"
#include "window/celldelegate.h"
#include "window/conferencetimeedit.h"
#include "window/passcodefield.h"
#include "window/resultlabel.h"

#include "actionnames.h"
#include "book/contactsbook.h"
#include "core/conferencerules.h"
#include "core/displaytext.h"
#include "core/jsonkeys.h"
#include "core/outcome.h"
#include "core/outcometext.h"

#include <lumo/lsuggestbutton.h>
#include <lumo/plaintooltip.h>

#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHeaderView>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

constexpr int LeastWidth = 480;
constexpr int LeastSeatsHeight = 180;

QString stateText(const Participant &seat, const QString &hostId)
{
    const QString state = [&seat] {
        switch (seat.attendance) {
        case Attendance::Joined:
            return ConferenceDetail::tr("Joined");
        case Attendance::Left:
            return ConferenceDetail::tr("Left");
        case Attendance::Invited:
            break;
        }
        return ConferenceDetail::tr("Not joined");
    }();
    return seat.userId == hostId ? ConferenceDetail::tr("%1 (host)").arg(state) : state;
}

int minutesOf(const Conference &conference)
{
    return static_cast<int>(conference.durationMsecs / MinuteMsecs);
}

QLabel *makeLabel()
{
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

ConferenceDetail::ConferenceDetail(ContactsBook &book, const Conference &conference, QWidget *parent)
    : FormDialog(tr("Conference Details"), LeastWidth, parent)
    , m_book(book)
    , m_conference(conference)
    , m_title(new QLineEdit)
    , m_number(makeLabel())
    , m_host(makeLabel())
    , m_start(makeConferenceTimeEdit())
    , m_minutes(new QSpinBox)
    , m_limit(new QSpinBox)
    , m_passcode(new PasscodeField)
    , m_passcodeNote(new QLabel)
    , m_seats(new QTreeWidget)
    , m_save(new LSuggestButton(tr("&Save")))
    , m_export(new QPushButton(tr("E&xport Calendar File…")))
{
    arrange();
    reload();
    m_openedFor = m_viewer.userId;
    showValues();
    showEditable(m_conference);
    connect(&m_book, &ContactsBook::changedLately, this, &ConferenceDetail::reload);
}

void ConferenceDetail::arrange()
{
    m_seats->setObjectName(QStringLiteral("seats"));
    m_seats->setAccessibleName(tr("Participants"));
    m_seats->setHeaderLabels({tr("Participant"), tr("Account"), tr("State")});
    m_seats->setRootIsDecorated(false);
    m_seats->setItemDelegate(new CellDelegate(m_seats));
    m_seats->setMinimumHeight(LeastSeatsHeight);
    m_seats->setTextElideMode(Qt::ElideRight);
    m_seats->header()->setStretchLastSection(false);
    m_seats->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_seats->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    result()->setObjectName(QStringLiteral("detailResult"));
    m_save->setObjectName(QStringLiteral("save"));
    m_export->setObjectName(QStringLiteral("export"));
    m_export->setAccessibleName(tr("Export calendar file"));
    addFields();
    addBelowForm(m_seats);
    addButtons(m_save, tr("Close"), m_export);
    connect(m_export, &QPushButton::clicked, this, &ConferenceDetail::exportCalendar);
    connect(m_title, &QLineEdit::textChanged, this, &ConferenceDetail::showWhetherChanged);
    connect(m_start, &QDateTimeEdit::dateTimeChanged, this, &ConferenceDetail::showWhetherChanged);
    for (QSpinBox *box : {m_minutes, m_limit}) {
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
                &ConferenceDetail::showWhetherChanged);
    }
    connect(m_passcode, &PasscodeField::edited, this, &ConferenceDetail::showWhetherChanged);
}

void ConferenceDetail::addFields()
{
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setMaxLength(100);
    m_number->setObjectName(QStringLiteral("number"));
    m_host->setWordWrap(true);
    m_start->setObjectName(QStringLiteral("start"));
    m_minutes->setObjectName(QStringLiteral("minutes"));
    m_minutes->setSuffix(tr(" min"));
    m_limit->setObjectName(QStringLiteral("limit"));
    m_limit->setSuffix(tr(" people"));
    m_passcodeNote->setObjectName(QStringLiteral("passcodeNote"));
    auto *passcode = new QVBoxLayout;
    passcode->addWidget(m_passcode);
    passcode->addWidget(m_passcodeNote);
    form()->addRow(tr("T&itle"), m_title);
    form()->addRow(tr("Number"), m_number);
    form()->addRow(tr("Host"), m_host);
    form()->addRow(tr("&Begins"), m_start);
    form()->addRow(tr("&Duration"), m_minutes);
    form()->addRow(tr("&Limit"), m_limit);
    form()->addRow(tr("Passcode"), passcode);
}

void ConferenceDetail::reload()
{
    std::optional<Conference> conference;
    QVector<Participant> seats;
    try {
        m_viewer = Viewer::of(m_book);
        const auto kind = m_book.session().user().value_or(Person()).kind;
        m_mostMinutes = static_cast<int>(ConferenceRules::forKind(kind).maxDurationMsecs / MinuteMsecs);
        m_mostPeople = ConferenceRules::forKind(kind).maxParticipantLimit;
        conference = m_book.conferences().byConfId(m_conference.confId, m_viewer.userId);
        if (conference) {
            seats = m_book.conferences().seats(conference->id, m_viewer.userId);
        }
    } catch (const std::exception &error) {
        qWarning("A conference cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        return;
    }
    if (m_openedFor && *m_openedFor != m_viewer.userId) {
        // What it shows is the former user's, the passcode too.
        Q_EMIT told(tr("Somebody else has logged in, so the details were closed."));
        close();
        return;
    }
    if (!conference) {
        Q_EMIT told(tr("The conference no longer exists."));
        close();
        return;
    }
    showSeats(seats);
    showEditable(*conference);
}

void ConferenceDetail::showSeats(const QVector<Participant> &seats)
{
    m_seats->clear();
    for (const Participant &seat : seats) {
        const QString name = cleanDisplayText(seat.name);
        auto *item = new QTreeWidgetItem(m_seats, {name, seat.account, stateText(seat, m_conference.hostId)});
        item->setToolTip(0, plainToolTip(name));
        if (seat.userId == m_conference.hostId) {
            m_host->setText(name);
        }
    }
}

void ConferenceDetail::showValues()
{
    m_title->setText(cleanDisplayText(m_conference.title));
    m_title->setCursorPosition(0);
    m_number->setText(m_conference.dialNumber);
    m_start->setDateTime(QDateTime::fromMSecsSinceEpoch(m_conference.startMsecs));
    // What it has is allowed, however it came about.
    m_minutes->setRange(1, qMax(m_mostMinutes, minutesOf(m_conference)));
    m_minutes->setValue(minutesOf(m_conference));
    m_limit->setRange(qMax(ConferenceRules::MinParticipantLimit, m_conference.participants.size()),
                      qMax(m_mostPeople, m_conference.participantLimit));
    m_limit->setValue(m_conference.participantLimit);
    if (m_conference.hostId == m_viewer.userId) {
        m_passcode->setText(m_conference.passcode);
    }
    m_shownPasscode = m_passcode->text();
}

void ConferenceDetail::showEditable(const Conference &current)
{
    const qint64 now = m_book.nowMsecs();
    const bool canEdit = ConferenceOptions::of(current, std::nullopt, m_viewer, now).edit;
    const bool isHost = current.hostId == m_viewer.userId;
    const auto setReadOnly = [](QAbstractSpinBox *box, bool readOnly) {
        box->setReadOnly(readOnly);
        box->setButtonSymbols(readOnly ? QAbstractSpinBox::NoButtons : QAbstractSpinBox::UpDownArrows);
    };
    m_title->setReadOnly(!canEdit);
    const bool canMove = canEdit && current.stateAt(now) == ConferenceState::NotStarted;
    setReadOnly(m_start, !canMove);
    m_start->setCalendarPopup(canMove);
    setReadOnly(m_minutes, !canEdit);
    setReadOnly(m_limit, !canEdit);
    // Another's passcode is not the viewer's to see.
    m_passcode->setVisible(isHost);
    m_passcode->setReadOnly(!canEdit);
    m_passcodeNote->setVisible(!isHost);
    m_passcodeNote->setText(current.passcode.isEmpty() ? tr("None") : tr("Set; only the host sees it"));
    m_save->setVisible(canEdit);
    showWhetherChanged();
}

QJsonObject ConferenceDetail::changes() const
{
    QJsonObject changes;
    const QString title = cleanDisplayText(m_title->text());
    if (title != cleanDisplayText(m_conference.title)) {
        changes.insert(JsonKey::Title, title);
    }
    // The field shows minutes: seconds that it does not show have not been edited.
    const QDateTime shown = QDateTime::fromMSecsSinceEpoch(m_conference.startMsecs);
    const qint64 start = m_start->dateTime().toMSecsSinceEpoch();
    if (start / MinuteMsecs != shown.toMSecsSinceEpoch() / MinuteMsecs) {
        changes.insert(JsonKey::StartTime, start / MinuteMsecs * MinuteMsecs);
    }
    if (m_minutes->value() != minutesOf(m_conference)) {
        changes.insert(JsonKey::Duration, m_minutes->value() * MinuteMsecs);
    }
    if (m_limit->value() != m_conference.participantLimit) {
        changes.insert(JsonKey::ParticipantLimit, m_limit->value());
    }
    if (m_conference.hostId == m_viewer.userId && m_passcode->text() != m_shownPasscode) {
        changes.insert(JsonKey::Password, m_passcode->text());
    }
    return changes;
}

void ConferenceDetail::showWhetherChanged()
{
    m_save->setEnabled(!changes().isEmpty() && !cleanDisplayText(m_title->text()).isEmpty());
}

void ConferenceDetail::exportCalendar()
{
    askForCalendarFile(this, m_book, m_conference.dialNumber,
                       [this](const QString &text) { result()->tell(text); });
}

void ConferenceDetail::submit()
{
    QJsonObject parameters = changes();
    parameters.insert(JsonKey::ConferenceId, m_conference.confId);
    const QString word =
        askBook(m_book, ActionName::UpdateConference, parameters).value(JsonKey::Ret).toString();
    if (word == Outcome::Ok) {
        accept();
        Q_EMIT told(tr("Conference %1 was changed.").arg(m_conference.dialNumber));
        return;
    }
    result()->tell(word == Outcome::UpdateFailed
                       ? tr("It could not be changed: the time has passed or is taken by another conference, "
                            "or more people are invited than it would take.")
                       : outcomeText(word));
}
