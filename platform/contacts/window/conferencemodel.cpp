// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencemodel.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"
#include "window/legiblecolor.h"
#include "window/pagesize.h"
#include "window/windowtheme.h"

#include <lumo/plaintooltip.h>

#include <QDateTime>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr qint64 LookBackMsecs = 30 * DayMsecs;
constexpr int WholeSize = 1000;

/// What the table says for a state.
struct StateLook
{
    QString text;
    QColor color; ///< of the dot before it
};

StateLook lookOf(ConferenceState state)
{
    switch (state) {
    case ConferenceState::NotStarted:
        return {ConferenceModel::tr("Upcoming"), WindowTheme::notStarted()};
    case ConferenceState::Running:
        return {ConferenceModel::tr("Running"), WindowTheme::running()};
    case ConferenceState::Ended:
        break;
    }
    return {ConferenceModel::tr("Ended"), WindowTheme::ended()};
}

QString headerText(int column)
{
    static constexpr std::array<const char *, ConferenceModel::ColumnCount> headers{
        QT_TRANSLATE_NOOP("ConferenceModel", "State"),    QT_TRANSLATE_NOOP("ConferenceModel", "Title"),
        QT_TRANSLATE_NOOP("ConferenceModel", "Number"),   QT_TRANSLATE_NOOP("ConferenceModel", "Starts"),
        QT_TRANSLATE_NOOP("ConferenceModel", "Duration"), QT_TRANSLATE_NOOP("ConferenceModel", "People"),
        QT_TRANSLATE_NOOP("ConferenceModel", "Host"),     QT_TRANSLATE_NOOP("ConferenceModel", "Passcode")};
    return ConferenceModel::tr(headers.at(static_cast<size_t>(column)));
}

QString hostName(const Conference &conference)
{
    for (const Participant &participant : conference.participants) {
        if (participant.userId == conference.hostId) {
            return cleanDisplayText(participant.name);
        }
    }
    return {};
}

/// The day is what one looks for first: the near ones have names.
QString startText(qint64 startMsecs, qint64 nowMsecs)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(startMsecs);
    const qint64 days = QDateTime::fromMSecsSinceEpoch(nowMsecs).date().daysTo(start.date());
    const QString time = start.toString(QStringLiteral("hh:mm"));
    if (days == 0) {
        return ConferenceModel::tr("Today %1").arg(time);
    }
    return days == 1 ? ConferenceModel::tr("Tomorrow %1").arg(time)
                     : start.toString(QStringLiteral("yyyy-MM-dd hh:mm"));
}

/// A veil of the accent colour that leaves texts legible in both themes.
QColor todaysGround()
{
    constexpr qreal veil = 0.16;
    QColor color = QGuiApplication::palette().color(QPalette::Highlight);
    color.setAlphaF(veil);
    return color;
}

QVariant boldFont()
{
    QFont font;
    font.setBold(true);
    return font;
}

QString participantNames(const Conference &conference)
{
    QStringList names;
    for (const Participant &participant : conference.participants) {
        names.append(cleanDisplayText(participant.name));
    }
    return listOfNames(names);
}

} // namespace

ConferenceModel::ConferenceModel(ContactsBook &book, Span span, QObject *parent)
    : RecordModel(ColumnCount, parent)
    , m_book(book)
    , m_span(span)
    , m_isActive(span == Span::Coming)
{
    m_clock.setSingleShot(true);
    connect(&m_clock, &QTimer::timeout, this, &ConferenceModel::followClock);
    connect(&m_book, &ContactsBook::changedLately, this, &ConferenceModel::reload);
    reload();
}

void ConferenceModel::setScope(Scope scope)
{
    m_scope = scope;
    m_pages = 1;
    reload();
}

void ConferenceModel::setActive(bool active)
{
    if (active != m_isActive) {
        m_isActive = active;
        m_pages = 1;
        reload();
    }
}

void ConferenceModel::setReading(Reading reading)
{
    if (reading != m_reading) {
        m_reading = reading;
        reload();
    }
}

int ConferenceModel::rowLimit() const
{
    return qMax(m_pages * PageSize, m_reading == Reading::Whole ? WholeSize : 0);
}

bool ConferenceModel::canFetchMore(const QModelIndex &parent) const
{
    return m_isActive && !parent.isValid() && records().size() == rowLimit();
}

void ConferenceModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent)) {
        return;
    }
    m_pages = rowLimit() / PageSize + 1;
    const QVector<Conference> conferences = load(rowLimit());
    const int known = records().size();
    if (!hasSameRows(conferences.mid(0, known), records())) {
        reload(); // changed meanwhile
        return;
    }
    if (conferences.size() > known) {
        append(conferences.mid(known));
        waitForNextChange();
    }
}

void ConferenceModel::reload()
{
    replace(m_isActive ? load(rowLimit()) : QVector<Conference>());
    waitForNextChange();
}

QVariant ConferenceModel::value(const Conference &conference, int column, int role) const
{
    const ConferenceState state = conference.stateAt(m_book.nowMsecs());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return display(conference, column);
    case Qt::ToolTipRole:
        return plainToolTip(column == People ? participantNames(conference) : display(conference, column));
    case Qt::DecorationRole:
        return column == State ? legibleInLists(lookOf(state).color) : QVariant();
    case Qt::BackgroundRole:
        return isToday(conference) ? todaysGround() : QVariant();
    case Qt::FontRole:
        return column == Start && isToday(conference) ? boldFont() : QVariant();
    case ConferenceRole:
        return QVariant::fromValue(conference);
    case NumberRole:
        return conference.dialNumber;
    case ConferenceIdRole:
        return conference.confId;
    case StateRole:
        return static_cast<int>(state);
    case SortRole:
        return sortKey(conference, column);
    case SearchRole:
        return QStringList{cleanDisplayText(conference.title), conference.dialNumber,
                           participantNames(conference), lookOf(state).text}
            .join(QLatin1Char(' '));
    default:
        return {};
    }
}

QVariant ConferenceModel::header(int column) const
{
    return headerText(column);
}

QString ConferenceModel::userId() const
{
    const std::optional<Person> user = m_book.session().user();
    return user ? user->userId : QString();
}

bool ConferenceModel::isToday(const Conference &conference) const
{
    const auto dayOf = [](qint64 msecs) {
        return QDateTime::fromMSecsSinceEpoch(msecs).date();
    };
    return m_span == Span::Coming && dayOf(conference.startMsecs) == dayOf(m_book.nowMsecs());
}

QVector<Conference> ConferenceModel::load(int limit) const
{
    const qint64 now = m_book.nowMsecs();
    const ConferenceRepository &conferences = m_book.conferences();
    try {
        const QString viewer = userId();
        if (m_span == Span::Ended) {
            return m_scope == Scope::Mine ? conferences.endedOfUser(viewer, now - LookBackMsecs, now, limit)
                                          : conferences.ended(now - LookBackMsecs, now, viewer, limit);
        }
        return m_scope == Scope::Mine
                   ? conferences.ofUser(viewer, now, std::numeric_limits<qint64>::max(), limit)
                   : conferences.endingAfter(now, viewer, limit);
    } catch (const std::exception &error) {
        qWarning("The conferences cannot be shown: %s", error.what());
        m_book.noteFailure(error);
        return {};
    }
}

int ConferenceModel::endedCount() const
{
    const qint64 now = m_book.nowMsecs();
    const qint64 from = now - LookBackMsecs;
    try {
        return m_scope == Scope::Mine
                   ? m_book.conferences().endedCountOfUser(userId(), from, now, CountLimit + 1)
                   : m_book.conferences().endedCount(from, now, CountLimit + 1);
    } catch (const std::exception &error) {
        qWarning("The conferences cannot be counted: %s", error.what());
        m_book.noteFailure(error);
        return 0;
    }
}

void ConferenceModel::followClock()
{
    const qint64 now = m_book.nowMsecs();
    const bool hasEnded =
        m_span == Span::Coming && std::any_of(records().cbegin(), records().cend(),
                                              [now](const Conference &row) { return row.endMsecs() <= now; });
    if (hasEnded) {
        reload();
        Q_EMIT someEnded();
        return;
    }
    announceChange();
    waitForNextChange();
}

void ConferenceModel::waitForNextChange()
{
    // Looks at the clock at least every minute: somebody may set it.
    const qint64 now = m_book.nowMsecs();
    qint64 next = now + MinuteMsecs;
    for (const Conference &conference : records()) {
        for (const qint64 change : {conference.startMsecs, conference.endMsecs()}) {
            if (change > now) {
                next = qMin(next, change);
            }
        }
    }
    m_clock.start(static_cast<int>(next - now));
}

QString ConferenceModel::display(const Conference &conference, int column) const
{
    switch (column) {
    case State:
        return lookOf(conference.stateAt(m_book.nowMsecs())).text;
    case Title:
        return cleanDisplayText(conference.title);
    case Number:
        return conference.dialNumber;
    case Start:
        return startText(conference.startMsecs, m_book.nowMsecs());
    case Duration:
        return tr("%1 min").arg(conference.durationMsecs / MinuteMsecs);
    case People:
        return QStringLiteral("%1/%2").arg(conference.participants.size()).arg(conference.participantLimit);
    case Host:
        return hostName(conference);
    case Passcode:
        return conference.passcode.isEmpty() ? QString() : tr("Required");
    default:
        return {};
    }
}

QVariant ConferenceModel::sortKey(const Conference &conference, int column) const
{
    switch (column) {
    case State:
        return static_cast<int>(conference.stateAt(m_book.nowMsecs()));
    case Start:
        return conference.startMsecs;
    case Duration:
        return conference.durationMsecs;
    case People:
        return conference.participants.size();
    default:
        return display(conference, column);
    }
}
