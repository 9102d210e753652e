// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "calendar/conferencecalendar.h"

#include "core/conference.h"
#include "core/displaytext.h"

#include <KCalendarCore/Alarm>
#include <KCalendarCore/Event>
#include <KCalendarCore/ICalFormat>
#include <KCalendarCore/MemoryCalendar>

#include <QCoreApplication>
#include <QDateTime>
#include <QSaveFile>
#include <QTimeZone>

namespace {

QString descriptionOf(const Conference &conference)
{
    QStringList names;
    QString host;
    for (const Participant &participant : conference.participants) {
        const QString name = cleanDisplayText(participant.name);
        names.append(name);
        if (participant.userId == conference.hostId) {
            host = name;
        }
    }
    QStringList lines{
        QCoreApplication::translate("ConferenceCalendar", "Number: %1").arg(conference.dialNumber)};
    if (!host.isEmpty()) {
        lines.append(QCoreApplication::translate("ConferenceCalendar", "Host: %1").arg(host));
    }
    if (!names.isEmpty()) {
        lines.append(
            QCoreApplication::translate("ConferenceCalendar", "Participants: %1").arg(listOfNames(names)));
    }
    return lines.join(QLatin1Char('\n'));
}

/// Whether the local time @p moment in @p zone is ambiguous because the clocks are put back.
bool isShownTwice(const QDateTime &moment, const QTimeZone &zone)
{
    constexpr qint64 daySeconds = 24 * 60 * 60;
    const int before = zone.offsetFromUtc(moment.addSecs(-daySeconds));
    const int after = zone.offsetFromUtc(moment.addSecs(daySeconds));
    if (before <= after) {
        return false;
    }
    const QDateTime shown = moment.addSecs(zone.offsetFromUtc(moment));
    return zone.offsetFromUtc(shown.addSecs(-before)) == before &&
           zone.offsetFromUtc(shown.addSecs(-after)) == after;
}

/// In UTC where the local time is ambiguous: readers disagree on its meaning.
QDateTime clearTime(qint64 msecs, const QTimeZone &zone)
{
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC);
    return isShownTwice(moment, zone) ? moment : moment.toTimeZone(zone);
}

/// The library writes no rules for a zone whose clocks have not changed since 1970, and readers then take its
/// times for UTC.
QString withRuleForZone(QString calendar, const QTimeZone &zone, const QDateTime &moment)
{
    const int minutes = zone.offsetFromUtc(moment) / 60;
    const QString offset = QStringLiteral("%1%2%3")
                               .arg(minutes < 0 ? QLatin1Char('-') : QLatin1Char('+'))
                               .arg(qAbs(minutes) / 60, 2, 10, QLatin1Char('0'))
                               .arg(qAbs(minutes) % 60, 2, 10, QLatin1Char('0'));
    const QString head = QStringLiteral("TZID:%1\r\n").arg(QString::fromLatin1(zone.id()));
    const QString tail = QStringLiteral("END:VTIMEZONE\r\n");
    const QString rule = QStringLiteral("BEGIN:STANDARD\r\nTZOFFSETFROM:%1\r\nTZOFFSETTO:%1\r\n"
                                        "DTSTART:19700101T000000\r\nEND:STANDARD\r\n")
                             .arg(offset);
    return calendar.replace(head + tail, head + rule + tail);
}

} // namespace

QByteArray calendarOf(const Conference &conference, int leadMinutes)
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const KCalendarCore::Event::Ptr event(new KCalendarCore::Event);
    const QString title = cleanDisplayText(conference.title);
    event->setUid(conference.confId);
    event->setSummary(title.isEmpty() ? QCoreApplication::translate("ConferenceCalendar", "Video conference")
                                      : title);
    event->setDescription(descriptionOf(conference));
    event->setLocation(
        QCoreApplication::translate("ConferenceCalendar", "Video conference %1").arg(conference.dialNumber));
    event->setDtStart(clearTime(conference.startMsecs, zone));
    event->setDtEnd(clearTime(conference.endMsecs(), zone));
    event->setStatus(KCalendarCore::Incidence::StatusConfirmed);
    const KCalendarCore::Alarm::Ptr alarm = event->newAlarm();
    alarm->setDisplayAlarm(event->summary());
    alarm->setStartOffset(KCalendarCore::Duration(-60 * leadMinutes));
    alarm->setEnabled(true);

    const KCalendarCore::MemoryCalendar::Ptr calendar(new KCalendarCore::MemoryCalendar(zone));
    calendar->addEvent(event);
    KCalendarCore::CalFormat::setApplication(QStringLiteral("meetlynx"),
                                             QStringLiteral("-//The Contact Plugin Authors//meetlynx//ZH"));
    KCalendarCore::ICalFormat format;
    return withRuleForZone(format.toString(calendar, QString(), false), zone, event->dtStart()).toUtf8();
}

QString writeCalendar(const QByteArray &calendar, const QString &fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(calendar) != calendar.size() || !file.commit()) {
        return file.errorString();
    }
    return {};
}
