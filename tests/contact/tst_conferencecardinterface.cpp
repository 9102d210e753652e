// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencecardinterface.h"
#include "configmanager.h"
#include "contactutils.h"
#include "fakeprocesstable.h"
#include "logcapture.h"
#include "scriptedability.h"
#include "signalactiontype.h"
#include "testcolumns.h"

#include <QJsonObject>
#include <QThread>
#include <QtTest>

#include <functional>
#include <memory>
#include <thread>

using Operation = std::function<int(ConferenceCardInterface &)>;
Q_DECLARE_METATYPE(Operation)

namespace {

const QString Params = QStringLiteral("{\"as\":\"given\"}");

void addOperations()
{
    addColumns<Operation, QString, QString, QString, int>(
        {"operation", "action", "parameters", "word", "code"});
    const auto row = [](const char *name, const Operation &operation, const char *action,
                        const QString &parameters, const char *word, int code) {
        QTest::newRow(name) << operation << QString::fromUtf8(action) << parameters << QString::fromUtf8(word)
                            << code;
    };
    using Gateway = ConferenceCardInterface;
    // Each word's code tells which analyser ran.
    row(
        "create with members",
        [](Gateway &gateway) {
            ContactCreatedConferenceDetail detail;
            return gateway.createVideoConference(Params, {}, false, 0, detail);
        },
        "Create Conference", Params, "Time Overlap", -16008);
    row(
        "create at once", [](Gateway &gateway) { return gateway.createVideoConference(Params, 0); },
        "Create Conference", Params, "Conference Create Too Frequently", -16019);
    row(
        "create for later",
        [](Gateway &gateway) { return gateway.createVideoConference(Params, 1700000000000); },
        "Create Conference", Params, "Time Overlap", -16008);
    row(
        "invite with members",
        [](Gateway &gateway) {
            ContactInviteMemberDetail detail;
            return gateway.inviteVideoConference(Params, {}, detail);
        },
        "Invite Members", Params, "Not Found", -16002);
    row(
        "invite", [](Gateway &gateway) { return gateway.inviteVideoConference(Params); }, "Invite Members",
        Params, "Exceed Members Limit", -16006);
    row(
        "join my conference",
        [](Gateway &gateway) {
            QVector<ContactDetailMsg> conferences;
            return gateway.JoinMyVideoConference(conferences);
        },
        "Join My Conference", QString(), "unknown", -16005);
    row(
        "query",
        [](Gateway &gateway) {
            QVector<ContactDetailMsg> conferences;
            return gateway.QueryVideoConference(Params, 5, conferences);
        },
        "Search Conference", Params, "OK", -16007);
    row(
        "delete", [](Gateway &gateway) { return gateway.deleteVideoConference(QStringLiteral("7")); },
        "Delete Conference", QStringLiteral(R"({"conferenceId":"7"})"), "Not Found", -16011);
    row(
        "add a friend", [](Gateway &gateway) { return gateway.addBuddy(QStringLiteral("李雷")); },
        "Add Friends", QStringLiteral(R"({"userId":"李雷"})"), "Is Your Friend", -16009);
    row(
        "close", [](Gateway &gateway) { return gateway.closeVideoConference(); }, "Exit Conference",
        QString(), "No Conference", -16005);
    row(
        "open the list", [](Gateway &gateway) { return gateway.openConferenceList(); },
        "Open Conference List", QString(), "Success", 0);
    row(
        "update", [](Gateway &gateway) { return gateway.UpdateVideoConference(Params); }, "Update Conference",
        Params, "Not Found", -16007);
    row(
        "join",
        [](Gateway &gateway) {
            return gateway.JoinVideoConference(QStringLiteral("801"), QStringLiteral("12"));
        },
        "Join Conference", QStringLiteral(R"({"conferenceId":"801","password":"12"})"), "Invalid Passcode",
        -16014);
}

QString answerOf(const QString &word)
{
    return QStringLiteral(R"({"ret": "%1"})").arg(word);
}

QVector<AbilityEvent::Kind> kindsOf(const QVector<AbilityEvent> &events)
{
    QVector<AbilityEvent::Kind> kinds;
    for (const AbilityEvent &event : events) {
        kinds.append(event.kind);
    }
    return kinds;
}

QVector<AbilityEvent::Kind> oneRequest()
{
    return {AbilityEvent::Created, AbilityEvent::TimeoutSet, AbilityEvent::Requested, AbilityEvent::Deleted};
}

} // namespace

class TestConferenceCardInterface : public QObject
{
    Q_OBJECT

private:
    ScriptedAbility &m_script = ScriptedAbility::instance();
    ConferenceCardInterface &m_gateway = *ConferenceCardInterface::instance();
    std::unique_ptr<FakeProcessTable> m_table;

    void showProcesses(int matches)
    {
        m_table.reset(); // restores PATH before the next table changes it
        m_table = std::make_unique<FakeProcessTable>(matches);
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QJsonObject contact{{QStringLiteral("TimeOut"), QStringLiteral("800")},
                                  {QStringLiteral("MaxTimeOut"), QStringLiteral("9000")}};
        QVERIFY(ConfigManager::instance()->fromJson(QJsonObject{{QStringLiteral("Contact"), contact}}));
    }
    void init()
    {
        m_script.reset();
        showProcesses(1);
    }
    void cleanup()
    {
        QCOMPARE(m_script.alive(), 0);
        m_table.reset();
    }

    void operationIsOneRequest_data() { addOperations(); }
    void operationIsOneRequest()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, word);
        m_script.enqueue(0, answerOf(word));
        const LogCapture log;
        QTEST(operation(m_gateway), "code");
        const QVector<AbilityEvent> events = m_script.events();
        QCOMPARE(kindsOf(events), oneRequest());
        QCOMPARE(events.at(1).timeout, 800);
        QTEST(events.at(2).action, "action");
        QTEST(events.at(2).parameters, "parameters");
        for (const AbilityEvent &event : events) {
            QCOMPARE(event.thread, QThread::currentThreadId());
            QCOMPARE(event.ability, 1);
        }
    }

    void failedCallIsPassedOnUnread_data() { addOperations(); }
    void failedCallIsPassedOnUnread()
    {
        QFETCH(Operation, operation);
        const LogCapture log; // reading this answer would log a warning
        for (const int code : {5, -1, -16020}) {
            m_script.reset();
            m_script.enqueue(code, QStringLiteral("not JSON"));
            QCOMPARE(operation(m_gateway), code);
            QCOMPARE(kindsOf(m_script.events()), oneRequest());
        }
    }

    void exceptionEndsInTheBridge_data() { addOperations(); }
    void exceptionEndsInTheBridge()
    {
        QFETCH(Operation, operation);
        QFETCH(QString, action);
        m_script.throwFromNextRequest("broken");
        LogCapture log;
        log.expect(QtWarningMsg, QStringLiteral("The contact ability failed: \"%1\" broken").arg(action));
        QCOMPARE(operation(m_gateway), -1);
        QCOMPARE(kindsOf(m_script.events()), oneRequest());
    }

    void libraryWithoutAnAbilityIsAFailedCall_data() { addOperations(); }
    void libraryWithoutAnAbilityIsAFailedCall()
    {
        QFETCH(Operation, operation);
        m_script.refuseToCreate();
        const LogCapture log;
        QCOMPARE(operation(m_gateway), -1);
    }

    void nothingIsCachedBetweenRequests()
    {
        m_script.enqueue(0, answerOf(QStringLiteral("OK")));
        m_script.enqueue(0, answerOf(QStringLiteral("OK")));
        m_gateway.closeVideoConference();
        showProcesses(0);
        m_gateway.closeVideoConference();
        QCOMPARE(kindsOf(m_script.events()), oneRequest() + oneRequest());
        QCOMPARE(m_script.requests().at(0).timeout, 800);
        QCOMPARE(m_script.requests().at(1).timeout, 9000);
        QCOMPARE(m_script.requests().at(1).ability, 2);
    }

    void createdConferenceIsHandedOut()
    {
        m_script.enqueue(0, QStringLiteral(R"({"ret": "OK", "list": [{"confId": "7"}]})"));
        ContactCreatedConferenceDetail detail;
        QCOMPARE(m_gateway.createVideoConference(Params, {QStringLiteral("A")}, true, 77, detail), 0);
        QCOMPARE(detail.isSchedule, true);
        QCOMPARE(detail.scheduleTimeMsecs, qint64(77));
        QCOMPARE(detail.conferences.size(), 1);
    }

    void invitedMembersAreHandedOut()
    {
        m_script.enqueue(
            0, QStringLiteral(R"({"ret": "Return", "users": [{"name": "A", "status": "Not Found"}]})"));
        ContactInviteMemberDetail detail;
        QCOMPARE(m_gateway.inviteVideoConference(Params, {QStringLiteral("A")}, detail), -16002);
        QCOMPARE(detail.notExistUsers, QVector<QString>{QStringLiteral("A")});
    }

    void conferencesToJoinAreHandedOut()
    {
        m_script.enqueue(
            0, QStringLiteral(R"({"ret": "Time Overlap", "list": [{"confId": "7"}, {"confId": "8"}]})"));
        QVector<ContactDetailMsg> conferences;
        QCOMPARE(m_gateway.JoinMyVideoConference(conferences), -16008);
        QCOMPARE(conferences.size(), 2);
    }

    void conferencesFoundAreHandedOut()
    {
        m_script.enqueue(0, QStringLiteral(R"({"ret": "OK", "list": [{"confId": "7"}]})"));
        QVector<ContactDetailMsg> conferences;
        QCOMPARE(m_gateway.QueryVideoConference(Params, 0, conferences), 0);
        QCOMPARE(conferences.size(), 1);
    }

    void inMeeting_data()
    {
        addColumns<int, QString, bool>({"call", "answer", "isInMeeting"});
        QTest::newRow("host") << 0 << answerOf(QStringLiteral("True")) << true;
        QTest::newRow("guest") << 0 << answerOf(QStringLiteral("False")) << true;
        QTest::newRow("ok") << 0 << answerOf(QStringLiteral("OK")) << true;
        QTest::newRow("not logged in") << 0 << answerOf(QStringLiteral("User Not Login")) << true;
        QTest::newRow("unknown word") << 0 << answerOf(QStringLiteral("?")) << true;
        QTest::newRow("no conference") << 0 << answerOf(QStringLiteral("No Conference")) << false;
        QTest::newRow("call failed") << 5 << answerOf(QStringLiteral("True")) << false;
        QTest::newRow("timed out") << -16020 << QString() << false;
        QTest::newRow("call failed with an answer's code") << -16001 << QString() << false;
    }
    void inMeeting()
    {
        QFETCH(int, call);
        QFETCH(QString, answer);
        m_script.enqueue(call, answer);
        const LogCapture log;
        QTEST(m_gateway.isInMeetingCheck(), "isInMeeting");
        QCOMPARE(m_script.onlyRequest().action, QStringLiteral("Is Conference Host"));
        QCOMPARE(m_script.onlyRequest().parameters, QString());
        QCOMPARE(m_script.onlyRequest().timeout, 800);
        QCOMPARE(kindsOf(m_script.events()), oneRequest());
    }

    void unreadableAnswerCountsAsInMeeting()
    {
        m_script.enqueue(0, QStringLiteral("{"));
        const LogCapture log(LogCapture::Unexpected::Passes);
        QVERIFY(m_gateway.isInMeetingCheck());
    }

    void exceptionCountsAsNotInMeeting()
    {
        m_script.throwFromNextRequest("broken");
        LogCapture log;
        log.expect(QtWarningMsg, QStringLiteral("The contact ability failed: \"Is Conference Host\" broken"));
        QVERIFY(!m_gateway.isInMeetingCheck());
    }

    void withoutTheApplicationNobodyIsInAMeeting()
    {
        showProcesses(0);
        QVERIFY(!m_gateway.isInMeetingCheck());
        QVERIFY(m_script.events().isEmpty());
    }

    void requestsOfTwoThreadsDoNotWaitForEachOther()
    {
        m_script.setAnswer(QStringLiteral("Add Friends"), 0, answerOf(QStringLiteral("OK")));
        m_script.setAnswer(QStringLiteral("Exit Conference"), 0, answerOf(QStringLiteral("No Conference")));
        m_script.block();
        int first = 1;
        int second = 1;
        std::thread adder([&] { first = m_gateway.addBuddy(QStringLiteral("A")); });
        std::thread closer([&] { second = m_gateway.closeVideoConference(); });
        QTRY_COMPARE(m_script.blocked(), 2);
        m_script.release();
        adder.join();
        closer.join();
        QCOMPARE(first, 0);
        QCOMPARE(second, -16005);
    }

    void noticeLogsAndEmits()
    {
        Reply reply(0, QStringLiteral("text"), Reply::Texts);
        ContactInviteMemberDetail record;
        record.canInviteNum = 4;
        int type = -1;
        int canInvite = -1;
        Reply *seen = nullptr;
        QObject context;
        const auto take = [&](const int &actionType, const QVariant &payload, Reply *joined) {
            type = actionType;
            canInvite = payload.value<ContactInviteMemberDetail>().canInviteNum;
            seen = joined;
        };
        QObject::connect(&m_gateway, &ConferenceCardInterface::sentActionSignals, &context, take);
        const LogCapture log;
        m_gateway.noticeSentActionSignals(Invite_ExceedLimit, QVariant::fromValue(record), &reply);
        QCOMPARE(type, 4);
        QCOMPARE(canInvite, 4);
        QCOMPARE(seen, &reply);
        QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: Signals: ActionType 4")});
    }

    void oneInstanceForTheProcess()
    {
        QCOMPARE(ConferenceCardInterface::instance(), &m_gateway);
        QVERIFY(m_gateway.parent() == nullptr);
        QCOMPARE(m_gateway.metaObject()->className(), "ConferenceCardInterface");
        QVERIFY(m_gateway.metaObject()->indexOfSignal("sentActionSignals(int,QVariant,Reply*)") >= 0);
        QCOMPARE(sizeof(ConferenceCardInterface), sizeof(QObject));
    }
};

QTEST_GUILESS_MAIN(TestConferenceCardInterface)

#include "tst_conferencecardinterface.moc"
