// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "besideafloor.h"
#include "busnames.h"
#include "configmanager.h"
#include "contactintentfactory.h"
#include "contactservice.h"
#include "runbenchmarks.h"
#include "stubs.h"
#include "threadtime.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

/// A request as the understanding service sends it, some 400 bytes, with the given intent and slots.
QString request(const char *intentName, const char *slotArray)
{
    return QStringLiteral(
               R"({"intent":{"service":"contact","semantic":[{"intent":"%1","score":0.98,"slots":%2}],)"
               R"("shouldEndSession":true,"answer":{"text":"好的"},)"
               R"("voice_answer":[{"type":"TTS","content":"好的"}]},"text":"%3","sid":"c0a80101-0001",)"
               R"("version":"3.1"})")
        .arg(QString::fromUtf8(intentName), QString::fromUtf8(slotArray),
             QStringLiteral("请帮我看一下我今天和明天都有哪些视频会议要参加然后告诉我"));
}

QString addBuddy()
{
    return request("ADD_BUDDY",
                   R"([{"name":"account","value":"zhang san","normValue":"zhangsan","begin":2,"end":11}])");
}

QString invite()
{
    return request("INVITE_CONFERENCE",
                   R"([{"name":"name","value":"张三","normValue":"张三","begin":2,"end":4},)"
                   R"({"name":"name","value":"小李","normValue":"李雷","begin":5,"end":7}])");
}

QString joinMine()
{
    return request("ENTER_MY_CONFERENCE", "[]");
}

QString invited()
{
    return QStringLiteral("{\"ret\":\"OK\"}");
}

/// The answer to "Join my conference" with @p count conferences to choose from. No card is built: nothing
/// listens here.
QString manyConferences(int count)
{
    QJsonArray list;
    for (int i = 0; i < count; ++i) {
        list.append(
            QJsonObject{{QStringLiteral("confId"), QStringLiteral("conference-%1").arg(i)},
                        {QStringLiteral("conferenceDialNumber"), QString::number(400100 + i)},
                        {QStringLiteral("title"), QStringLiteral("第%1次周会").arg(i)},
                        {QStringLiteral("startTime"), 1772935200000 + i * 3600000LL},
                        {QStringLiteral("duration"), 3600000},
                        {QStringLiteral("participantLimit"), 100},
                        {QStringLiteral("status"), QStringLiteral("0")},
                        {QStringLiteral("isPayingUser"), false},
                        {QStringLiteral("participants"),
                         QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("张三")},
                                                {QStringLiteral("userId"), QStringLiteral("u1")},
                                                {QStringLiteral("account"), QStringLiteral("zhangsan")}},
                                    QJsonObject{{QStringLiteral("name"), QStringLiteral("李雷")},
                                                {QStringLiteral("userId"), QStringLiteral("u2")},
                                                {QStringLiteral("account"), QStringLiteral("lilei")}}}}});
    }
    const QJsonObject answer{{QStringLiteral("ret"), QStringLiteral("Time Overlap")},
                             {QStringLiteral("list"), list}};
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

// Not inlined: benchmarks/instructions counts what each of them takes.

[[gnu::noinline]] void answerOnce(const QString &semantic)
{
    ContactService service(QStringLiteral("contact"), ContactIntentFactory::instance(), 10);
    service.service(semantic);
    benchmark::DoNotOptimize(service.getServiceReply()->code);
}

[[gnu::noinline]] void parseOnce(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    benchmark::DoNotOptimize(document.isNull());
}

/// Alternates between both, so that other load on the machine affects both; reports the time to answer as a
/// multiple of the parse.
void measureRatio(benchmark::State &state, const QString &semantic, const QString &answer,
                  const QByteArray &parsed, int runs = 100)
{
    Stubs::answerAtOnce(answer);
    double answering = 0;
    double parsing = 0;
    for (auto _ : state) {
        const double begin = threadMsecs();
        for (int i = 0; i < runs; ++i) {
            answerOnce(semantic);
        }
        const double middle = threadMsecs();
        for (int i = 0; i < runs; ++i) {
            parseOnce(parsed);
        }
        answering += middle - begin;
        parsing += threadMsecs() - middle;
    }
    const double count = static_cast<double>(runs) * static_cast<double>(state.iterations());
    state.counters["bytes"] = static_cast<double>(parsed.size());
    state.counters["answer_us"] = answering * 1e3 / count;
    state.counters["parse_us"] = parsing * 1e3 / count;
    state.counters["ratio"] = answering / parsing;
}

void requestAgainstItsParse(benchmark::State &state, QString (*text)())
{
    measureRatio(state, text(), invited(), text().toUtf8());
}
BENCHMARK_CAPTURE(requestAgainstItsParse, addBuddy, addBuddy)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(requestAgainstItsParse, invite, invite)->Unit(benchmark::kMillisecond);

/// Measures an answer with range(0) conferences.
void answerAgainstItsParse(benchmark::State &state)
{
    const int count = static_cast<int>(state.range(0));
    const QString answer = manyConferences(count);
    constexpr int manyAtOnce = 10000;
    measureRatio(state, joinMine(), answer, answer.toUtf8(), std::clamp(manyAtOnce / count, 1, 100));
}
BENCHMARK(answerAgainstItsParse)->RangeMultiplier(10)->Range(1, 100000)->Unit(benchmark::kMillisecond);

void serviceAndReply(benchmark::State &state)
{
    const QString semantic = addBuddy();
    Stubs::answerAtOnce(invited());
    for (auto _ : state) {
        answerOnce(semantic);
    }
}
BENCHMARK(serviceAndReply)->Unit(benchmark::kMicrosecond);

void bareParse(benchmark::State &state)
{
    const QByteArray text = addBuddy().toUtf8();
    for (auto _ : state) {
        parseOnce(text);
    }
}
BENCHMARK(bareParse)->Unit(benchmark::kMicrosecond);

/// The floor: one shell that does nothing; the check starts a shell and four more programs.
void processCheck(benchmark::State &state)
{
    const auto check = [] {
        benchmark::DoNotOptimize(Stubs::realProcessCheck());
        return true;
    };
    const auto startAShell = [] {
        return std::system(":") == 0;
    };
    measureBesideAFloor(state, check, startAShell, wallMsecs);
}
BENCHMARK(processCheck)->Unit(benchmark::kMillisecond)->UseManualTime();

/// The floor: the shortest call that Qt makes to the same application.
void roundTripToTheApplication(benchmark::State &state)
{
    Stubs::askTheApplication();
    static constexpr int timeout = 5000; // milliseconds
    QString answer;
    const auto ask = [&answer] {
        const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
        ability->setTimeout(timeout);
        return ability->request(QStringLiteral("Is Conference Host"), QString(), answer) == 0;
    };
    // The first request starts the application.
    if (!ask()) {
        state.SkipWithError("the contacts application does not answer; run this through benchmarks/run");
        return;
    }
    const QDBusMessage ping =
        QDBusMessage::createMethodCall(BusName::service(), BusName::contactPath(),
                                       QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping"));
    const auto callBare = [&ping] {
        const QDBusMessage pong = QDBusConnection::sessionBus().call(ping, QDBus::Block, timeout);
        return pong.type() == QDBusMessage::ReplyMessage;
    };
    measureBesideAFloor(state, ask, callBare, wallMsecs);
}
BENCHMARK(roundTripToTheApplication)->Unit(benchmark::kMicrosecond)->UseManualTime();

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Writing records out is the host's cost.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    // Done once per process, by the first record: not a turn's cost.
    QLoggingCategory::defaultCategory()->isDebugEnabled();
    // As in an installation; without it each request logs two misses.
    ConfigManager::instance()->fromJson(QJsonObject{
        {QStringLiteral("Contact"), QJsonObject{{QStringLiteral("TimeOut"), QStringLiteral("5000")},
                                                {QStringLiteral("MaxTimeOut"), QStringLiteral("15000")}}}});
    return runBenchmarks(argc, argv);
}
