// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testcolumns.h"
#include "time/timereader.h"
#include "time/timeresolver.h"

#include <QtTest>

using namespace understanding;

/// The meaning of times, relative to a Saturday morning unless a row says otherwise.
class TestTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeMeans_data()
    {
        addColumns<QString, QString, QString>({"said", "meant", "now"});
        const auto row = [](const char *name, const char *said, const char *meant,
                            const char *now = "2026-03-07T10:20:00") {
            QTest::newRow(name) << QString::fromUtf8(said) << QString::fromLatin1(meant)
                                << QString::fromLatin1(now);
        };
        row("the next week begins on Monday", "下周三", "2026-03-11");
        row("said on a Monday, next Monday is seven days on", "下周一", "2026-03-16", "2026-03-09T08:00:00");
        row("said on a Sunday, next Monday is tomorrow", "下周一", "2026-03-09", "2026-03-08T08:00:00");
        row("the week after next", "下下周三", "2026-03-18");
        row("three weeks on", "下下下周三", "2026-03-25");
        row("this week's day may be past", "这周三", "2026-03-04");
        row("so may 本周", "本周三", "2026-03-04");
        row("last week", "上周五", "2026-02-27");
        row("a bare weekday is the next one", "周三", "2026-03-11");
        row("a bare weekday counts today", "周六", "2026-03-07");
        row("星期", "星期三", "2026-03-11");
        row("礼拜", "礼拜三", "2026-03-11");
        row("Sunday as 天", "星期天", "2026-03-08");
        row("a weekday as a digit", "周3", "2026-03-11");
        row("a day of the month to come", "20号", "2026-03-20");
        row("a day of the month that is past is in the next", "5号", "2026-04-05");
        row("today's day of the month is not past", "7号", "2026-03-07");
        row("in December the next month is in the next year", "5号", "2027-01-05", "2026-12-20T09:00:00");
        row("a date to come is this year", "3月20号", "2026-03-20");
        row("a date that is past is next year", "3月1号", "2027-03-01");
        row("a date with its year is that year", "2026年3月1号", "2026-03-01");
        row("a year in Chinese digits", "二零二六年三月二十号", "2026-03-20");
        row("a year of two digits", "26年3月20日", "2026-03-20");
        row("an ISO date", "2026-03-20", "2026-03-20");
        row("an ISO date and time", "2026-03-20T15:30", "2026-03-20T15:30:00");
        row("next year", "明年3月1号", "2027-03-01");
        row("next month", "下个月15号", "2026-04-15");
        row("a date and its weekday", "3月20号周五下午三点", "2026-03-20T15:00:00");
        row("the thirtieth of February is no date", "2月30号", "no such date");
        row("the night after the last day that can be written", "9999年12月31号夜里一点", "no such date");
        row("nine thousand years from now", "过9000年", "no such date");
        row("a part of a day in nine thousand years", "过9000年下午", "no such date");
        row("nor is the thirty-first of April", "4月31日", "no such date");
        row("nor the thirteenth month", "13月5号", "no such date");
        row("the twenty-ninth of February without a leap year", "2月29号", "no such date");
        row("the twenty-ninth of February in a leap year", "2月29号", "2028-02-29", "2028-01-05T09:00:00");

        row("small hours", "凌晨0点", "2026-03-07T00:00:00");
        row("small hours end at five", "凌晨五点", "2026-03-07T05:00:00");
        row("six is no small hour", "凌晨六点", "contradiction");
        row("morning begins at four", "早上四点", "2026-03-07T04:00:00");
        row("morning ends at eleven", "早上11点", "2026-03-07T11:00:00");
        row("twelve is not in the morning", "早上12点", "contradiction");
        row("three is not in the morning", "早上3点", "contradiction");
        row("forenoon begins at six", "上午6点", "2026-03-07T06:00:00");
        row("forenoon ends at twelve", "上午12点", "2026-03-07T12:00:00");
        row("thirteen is not in the forenoon", "上午13点", "contradiction");
        row("five is not in the forenoon", "上午5点", "contradiction");
        row("noon begins at eleven", "中午11点", "2026-03-07T11:00:00");
        row("noon's one is thirteen", "中午1点", "2026-03-07T13:00:00");
        row("noon's two is fourteen", "中午两点", "2026-03-07T14:00:00");
        row("three is not at noon", "中午3点", "contradiction");
        row("afternoon begins at twelve", "下午12点", "2026-03-07T12:00:00");
        row("afternoon's one is thirteen", "下午1点", "2026-03-07T13:00:00");
        row("afternoon's seven is nineteen", "下午7点", "2026-03-07T19:00:00");
        row("afternoon's eleven is tolerated", "下午11点", "2026-03-07T23:00:00");
        row("afternoon in 24 hours", "下午16点", "2026-03-07T16:00:00");
        row("zero is not in the afternoon", "下午0点", "contradiction");
        row("dusk's five is seventeen", "傍晚5点", "2026-03-07T17:00:00");
        row("dusk ends at seven", "傍晚七点", "2026-03-07T19:00:00");
        row("eight is not at dusk", "傍晚八点", "contradiction");
        row("evening's five is seventeen", "晚上5点", "2026-03-07T17:00:00");
        row("evening's ten stays today", "晚上10点", "2026-03-07T22:00:00");
        row("evening's twelve is the coming midnight", "晚上12点", "2026-03-08T00:00:00");
        row("evening's half past twelve is after it", "晚上12点半", "2026-03-08T00:30:00");
        row("evening's one is tomorrow's small hours", "晚上1点", "2026-03-08T01:00:00");
        row("evening's zero is the coming midnight", "晚上0点", "2026-03-08T00:00:00");
        row("evening's four is tomorrow's small hours", "晚上4点", "2026-03-08T04:00:00");
        row("tomorrow evening's twelve is the midnight after", "明天晚上12点", "2026-03-09T00:00:00");
        row("evening in 24 hours", "晚上20点", "2026-03-07T20:00:00");
        row("fifteen is not in the evening", "晚上15点", "contradiction");
        row("an hour that no clock has", "25点", "contradiction");

        row("one is in the afternoon", "一点", "2026-03-07T13:00:00");
        row("six is in the afternoon", "六点", "2026-03-07T18:00:00");
        row("six is in the afternoon also when it is past", "六点", "2026-03-07T18:00:00",
            "2026-03-07T21:00:00");
        row("seven is the next seven", "七点", "2026-03-07T19:00:00");
        row("eleven is the next eleven", "十一点", "2026-03-07T11:00:00");
        row("ten twenty at ten twenty is not past", "十点二十", "2026-03-07T10:20:00");
        row("ten nineteen at ten twenty is past", "十点十九", "2026-03-07T22:19:00");
        row("once both are past it is tomorrow", "九点", "2026-03-08T09:00:00", "2026-03-07T22:00:00");
        row("nine is the morning on another day", "明天九点", "2026-03-08T09:00:00");
        row("three is the afternoon on another day", "明天三点", "2026-03-08T15:00:00");
        row("thirteen is as said", "13点", "2026-03-07T13:00:00");
        row("thirteen is as said also when it is past", "13点", "2026-03-07T13:00:00", "2026-03-07T20:00:00");
        row("twelve is the next twelve", "十二点", "2026-03-07T12:00:00");
        row("twelve after noon is midnight", "十二点", "2026-03-08T00:00:00", "2026-03-07T20:00:00");
        row("midnight as 24", "24点", "2026-03-08T00:00:00");
        row("midnight as 零点", "零点", "2026-03-08T00:00:00");
        row("a time that is past stays past", "今天上午九点", "2026-03-07T09:00:00");

        row("the morning starts", "早上", "2026-03-07T08:00:00");
        row("the forenoon starts", "上午", "2026-03-07T10:00:00");
        row("noon starts", "中午", "2026-03-07T12:00:00");
        row("the afternoon starts", "下午", "2026-03-07T15:00:00");
        row("the evening starts", "晚上", "2026-03-07T20:00:00");
        row("the small hours have to be asked about", "凌晨", "no hour");
        row("a day alone carries no time", "明天", "2026-03-08");
        row("tomorrow is the calendar's after midnight", "明天", "2026-03-08", "2026-03-07T00:10:00");
        row("this morning", "今早", "2026-03-07T08:00:00");
        row("tonight", "今晚", "2026-03-07T20:00:00");
        row("tomorrow morning at nine", "明早九点", "2026-03-08T09:00:00");
        row("tomorrow night at eight", "明晚八点", "2026-03-08T20:00:00");
        row("last night", "昨晚八点", "2026-03-06T20:00:00");
        row("Friday night", "周五晚八点", "2026-03-13T20:00:00");
        row("yesterday", "昨天", "2026-03-06");
        row("the day before yesterday", "前天", "2026-03-05");
        row("three days on", "大后天", "2026-03-10");

        row("half an hour on", "半小时后", "2026-03-07T10:50:00");
        row("half an hour on, with measure", "半个小时后", "2026-03-07T10:50:00");
        row("an hour and a half on", "一个半小时以后", "2026-03-07T11:50:00");
        row("two hours and a half on", "两个半小时后", "2026-03-07T12:50:00");
        row("twenty minutes on", "过二十分钟", "2026-03-07T10:40:00");
        row("a quarter on", "一刻钟后", "2026-03-07T10:35:00");
        row("a decimal of hours on", "1.5小时后", "2026-03-07T11:50:00");
        row("a spoken decimal of hours on", "一点五个小时后", "2026-03-07T11:50:00");
        row("hours and minutes on", "一小时二十分钟后", "2026-03-07T11:40:00");
        row("an hour and a half on, the other way", "一小时半后", "2026-03-07T11:50:00");
        row("across midnight", "半小时后", "2026-03-08T00:20:00", "2026-03-07T23:50:00");
        row("two days on", "两天后", "2026-03-09T10:20:00");
        row("two days on at an hour", "两天后下午三点", "2026-03-09T15:00:00");
        row("a month on", "一个月后", "2026-04-07T10:20:00");
        row("seconds are dropped", "半小时后", "2026-03-07T10:50:00", "2026-03-07T10:20:45");

        row("seconds on do not end in the past", "三十秒后", "2026-03-07T10:21:00", "2026-03-07T10:20:10");
        row("seconds on across a minute", "三十秒后", "2026-03-07T10:22:00", "2026-03-07T10:20:45");
        row("half past", "三点半", "2026-03-07T15:30:00");
        row("a quarter past", "三点一刻", "2026-03-07T15:15:00");
        row("three quarters past", "三点三刻", "2026-03-07T15:45:00");
        row("a quarter to", "差一刻十二点", "2026-03-07T11:45:00");
        row("a quarter to, behind", "十二点差一刻", "2026-03-07T11:45:00");
        row("five minutes to", "差五分三点", "2026-03-07T14:55:00");
        row("five past", "三点零五", "2026-03-07T15:05:00");
        row("five past in the small hours", "凌晨三点零五", "2026-03-07T03:05:00");
        row("minutes with their sign", "三点五分", "2026-03-07T15:05:00");
        row("minutes without", "三点四十五", "2026-03-07T15:45:00");
        row("digits and a colon", "15:30", "2026-03-07T15:30:00");
        row("three thirty is in the afternoon", "3:30", "2026-03-07T15:30:00");
        row("an English afternoon", "3pm", "2026-03-07T15:00:00");
        row("twelve pm is noon", "12pm", "2026-03-07T12:00:00");
        row("twelve am is midnight", "明天12am", "2026-03-08T00:00:00");
        row("an English morning", "明天9:30 AM", "2026-03-08T09:30:00");
        row("a span gives its start", "三点到四点", "2026-03-07T15:00:00");
        row("a span whose end comes first gives its start", "四点到三点", "2026-03-07T16:00:00");
        row("a span in digits", "14:00-15:00", "2026-03-07T14:00:00");
        row("a span with one 点", "三到四点", "2026-03-07T15:00:00");
        row("a span with one 点 and a half at its end", "三到四点半", "2026-03-07T15:00:00");
        row("of two days the first is meant", "明天后天", "2026-03-08");
        row("a date with dots before an hour", "6.18下午三点", "2026-06-18T15:00:00");
        row("a date with a dash before an hour", "6-18 15:00", "2026-06-18T15:00:00");
        row("contracted hours on", "俩小时后", "2026-03-07T12:20:00");
        row("days on", "三日后", "2026-03-10T10:20:00");
        row("a span of days", "周一到周三", "2026-03-09");
    }
    void aTimeMeans()
    {
        QFETCH(QString, said);
        QFETCH(QString, meant);
        QFETCH(QString, now);
        const TimeMatch match = readTime(said, 0);
        QCOMPARE(match.kind, TimeMatch::Kind::Time);
        QCOMPARE(match.length, said.size());
        const ResolvedTime resolved = resolveTime(match.expression, QDateTime::fromString(now, Qt::ISODate));
        const char *problems[] = {"", "no such date", "contradiction", "no hour"};
        if (resolved.problem != ResolvedTime::Problem::None) {
            QCOMPARE(QString::fromLatin1(problems[static_cast<int>(resolved.problem)]), meant);
        } else {
            QCOMPARE(resolved.toString(), meant);
        }
    }

    void noTimeIsRead_data()
    {
        QTest::addColumn<QString>("said");
        for (const char *said :
             {"一点都不想", "一点儿", "三点建议", "两点意见", "3.14", "2.5版本", "几点", "123456", "会议",
              "三点五个小时", "一周三次", "一起", "一下", "十个人", "15:3", "三"}) {
            QTest::newRow(said) << QString::fromUtf8(said);
        }
    }
    void noTimeIsRead()
    {
        QFETCH(QString, said);
        QVERIFY(readTime(said, 0).kind != TimeMatch::Kind::Time);
    }

    /// Rules that look one character ahead must not read past the end.
    void noTimeBeginsBehindTheEnd()
    {
        for (const QString &said : {QString(), QStringLiteral("和张明")}) {
            QCOMPARE(readTime(said, said.size()).kind, TimeMatch::Kind::None);
        }
    }

    void lengthsOfTimeAreNoMoments_data()
    {
        QTest::addColumn<QString>("said");
        for (const char *said : {"一个小时", "半小时", "两个半小时", "二十分钟", "一刻钟", "3天"}) {
            QTest::newRow(said) << QString::fromUtf8(said);
        }
    }
    void lengthsOfTimeAreNoMoments()
    {
        QFETCH(QString, said);
        const TimeMatch match = readTime(said, 0);
        QCOMPARE(match.kind, TimeMatch::Kind::Duration);
        QCOMPARE(match.length, said.size());
    }

    void daysThatCannotBeToldAreUnclear_data()
    {
        QTest::addColumn<QString>("said");
        for (const char *said : {"下周", "这个星期", "周末", "下周末", "下个月", "三月", "明年"}) {
            QTest::newRow(said) << QString::fromUtf8(said);
        }
    }
    void daysThatCannotBeToldAreUnclear()
    {
        QFETCH(QString, said);
        const TimeMatch match = readTime(said, 0);
        QCOMPARE(match.kind, TimeMatch::Kind::UnclearDay);
        QCOMPARE(match.length, said.size());
    }
};

QTEST_APPLESS_MAIN(TestTimes)
#include "tst_times.moc"
