// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <kelvane/kelvaneabilitymanager.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

namespace {

constexpr int TimeoutMsecs = 15000;

int ask(const QString &action, const QString &parameters, QString &answer)
{
    const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
    ability->setTimeout(TimeoutMsecs);
    return ability->request(action, parameters, answer);
}

QString outcome(const QString &answer)
{
    return QJsonDocument::fromJson(answer.toUtf8()).object().value(QLatin1String("ret")).toString();
}

} // namespace

/// The library with the real application, which the first request starts.
class TestRealApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstRequestStartsTheApplication()
    {
        QString answer;
        QCOMPARE(ask(QStringLiteral("Search Conference"), QString(), answer), 0);
        QCOMPARE(outcome(answer), QStringLiteral("OK"));
    }

    void anUnknownActionIsAnswered()
    {
        QString answer;
        QCOMPARE(ask(QStringLiteral("Fly"), QString(), answer), 0);
        QCOMPARE(outcome(answer), QStringLiteral("Unknown Action"));
    }

    void manyThreadsAskAtOnce()
    {
        constexpr int threadCount = 16;
        constexpr int requestCount = 20;
        std::vector<int> answered(threadCount, 0);
        std::vector<std::thread> threads;
        for (int &count : answered) {
            threads.emplace_back([&count] {
                for (int i = 0; i < requestCount; ++i) {
                    QString answer;
                    if (ask(QStringLiteral("Is Conference Host"), QString(), answer) == 0 &&
                        outcome(answer) == QLatin1String("No Conference")) {
                        ++count;
                    }
                }
            });
        }
        for (std::thread &thread : threads) {
            thread.join();
        }
        QCOMPARE(answered, std::vector<int>(threadCount, requestCount));
    }
};

QTEST_GUILESS_MAIN(TestRealApplication)
#include "tst_realapplication.moc"
