// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/contactsbook.h"

#include "actions/actioncontext.h"
#include "actions/actiontable.h"
#include "actions/answer.h"
#include "actions/requestparameters.h"
#include "core/databaseerror.h"
#include "core/outcome.h"
#include "sample/sampledirectory.h"

#include <QDateTime>
#include <QDebug>
#include <QJsonDocument>

namespace {

QString toText(const QJsonObject &answer)
{
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

} // namespace

ContactsBook::ContactsBook(const QString &databaseFile, Clock clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock ? std::move(clock) : Clock(&QDateTime::currentMSecsSinceEpoch))
    , m_database(databaseFile)
    , m_people(m_database.handle())
    , m_conferences(m_database.handle())
    , m_session(m_database.handle())
    , m_reminders(m_database.handle())
{
    // One frame on the screen. Not restarted by further changes, so nothing can put it off.
    constexpr int burstMsecs = 16;
    m_burst.setInterval(burstMsecs);
    m_burst.setSingleShot(true);
    connect(this, &ContactsBook::changed, this, [this] {
        if (!m_burst.isActive()) {
            m_burst.start();
        }
    });
    connect(&m_burst, &QTimer::timeout, this, &ContactsBook::changedLately);
    try {
        seed();
    } catch (const std::exception &error) {
        noteFailure(error);
        throw;
    }
}

void ContactsBook::seed()
{
    Transaction transaction(m_database.handle());
    if (!m_session.isSeeded()) {
        SampleDirectory::load(m_people, m_conferences, m_session, nowMsecs());
        m_reminders.forgetNews(); // loading invites nobody
        m_session.setSeeded(true);
        transaction.commit();
    }
}

QString ContactsBook::perform(const QString &action, const QString &parameters, const RequestTicket &ticket)
{
    if (ticket.hasPassed()) {
        qInfo() << "Action" << action << "came too late and is not performed";
        return {};
    }
    const Action *known = findAction(action);
    if (!known) {
        return toText(answerWord(Outcome::UnknownAction));
    }
    try {
        const RequestParameters request(parameters);
        std::optional<WindowFocus> windowWanted;
        const qint64 writtenBefore = m_database.writtenRows();
        bool hasWritten = false;
        QJsonObject answer;
        {
            Transaction transaction(m_database.handle());
            const std::optional<Person> user = m_session.user();
            const ActionContext context{m_people,
                                        m_conferences,
                                        m_session,
                                        nowMsecs(),
                                        user.value_or(Person()),
                                        [&windowWanted](WindowFocus focus) {
                                            windowWanted = focus;
                                        }};
            if (!user && known->access == ActionAccess::LoggedInUser) {
                answer = answerWord(Outcome::NotLoggedIn);
                windowWanted = WindowFocus::Leave; // logging in is done there
            } else {
                answer = known->handler(context, request);
            }
            hasWritten = m_database.writtenRows() != writtenBefore;
            if (hasWritten && !ticket.id.isEmpty()) {
                m_session.notePerformed(ticket.id);
            }
            // As late as possible: a caller that stopped waiting was told that nothing was done.
            if (ticket.hasPassed()) {
                qInfo() << "Action" << action << "took too long and is undone";
                return {};
            }
            transaction.commit();
        }
        if (hasWritten) {
            Q_EMIT changed();
        }
        if (windowWanted) {
            Q_EMIT this->windowWanted(*windowWanted);
        }
        return toText(answer);
    } catch (const InvalidParameters &error) {
        qWarning() << "Refused parameters for" << action << ":" << error.what();
        return toText(answerWord(Outcome::InvalidParameters));
    } catch (const std::exception &error) {
        qCritical() << "Action" << action << "failed:" << error.what();
        noteFailure(error);
        return toText(answerWord(Outcome::InternalError));
    }
}

bool ContactsBook::wasPerformed(const QString &requestId) const
{
    try {
        return m_session.wasPerformed(requestId);
    } catch (const std::exception &error) {
        qCritical() << "Cannot tell whether the request was performed:" << error.what();
        noteFailure(error);
        return false;
    }
}

QStringList ContactsBook::contactNames()
{
    constexpr int most = 10000;
    try {
        const std::optional<Person> user = m_session.user();
        return user ? m_people.contactNames(user->userId, most) : QStringList();
    } catch (const std::exception &error) {
        qCritical() << "Reading the contacts' names failed:" << error.what();
        noteFailure(error);
        return {};
    }
}

bool ContactsBook::change(const std::function<bool()> &change)
{
    try {
        Transaction transaction(m_database.handle());
        if (!change()) {
            return false;
        }
        transaction.commit();
    } catch (const std::exception &error) {
        qCritical() << "A change failed:" << error.what();
        noteFailure(error);
        return false;
    }
    Q_EMIT changed();
    return true;
}

void ContactsBook::noteFailure(const std::exception &error) const
{
    const auto *databaseError = dynamic_cast<const DatabaseError *>(&error);
    if (databaseError && databaseError->isDamage()) {
        m_database.demandCheck();
    }
}
