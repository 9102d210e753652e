// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "askedactions.h"
#include "sampleworld.h"

#include "logcapture.h"
#include "testcolumns.h"

#include <QtTest>

/// Titles and passcodes set by requests.
class TestConferenceTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewConferenceHasTheTitleAndPasscodeAskedFor();
    void withoutThemItIsNamedAfterItsHostAndOpen();
    void aHostChangesThem();
    void whatCannotBeShownOrTypedIsRefused_data();
    void whatCannotBeShownOrTypedIsRefused();
    void nobodyElseChangesThem();
};

namespace {

const QLatin1String Title("title");
const QLatin1String Passcode("password");

QString textOf(const QJsonObject &conference, QLatin1String key)
{
    return conference.value(key).toString();
}

} // namespace

void TestConferenceTexts::aNewConferenceHasTheTitleAndPasscodeAskedFor()
{
    SampleWorld world;
    const QJsonObject answer =
        world.ask(Create, QJsonObject{{QLatin1String("startTime"), world.nowMsecs + 30 * 24 * 3600000LL},
                                      {Title, QStringLiteral(" 立项\u202e 讨论 ")},
                                      {Passcode, QStringLiteral("4711")}});
    QCOMPARE(ret(answer), QStringLiteral("OK"));
    const QString number = textOf(list(answer).at(0).toObject(), QLatin1String("conferenceDialNumber"));
    const std::optional<Conference> made =
        world.book.conferences().byDialNumber(number, QStringLiteral("u100001"));
    QVERIFY(made);
    QCOMPARE(made->title, QStringLiteral("立项 讨论"));
    QCOMPARE(made->passcode, QStringLiteral("4711"));
}

void TestConferenceTexts::withoutThemItIsNamedAfterItsHostAndOpen()
{
    SampleWorld world;
    const QJsonObject answer = world.ask(Create);
    const QJsonObject made = list(answer).at(0).toObject();
    QCOMPARE(textOf(made, Title), QStringLiteral("王小明的视频会议"));
    const std::optional<Conference> stored = world.book.conferences().byDialNumber(
        textOf(made, QLatin1String("conferenceDialNumber")), QStringLiteral("u100001"));
    QVERIFY(stored && stored->passcode.isEmpty());
}

void TestConferenceTexts::aHostChangesThem()
{
    SampleWorld world;
    const QString number = QStringLiteral("880100005");
    const auto stored = [&world, &number] {
        return *world.book.conferences().byDialNumber(number, QString());
    };
    const Conference before = stored();
    QCOMPARE(ret(world.ask(Update, QJsonObject{{QLatin1String("conferenceId"), before.confId},
                                               {Title, QStringLiteral("周会")},
                                               {Passcode, QStringLiteral("99")}})),
             QStringLiteral("OK"));
    QCOMPARE(stored().title, QStringLiteral("周会"));
    QCOMPARE(stored().passcode, QStringLiteral("99"));
    QCOMPARE(stored().startMsecs, before.startMsecs);
    // What a request leaves out stays; an empty passcode removes it.
    QCOMPARE(ret(world.ask(
                 Update, QJsonObject{{QLatin1String("conferenceId"), before.confId}, {Passcode, QString()}})),
             QStringLiteral("OK"));
    QCOMPARE(stored().title, QStringLiteral("周会"));
    QVERIFY(stored().passcode.isEmpty());
}

void TestConferenceTexts::whatCannotBeShownOrTypedIsRefused_data()
{
    addColumns<QString, QString, QString>({"action", "key", "value"});
    for (const QString &action : {Create, Update}) {
        const auto row = [&action](const char *name, QLatin1String key, const QString &value) {
            QTest::newRow(qPrintable(action + QStringLiteral(": ") + QLatin1String(name)))
                << action << QString(key) << value;
        };
        row("an empty title", Title, QString());
        row("a title of blanks and what nobody sees", Title, QStringLiteral(" \u202e\u0007 "));
        row("a passcode of 21 characters", Passcode, QStringLiteral("1").repeated(21));
        row("a passcode with a tab", Passcode, QStringLiteral("1\t2"));
        row("a passcode with a blank at its end", Passcode, QStringLiteral("12 "));
    }
}

void TestConferenceTexts::whatCannotBeShownOrTypedIsRefused()
{
    QFETCH(QString, action);
    QFETCH(QString, key);
    QFETCH(QString, value);
    SampleWorld world;
    const LogCapture log(LogCapture::Unexpected::Passes);
    const QJsonObject before = world.snapshot();
    QJsonObject parameters{{key, value}};
    if (action == Update) {
        parameters.insert(QLatin1String("conferenceId"), world.conferenceId(QStringLiteral("880100005")));
    }
    QCOMPARE(ret(world.ask(action, parameters)), QStringLiteral("Invalid Parameters"));
    QCOMPARE(world.snapshot(), before);
}

void TestConferenceTexts::nobodyElseChangesThem()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    QCOMPARE(ret(world.ask(Update, QJsonObject{{QLatin1String("conferenceId"),
                                                world.conferenceId(QStringLiteral("880100006"))},
                                               {Title, QStringLiteral("我的")}})),
             QStringLiteral("Not Found"));
    QCOMPARE(world.snapshot(), before);
}

QTEST_MAIN(TestConferenceTexts)
#include "tst_conferencetexts.moc"
