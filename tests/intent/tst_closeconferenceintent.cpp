// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "closeconferenceintent.h"

#include "handlerrun.h"
#include "logcapture.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[]";

} // namespace

class TestCloseConferenceIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log.reset(new LogCapture(LogCapture::Unexpected::Passes)); }
    void cleanup() { m_log.reset(); }

    void eachOutcomeHasItsReply_data();
    void eachOutcomeHasItsReply();
    void eachOtherCodeLeavesTheReply_data();
    void eachOtherCodeLeavesTheReply();
    void requestHoldsWhatWasSaid_data();
    void requestHoldsWhatWasSaid();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestCloseConferenceIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("left", answers("{'ret':'OK'}"), texts(0, "好的。"));
    row("left, in the other word", answers("{'ret':'Success'}"), texts(0, "好的。"));
    row("none runs", answers("{'ret':'No Conference'}"), texts(-16005, "您没有正在开始的视频会议。"));
    row("not found", answers("{'ret':'Not Found'}"), untouched());
    row("true", answers("{'ret':'True'}"), untouched());
    row("malformed answer", answers("nonsense"), untouched());
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("just below the failures of the call", callFails(-10000), untouched());
    row("a positive code of the call", callFails(5), untouched());
}

void TestCloseConferenceIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new CloseConferenceIntent(nullptr), intentWith(UsualSlots), script), expected);
}

void TestCloseConferenceIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16005, -16017, -16020});
}

void TestCloseConferenceIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new CloseConferenceIntent(nullptr), code), untouched());
}

void TestCloseConferenceIntent::requestHoldsWhatWasSaid_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("nothing", UsualSlots, "");
    row("slots are not read", "[{'name':'id','value':'4001'},{'name':'name','value':'a'}]", "");
}

void TestCloseConferenceIntent::requestHoldsWhatWasSaid()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new CloseConferenceIntent(nullptr),
                                      intentWith(slotArray.toUtf8().constData()), answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Exit Conference"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestCloseConferenceIntent::subclassReplacesTheWorker()
{
    class Replaced : public CloseConferenceIntent
    {
    public:
        int handleCloseConference(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestCloseConferenceIntent)

#include "tst_closeconferenceintent.moc"
