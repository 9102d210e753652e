// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "handlertest.h"

#include "sourcerecords.h"
#include "testcolumns.h"

#include <QTest>

#include <limits>

namespace {

const char CallFailed[] = "已尝试执行，但操作失败，请稍后重试。";

} // namespace

QVector<HandlerTest::Outcome> HandlerTest::allOutcomes() const
{
    return m_subject.outcomes +
           QVector<Outcome>{
               {"not logged in", answers("{'ret':'User Not Login'}"), texts(-16017, "已为您打开联系人。")},
               {"timed out", callFails(-16020), texts(-16020, "抱歉，请求响应超时。")},
               {"the call failed, first code", callFails(-1), texts(-1, CallFailed)},
               {"the call failed, last code", callFails(-9999), texts(-9999, CallFailed)},
               {"just below the failures of the call", callFails(-10000), untouched()},
               {"a positive code of the call", callFails(5), untouched()},
               {"an answer that is no JSON", answers("nonsense"), untouched()},
               {"an answer that breaks off", answers("["), untouched()},
               {"an empty answer", answers(""), untouched()},
           };
}

HandlerRun HandlerTest::runWith(const Script &script, const char *slotArray) const
{
    return runHandler(m_subject.make(), intentWith(slotArray == nullptr ? m_subject.usualSlots : slotArray),
                      script);
}

void HandlerTest::eachOutcomeHasItsReply_data()
{
    addColumns<QByteArray, Script, Expected>({"slotArray", "script", "expected"});
    QVERIFY2(!m_subject.outcomes.isEmpty(), "a handler needs a table of outcomes");
    const auto outcomes = allOutcomes();
    for (const Outcome &outcome : outcomes) {
        const char *slotArray = outcome.slotArray == nullptr ? m_subject.usualSlots : outcome.slotArray;
        QTest::newRow(outcome.name) << QByteArray(slotArray) << outcome.script << outcome.expected;
    }
}

void HandlerTest::eachOutcomeHasItsReply()
{
    QFETCH(const QByteArray, slotArray);
    QFETCH(const Script, script);
    QFETCH(const Expected, expected);
    compareRun(runWith(script, slotArray.constData()), expected);
}

void HandlerTest::eachOtherCodeLeavesTheReply_data()
{
    QTest::addColumn<int>("code");
    QVector<int> codes{
        1, 5, -10000, -16000, -16022, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    for (int code = -16001; code >= -16021; --code) {
        codes.append(code);
    }
    const auto outcomes = allOutcomes();
    for (const Outcome &outcome : outcomes) {
        codes.removeAll(outcome.expected.code);
    }
    for (const int code : qAsConst(codes)) {
        QTest::newRow(QByteArray::number(code).constData()) << code;
    }
}

void HandlerTest::eachOtherCodeLeavesTheReply()
{
    QFETCH(const int, code);
    compareRun(replyOf(m_subject.make(), code), untouched());
}

void HandlerTest::requestHoldsWhatWasSaid_data()
{
    addColumns<QByteArray, QString>({"slotArray", "parameters"});
    QVERIFY2(!m_subject.requests.isEmpty(), "a handler needs a table of requests");
    for (const Request &request : qAsConst(m_subject.requests)) {
        QTest::newRow(request.name) << QByteArray(request.slotArray) << QString::fromUtf8(request.parameters);
    }
}

void HandlerTest::requestHoldsWhatWasSaid()
{
    QFETCH(const QByteArray, slotArray);
    QFETCH(const QString, parameters);
    const HandlerRun sent = runWith(m_subject.accepted, slotArray.constData());
    QCOMPARE(sent.requests.size(), m_subject.accepted.answers.size());
    QCOMPARE(sent.requests.last().action, QString::fromLatin1(m_subject.action));
    QCOMPARE(sent.requests.last().parameters, parameters);
}

void HandlerTest::withoutItsSlotNothingIsSent()
{
    const RequiredSlot &slot = m_subject.requiredSlot;
    if (slot.others == nullptr) {
        QVERIFY2(!runWith(m_subject.accepted, "[]").requests.isEmpty(), "it must send without slots");
        return;
    }
    const HandlerRun without = runWith(m_subject.accepted, slot.others);
    compareRun(without, texts(-102, CallFailed));
    QVERIFY(without.requests.isEmpty());
    compareRecords(*m_log, slot.file,
                   {{QtCriticalMsg, QString::fromUtf8(slot.record), QString::fromLatin1(slot.function)}});
}

void HandlerTest::subclassReplacesTheWorker()
{
    const std::unique_ptr<IBusinessIntent> handler(m_subject.makeOtherWorker());
    QCOMPARE(handler->action(intentWith()), OtherCode);
}
