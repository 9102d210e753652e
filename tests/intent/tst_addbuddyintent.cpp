// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "addbuddyintent.h"

#include "handlerrun.h"
#include "logcapture.h"
#include "sourcerecords.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[{'name':'account','value':'zhang'}]";

} // namespace

class TestAddBuddyIntent : public QObject
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
    void withoutTheSlotNothingIsSent();
    void subclassReplacesTheWorker();

private:
    std::unique_ptr<LogCapture> m_log;
};

void TestAddBuddyIntent::eachOutcomeHasItsReply_data()
{
    QTest::addColumn<Script>("script");
    QTest::addColumn<Expected>("expected");
    const auto row = [](const char *name, const Script &script, const Expected &expected) {
        QTest::newRow(name) << script << expected;
    };

    row("sent", answers("{'ret':'OK'}"), texts(0, "已成功发送好友申请。"));
    row("already a friend", answers("{'ret':'Is Your Friend'}"), texts(-16009, "您已经添加过该好友。"));
    row("too many friends", answers("{'ret':'Exceed Friend Limit'}"),
        texts(-16010, "抱歉，您的好友已超过最大限制。"));
    row("account not found", answers("{'ret':'Not Found'}"), texts(-16011, "抱歉，没有找到该联系人。"));
    row("oneself", answers("{'ret':'Is Yourself'}"), texts(-16018, "抱歉，无法添加自己为好友。"));
    row("no conference", answers("{'ret':'No Conference'}"), untouched());
    row("malformed answer", answers("nonsense"), untouched());
    row("not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。"));
    row("timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。"));
    row("the call failed, first code", callFails(-1), texts(-1, "已尝试执行，但操作失败，请稍后重试。"));
    row("the call failed, last code", callFails(-9999), texts(-9999, "已尝试执行，但操作失败，请稍后重试。"));
    row("just below the failures of the call", callFails(-10000), untouched());
    row("a positive code of the call", callFails(5), untouched());
}

void TestAddBuddyIntent::eachOutcomeHasItsReply()
{
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runHandler(new AddBuddyIntent(nullptr), intentWith(UsualSlots), script), expected);
}

void TestAddBuddyIntent::eachOtherCodeLeavesTheReply_data()
{
    addCodesWithoutReply({0, -16009, -16010, -16011, -16017, -16018, -16020});
}

void TestAddBuddyIntent::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(new AddBuddyIntent(nullptr), code), untouched());
}

void TestAddBuddyIntent::requestHoldsWhatWasSaid_data()
{
    QTest::addColumn<QString>("slotArray");
    QTest::addColumn<QString>("parameters");
    const auto row = [](const char *name, const char *slotArray, const char *parameters) {
        QTest::newRow(name) << QString::fromUtf8(slotArray) << QString::fromUtf8(parameters);
    };

    row("as it was said", UsualSlots, R"({"userId":"zhang"})");
    row("the normal form goes before what was said",
        "[{'name':'account','value':'zhang three','normValue':'zhang3'}]", R"({"userId":"zhang3"})");
    row("the first account counts", "[{'name':'account','value':'a'},{'name':'account','value':'b'}]",
        R"({"userId":"a"})");
}

void TestAddBuddyIntent::requestHoldsWhatWasSaid()
{
    QFETCH(const QString, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun run = runHandler(new AddBuddyIntent(nullptr), intentWith(slotArray.toUtf8().constData()),
                                      answers("{'ret':'OK'}"));
    QCOMPARE(run.requests.size(), 1);
    QCOMPARE(run.requests.first().action, QStringLiteral("Add Friends"));
    QCOMPARE(run.requests.first().parameters, parameters);
}

void TestAddBuddyIntent::withoutTheSlotNothingIsSent()
{
    const HandlerRun run =
        runHandler(new AddBuddyIntent(nullptr), intentWith("[{'name':'password','value':'1'}]"),
                   answers("{'ret':'OK'}"));
    compareRun(run, texts(-102, "已尝试执行，但操作失败，请稍后重试。"));
    QVERIFY(run.requests.isEmpty());
    compareRecords(*m_log, "intent/addbuddyintent.cpp",
                   {{QtCriticalMsg, QStringLiteral("Add Buddy must contain slot:  account"),
                     QStringLiteral("virtual int AddBuddyIntent::handleAddBuddy(const CloudIntent&)")}});
}

void TestAddBuddyIntent::subclassReplacesTheWorker()
{
    class Replaced : public AddBuddyIntent
    {
    public:
        int handleAddBuddy(const CloudIntent & /*intent*/) override { return 77; }
    };
    Replaced handler;
    QCOMPARE(static_cast<IBusinessIntent &>(handler).action(intentWith()), 77);
}

QTEST_GUILESS_MAIN(TestAddBuddyIntent)

#include "tst_addbuddyintent.moc"
