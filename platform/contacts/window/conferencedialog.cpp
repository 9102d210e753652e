// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencedialog.h"

#include "window/bookaction.h"
#include "window/conferenceoptions.h"
#include "window/conferencetimeedit.h"
#include "window/inviteefield.h"
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

#include <QDateTimeEdit>
#include <QFormLayout>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>

namespace {

constexpr int LeastWidth = 440;

Person userOf(ContactsBook &book)
{
    try {
        return book.session().user().value_or(Person());
    } catch (const std::exception &error) {
        qWarning("The user cannot be read: %s", error.what());
        book.noteFailure(error);
        return {};
    }
}

bool isInConference(ContactsBook &book)
{
    try {
        return Viewer::of(book).isInConference;
    } catch (const std::exception &error) {
        qWarning("Whether the user is in a conference cannot be read: %s", error.what());
        book.noteFailure(error);
        return false;
    }
}

/// The next half hour.
qint64 suggestedStart(qint64 nowMsecs)
{
    constexpr qint64 halfHour = 30 * MinuteMsecs;
    return (nowMsecs / halfHour + 1) * halfHour;
}

} // namespace

ConferenceDialog::ConferenceDialog(ContactsBook &book, QWidget *parent)
    : FormDialog(tr("New Conference"), LeastWidth, parent)
    , m_book(book)
    , m_title(new QLineEdit)
    , m_now(new QRadioButton(tr("Ri&ght now")))
    , m_later(new QRadioButton(tr("&Later")))
    , m_start(makeConferenceTimeEdit())
    , m_passcode(new PasscodeField)
{
    const Person user = userOf(m_book);
    m_people = new InviteeField(m_book, ConferenceRules::forKind(user.kind).defaultParticipantLimit - 1);
    m_title->setPlaceholderText(tr("%1's video conference").arg(cleanDisplayText(user.name)));
    arrange();
}

void ConferenceDialog::arrange()
{
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setMaxLength(100);
    m_passcode->setObjectName(QStringLiteral("newPasscode"));
    result()->setObjectName(QStringLiteral("newResult"));
    form()->addRow(tr("T&itle"), m_title);
    addWhen();
    form()->addRow(tr("&Participants"), m_people);
    form()->addRow(tr("Pa&sscode"), m_passcode);
    auto *make = new LSuggestButton(tr("&Create"));
    make->setObjectName(QStringLiteral("make"));
    addButtons(make, tr("Cancel"));
    connect(m_people, &InviteeField::told, result(), &ResultLabel::tell);
    connect(m_people, &InviteeField::changed, this, [this] { result()->tell(QString()); });
}

void ConferenceDialog::addWhen()
{
    m_now->setObjectName(QStringLiteral("now"));
    m_later->setObjectName(QStringLiteral("later"));
    m_start->setObjectName(QStringLiteral("start"));
    const qint64 now = m_book.nowMsecs();
    m_start->setMinimumDateTime(QDateTime::fromMSecsSinceEpoch(now));
    m_start->setDateTime(QDateTime::fromMSecsSinceEpoch(suggestedStart(now)));
    // Nobody is in two at once.
    const bool isBusy = isInConference(m_book);
    m_now->setEnabled(!isBusy);
    (isBusy ? m_later : m_now)->setChecked(true);
    m_start->setEnabled(isBusy);
    connect(m_later, &QRadioButton::toggled, m_start, &QWidget::setEnabled);
    auto *when = new QHBoxLayout;
    when->addWidget(m_now);
    when->addWidget(m_later);
    when->addWidget(m_start, 1);
    form()->addRow(tr("Time"), when);
}

QJsonObject ConferenceDialog::parameters() const
{
    QJsonObject parameters;
    // Without one it has the name that the empty field shows, in the window's language.
    const QString title = cleanDisplayText(m_title->text());
    parameters.insert(JsonKey::Title, title.isEmpty() ? m_title->placeholderText() : title);
    if (!m_passcode->text().isEmpty()) {
        parameters.insert(JsonKey::Password, m_passcode->text());
    }
    if (m_later->isChecked()) {
        parameters.insert(JsonKey::StartTime, m_start->dateTime().toMSecsSinceEpoch());
    }
    QJsonArray members;
    for (const Person &person : m_people->people()) {
        members.append(QJsonObject{{JsonKey::Name, person.name}, {JsonKey::UserId, person.userId}});
    }
    parameters.insert(JsonKey::Members, members);
    return parameters;
}

void ConferenceDialog::submit()
{
    const QJsonObject answer = askBook(m_book, ActionName::CreateConference, parameters());
    const QString word = answer.value(JsonKey::Ret).toString();
    const QJsonArray list = answer.value(JsonKey::List).toArray();
    // An overlap is answered with the others, which are there already.
    if (list.isEmpty() || word == Outcome::TimeOverlap) {
        result()->tell(word == Outcome::InvalidParameters
                           ? tr("The time has passed, or the passcode has spaces.")
                           : outcomeText(word));
        return;
    }
    const QString number = list.at(0).toObject().value(JsonKey::ConferenceDialNumber).toString();
    const QStringList missing = word == Outcome::Ok ? QStringList() : notInvited(number);
    accept();
    Q_EMIT made(number);
    Q_EMIT told(missing.isEmpty()
                    ? tr("Conference %1 was created.").arg(number)
                    : tr("Conference %1 was created, but these people could not be invited: %2.")
                          .arg(number, listOfNames(missing)));
}

QStringList ConferenceDialog::notInvited(const QString &number) const
{
    std::optional<Conference> made;
    try {
        made = m_book.conferences().byDialNumber(number, QString());
    } catch (const std::exception &error) {
        qWarning("Who is invited cannot be read: %s", error.what());
        m_book.noteFailure(error);
    }
    const QVector<Participant> seats = made ? made->participants : QVector<Participant>();
    QStringList names;
    for (const Person &person : m_people->people()) {
        const bool isInvited = std::any_of(seats.cbegin(), seats.cend(), [&person](const Participant &seat) {
            return seat.userId == person.userId;
        });
        if (!isInvited) {
            names.append(cleanDisplayText(person.shownName()));
        }
    }
    return names;
}
