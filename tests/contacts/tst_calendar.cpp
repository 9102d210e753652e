// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "calendar/calendarexport.h"
#include "calendar/conferencecalendar.h"
#include "filecontent.h"
#include "testcolumns.h"

#include <QFile>
#include <QProcess>
#include <QtTest>

#include <libical/ical.h>

#include <ctime>
#include <memory>

namespace {

using Component = std::unique_ptr<icalcomponent, decltype(&icalcomponent_free)>;

Component read(const QByteArray &text)
{
    return {icalparser_parse_string(text.constData()), &icalcomponent_free};
}

/// Converts a time by the zone's rules in the file, not by this machine's zone database.
qint64 msecsOf(icalcomponent *calendar, icalcomponent *event, icalproperty_kind kind)
{
    icalproperty *property = icalcomponent_get_first_property(event, kind);
    const icaltimetype time =
        kind == ICAL_DTSTART_PROPERTY ? icalproperty_get_dtstart(property) : icalproperty_get_dtend(property);
    icalparameter *zoneName = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    icaltimezone *zone = zoneName ? icalcomponent_get_timezone(calendar, icalparameter_get_tzid(zoneName))
                                  : icaltimezone_get_utc_timezone();
    return zone ? qint64(icaltime_as_timet_with_zone(time, zone)) * 1000 : -1;
}

int countOf(icalcomponent *component, icalcomponent_kind kind)
{
    return icalcomponent_count_components(component, kind);
}

} // namespace

/// Calendar files, read back with another library.
class TestCalendar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void anotherLibraryReadsIt_data();
    void anotherLibraryReadsIt();
    void oddTitlesStayOneText_data();
    void oddTitlesStayOneText();
    void thePasscodeStaysHome();
    void theNextConferenceIsWritten();
    void theOneAskedForIsWritten();
    void whatCannotBeWrittenIsSaid();
    void theProgramWritesBesideARunningOne();
};

void TestCalendar::cleanup()
{
    qputenv("TZ", "Asia/Shanghai");
    tzset();
}

void TestCalendar::anotherLibraryReadsIt_data()
{
    addColumns<QString, QString, QString>({"zone", "startUtc", "localTime"});
    addRow("no summer time", "Asia/Shanghai", "2026-03-08T02:00:00Z", "20260308T100000");
    addRow("winter in Berlin", "Europe/Berlin", "2026-01-15T09:00:00Z", "20260115T100000");
    addRow("summer in Berlin", "Europe/Berlin", "2026-07-15T08:00:00Z", "20260715T100000");
    // 01:30 occurs twice that night, so the start is in UTC; the ends, 02:00 and 03:00, are unique.
    addRow("first 01:30 in New York", "America/New_York", "2026-11-01T05:30:00Z", "20261101T053000Z");
    addRow("second 01:30 in New York", "America/New_York", "2026-11-01T06:30:00Z", "20261101T063000Z");
    addRow("before it comes twice", "America/New_York", "2026-11-01T04:30:00Z", "20261101T003000");
    addRow("over the missing hour", "America/New_York", "2026-03-08T06:30:00Z", "20260308T013000");
    addRow("half an hour back", "Australia/Lord_Howe", "2026-04-04T14:45:00Z", "20260404T144500Z");
    addRow("west of Greenwich, never changed", "Etc/GMT+5", "2026-05-05T15:00:00Z", "20260505T100000");
    addRow("half an hour off", "Asia/Kolkata", "2026-05-05T04:30:00Z", "20260505T100000");
    addRow("UTC", "UTC", "2026-05-05T10:00:00Z", "20260505T100000Z");
}

void TestCalendar::anotherLibraryReadsIt()
{
    QFETCH(QString, zone);
    QFETCH(QString, startUtc);
    QFETCH(QString, localTime);
    qputenv("TZ", zone.toLatin1());
    tzset();
    Conference conference;
    conference.confId = QStringLiteral("0f0e-1");
    conference.dialNumber = QStringLiteral("880100005");
    conference.title = QStringLiteral("产品周会");
    conference.hostId = QStringLiteral("u1");
    conference.startMsecs = QDateTime::fromString(startUtc, Qt::ISODate).toMSecsSinceEpoch();
    conference.durationMsecs = 90 * 60 * 1000;
    conference.participants = {
        {QStringLiteral("u1"), QStringLiteral("100001"), QStringLiteral("王小明"), Attendance::Invited},
        {QStringLiteral("u2"), QStringLiteral("100003"), QStringLiteral("李娜"), Attendance::Invited}};

    const QByteArray text = calendarOf(conference, 7);
    const Component calendar = read(text);
    QVERIFY2(calendar, text.constData());
    QCOMPARE(icalcomponent_isa(calendar.get()), ICAL_VCALENDAR_COMPONENT);
    QCOMPARE(icalcomponent_count_errors(calendar.get()), 0);
    QVERIFY(icalrestriction_check(calendar.get()) != 0);
    QCOMPARE(countOf(calendar.get(), ICAL_VEVENT_COMPONENT), 1);
    QCOMPARE(countOf(calendar.get(), ICAL_VTIMEZONE_COMPONENT), zone == QLatin1String("UTC") ? 0 : 1);
    icalcomponent *event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT);
    QCOMPARE(QByteArray(icalcomponent_get_uid(event)), QByteArray("0f0e-1"));
    QCOMPARE(QString::fromUtf8(icalcomponent_get_summary(event)), QStringLiteral("产品周会"));
    QCOMPARE(QString::fromUtf8(icalcomponent_get_description(event)),
             QStringLiteral("会议号：880100005\n主持人：王小明\n参加者：王小明、李娜"));
    QCOMPARE(msecsOf(calendar.get(), event, ICAL_DTSTART_PROPERTY), conference.startMsecs);
    QCOMPARE(msecsOf(calendar.get(), event, ICAL_DTEND_PROPERTY), conference.endMsecs());
    QVERIFY2(text.contains(localTime.toLatin1()), text.constData()); // in the user's local time
    QCOMPARE(countOf(event, ICAL_VALARM_COMPONENT), 1);
    icalcomponent *alarm = icalcomponent_get_first_component(event, ICAL_VALARM_COMPONENT);
    const icaltriggertype trigger =
        icalproperty_get_trigger(icalcomponent_get_first_property(alarm, ICAL_TRIGGER_PROPERTY));
    QVERIFY(icaltime_is_null_time(trigger.time));
    QCOMPARE(icaldurationtype_as_int(trigger.duration), -7 * 60);
    QCOMPARE(icalproperty_get_action(icalcomponent_get_first_property(alarm, ICAL_ACTION_PROPERTY)),
             ICAL_ACTION_DISPLAY);
}

void TestCalendar::oddTitlesStayOneText_data()
{
    addColumns<QString, QString>({"title", "read"});
    QTest::newRow("what the format uses")
        << QStringLiteral("a;b,c\\n:\"d\"") << QStringLiteral("a;b,c\\n:\"d\"");
    QTest::newRow("a property of its own") << QStringLiteral("x\r\nEND:VEVENT\r\nATTACH:file:///etc/passwd")
                                           << QStringLiteral("x END:VEVENT ATTACH:file:///etc/passwd");
    QTest::newRow("longer than a line")
        << QStringLiteral("很长").repeated(40) << QStringLiteral("很长").repeated(40);
    QTest::newRow("emoji") << QStringLiteral("🎉 庆功") << QStringLiteral("🎉 庆功");
    QTest::newRow("none") << QString() << QStringLiteral("视频会议");
}

void TestCalendar::oddTitlesStayOneText()
{
    QFETCH(QString, title);
    QFETCH(QString, read);
    Conference conference;
    conference.confId = QStringLiteral("1");
    conference.title = title;
    conference.startMsecs = at("2026-03-08T10:00");
    conference.durationMsecs = 60000;
    const Component calendar = ::read(calendarOf(conference, 5));
    QVERIFY(calendar);
    QCOMPARE(countOf(calendar.get(), ICAL_ANY_COMPONENT), 2); // the time zone and the event
    icalcomponent *event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT);
    QCOMPARE(QString::fromUtf8(icalcomponent_get_summary(event)), read);
    QCOMPARE(icalcomponent_count_properties(event, ICAL_ATTACH_PROPERTY), 0);
}

void TestCalendar::thePasscodeStaysHome()
{
    SampleWorld world;
    const auto conference = world.book.conferences().byDialNumber(QStringLiteral("880100002"), QString());
    QCOMPARE(conference->passcode, QStringLiteral("246810"));
    QVERIFY(!calendarOf(*conference, 5).contains("246810"));
}

void TestCalendar::theNextConferenceIsWritten()
{
    SampleWorld world;
    const QString file = world.folder.filePath(QStringLiteral("next.ics"));
    QVERIFY(exportConference(world.book, QString(), file));
    QVERIFY(contentOf(file).contains("880100001")); // the running one
    world.nowMsecs += 5 * 3600000LL;
    QVERIFY(world.book.change([&world] {
        world.book.reminders().setSettings({true, 20});
        return true;
    }));
    QVERIFY(exportConference(world.book, QString(), file));
    const QByteArray text = contentOf(file);
    QVERIFY(text.contains("880100005"));
    QVERIFY2(text.contains("-PT20M"), text.constData());
    // Conferences the user has declined are skipped.
    QVERIFY(world.book.change([&world] {
        const auto declined = world.book.conferences().byDialNumber(QStringLiteral("880100005"), QString());
        world.book.conferences().setAttendance(declined->id, QStringLiteral("u100001"), Attendance::Left);
        return true;
    }));
    QVERIFY(exportConference(world.book, QString(), file));
    QVERIFY(contentOf(file).contains("880100006"));
}

void TestCalendar::theOneAskedForIsWritten()
{
    SampleWorld world;
    const QString file = world.folder.filePath(QStringLiteral("one.ics"));
    QVERIFY(exportConference(world.book, QStringLiteral("880100007"), file));
    const QByteArray text = contentOf(file);
    const Component calendar = read(text);
    icalcomponent *event = icalcomponent_get_first_component(calendar.get(), ICAL_VEVENT_COMPONENT);
    QCOMPARE(QString::fromUtf8(icalcomponent_get_summary(event)), QStringLiteral("季度总结"));
    QCOMPARE(msecsOf(calendar.get(), event, ICAL_DTSTART_PROPERTY), at("2026-03-14T14:00"));
}

void TestCalendar::whatCannotBeWrittenIsSaid()
{
    SampleWorld world;
    const QString file = world.folder.filePath(QStringLiteral("one.ics"));
    QVERIFY(!exportConference(world.book, QStringLiteral("880100009"), file)); // another person's
    QVERIFY(!exportConference(world.book, QStringLiteral("1"), file));
    QVERIFY(!QFile::exists(file));
    QVERIFY(!exportConference(world.book, QString(), world.folder.path()));
    QVERIFY(!writeCalendar("x", QStringLiteral("/proc/none/x.ics")).isEmpty());
    world.admin.Logout();
    QVERIFY(!exportConference(world.book, QString(), file));
    QVERIFY(!QFile::exists(file));
}

void TestCalendar::theProgramWritesBesideARunningOne()
{
    const QTemporaryDir data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), data.path()); // no bus there either
    const ContactsBook running(data.filePath(QStringLiteral("kelvane-contacts/contacts.db")));
    const auto run = [&environment](const QStringList &arguments, QByteArray *output) {
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(APPLICATION), arguments);
        if (!program.waitForFinished()) {
            return -1;
        }
        *output = program.readAllStandardOutput();
        return program.exitCode();
    };
    QByteArray output;
    QCOMPARE(run({QStringLiteral("--export"), QStringLiteral("-"), QStringLiteral("--conference"),
                  QStringLiteral("880100005")},
                 &output),
             0);
    const Component calendar = read(output);
    QVERIFY2(calendar, output.constData());
    QCOMPARE(countOf(calendar.get(), ICAL_VEVENT_COMPONENT), 1);
    const QString file = data.filePath(QStringLiteral("one.ics"));
    QCOMPARE(
        run({QStringLiteral("--export"), file, QStringLiteral("--conference"), QStringLiteral("880100005")},
            &output),
        0);
    QVERIFY(contentOf(file).contains("880100005"));
    QCOMPARE(
        run({QStringLiteral("--export"), file, QStringLiteral("--conference"), QStringLiteral("1")}, &output),
        4);
    QVERIFY(contentOf(file).contains("880100005")); // the previous file is kept
}

QTEST_GUILESS_MAIN(TestCalendar)
#include "tst_calendar.moc"
