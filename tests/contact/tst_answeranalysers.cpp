// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactutils.h"
#include "logcapture.h"
#include "testcolumns.h"
#include "wire/resultcodes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

/// A list beside the outcome word, to see whether the analyser reads it.
constexpr char OneConference[] = R"("list": [{"confId": "7"}])";

QString answerOf(const char *word, const QByteArray &rest = OneConference)
{
    return QString::fromUtf8(QByteArray("{\"ret\": \"") + word + "\"" + (rest.isEmpty() ? "" : ", ") + rest +
                             "}");
}

struct Row
{
    const char *word;
    int code;
};

/// The words that inviting people and creating a conference have in common.
QVector<Row> memberWords()
{
    return {{"OK", 0},
            {"Not Found", -16002},
            {"Conference Not Start", -16005},
            {"Exceed Members Limit", -16006},
            {"Return", 0}, // no users, so none is missing
            {"Conference Create Too Frequently", -16019},
            {"In Other Conference", -16013},
            {"User Not Login", -16017}};
}

/// Every word that any of the analysers knows.
const char *const AllWords[] = {
    "OK", "Success", "Return", "Duplicate", "Not Found", "No Conference", "Conference Not Start",
    "In Other Conference", "Conference Create Too Frequently", "Exceed Members Limit",
    "Participant Out Limit", "Time Overlap", "Invalid Passcode", "Update Failed", "Is Your Friend",
    "Exceed Friend Limit", "Is Yourself", "User Not Login", "True", "False",
    // Near misses.
    "ok", "success", "OK ", "not found", "TRUE", ""};

/// Adds a row for every word; words missing from @p table give @p otherwise.
void addRows(const QVector<Row> &table, int otherwise)
{
    addColumns<QString, int>({"word", "code"});
    for (const char *word : AllWords) {
        int code = otherwise;
        for (const Row &row : table) {
            if (qstrcmp(row.word, word) == 0) {
                code = row.code;
            }
        }
        QTest::addRow("\"%s\" gives %d", word, code) << QString::fromUtf8(word) << code;
    }
}

/// A record with every member set, to see which are overwritten.
ContactCreatedConferenceDetail filledDetail()
{
    ContactCreatedConferenceDetail detail;
    detail.isSchedule = true;
    detail.scheduleTimeMsecs = 5;
    detail.conferences.resize(3);
    detail.inviteDetail.notExistUsers.resize(3);
    detail.inviteDetail.canInviteNum = 9;
    return detail;
}

/// The codes of all analysers for @p answer: general, creation, invitation, joining, query, update.
QVector<int> codesOf(const QString &answer, ContactCreatedConferenceDetail &created,
                     QVector<ContactDetailMsg> &conferences)
{
    return {ContactUtils::analyzeReturnContext(answer),
            ContactUtils::analyzeResultContext(answer, {}, false, 77, created),
            ContactUtils::analyzeResultContext(answer, {}, created.inviteDetail),
            ContactUtils::analyzeJoinReturnContext(answer, conferences),
            ContactUtils::analyzeQueryResultContext(answer, 0, conferences),
            ContactUtils::analyzeUpdateReturnContext(answer, created)};
}

} // namespace

class TestAnswerAnalysers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void generalWords_data()
    {
        addRows({{"OK", 0},
                 {"Success", 0},
                 {"No Conference", -16005},
                 {"Not Found", -16011},
                 {"Is Your Friend", -16009},
                 {"Exceed Friend Limit", -16010},
                 {"False", -16016},
                 {"True", -16015},
                 {"User Not Login", -16017},
                 {"Is Yourself", -16018}},
                -16001);
    }
    void generalWords()
    {
        QFETCH(QString, word);
        const LogCapture log;
        QTEST(ContactUtils::analyzeReturnContext(answerOf(word.toUtf8().constData())), "code");
        QCOMPARE(log.lines(), QStringList());
    }

    void inviteWords_data() { addRows(memberWords(), -16001); }
    void inviteWords()
    {
        QFETCH(QString, word);
        ContactInviteMemberDetail detail = filledDetail().inviteDetail;
        const LogCapture log;
        QTEST(ContactUtils::analyzeResultContext(answerOf(word.toUtf8().constData()), {}, detail), "code");
        const bool isWritten =
            word == QStringLiteral("Return") || word == QStringLiteral("Exceed Members Limit");
        QCOMPARE(detail.notExistUsers.size(), isWritten ? 0 : 3);
        QCOMPARE(detail.canInviteNum, isWritten ? 0 : 9);
        QCOMPARE(log.lines(), QStringList());
    }

    void createWords_data() { addRows(memberWords() + QVector<Row>{{"Time Overlap", -16008}}, -16001); }
    void createWords()
    {
        QFETCH(QString, word);
        ContactCreatedConferenceDetail detail = filledDetail();
        const LogCapture log;
        QTEST(ContactUtils::analyzeResultContext(answerOf(word.toUtf8().constData()), {}, false, 77, detail),
              "code");
        QCOMPARE(detail.isSchedule, false);
        QCOMPARE(detail.scheduleTimeMsecs, qint64(77));
        const bool readsList = word == QStringLiteral("Return") || word == QStringLiteral("Time Overlap");
        QCOMPARE(detail.conferences.size(), readsList ? 1 : 3);
        const bool readsUsers =
            word == QStringLiteral("Return") || word == QStringLiteral("Exceed Members Limit");
        QCOMPARE(detail.inviteDetail.notExistUsers.size(), readsUsers ? 0 : 3);
        QCOMPARE(log.lines(), QStringList());
    }

    void listOfACreatedConferenceIsReadWhenScheduled_data()
    {
        addColumns<bool, int>({"isSchedule", "conferences"});
        QTest::newRow("scheduled: read") << true << 1;
        QTest::newRow("at once: left as it was") << false << 3;
    }
    void listOfACreatedConferenceIsReadWhenScheduled()
    {
        QFETCH(bool, isSchedule);
        QFETCH(int, conferences);
        ContactCreatedConferenceDetail detail = filledDetail();
        QCOMPARE(ContactUtils::analyzeResultContext(answerOf("OK"), {}, isSchedule, 1700000000000, detail),
                 0);
        QCOMPARE(detail.conferences.size(), conferences);
        QCOMPARE(detail.isSchedule, isSchedule);
        QCOMPARE(detail.scheduleTimeMsecs, qint64(1700000000000));
        QCOMPARE(detail.inviteDetail.canInviteNum, 9);
    }

    void joinWords_data()
    {
        addRows({{"OK", 0},
                 {"Conference Not Start", -16005},
                 {"Not Found", -16007},
                 {"Invalid Passcode", -16014},
                 {"In Other Conference", -16013},
                 {"Time Overlap", -16008},
                 {"User Not Login", -16017},
                 {"Participant Out Limit", -16021}},
                -16005);
    }
    void joinWords()
    {
        QFETCH(QString, word);
        QVector<ContactDetailMsg> conferences(3);
        const LogCapture log;
        QTEST(ContactUtils::analyzeJoinReturnContext(answerOf(word.toUtf8().constData()), conferences),
              "code");
        QCOMPARE(conferences.size(), word == QStringLiteral("Time Overlap") ? 1 : 3);
        QCOMPARE(log.lines(), QStringList());
    }

    void queryWords_data()
    {
        addRows({{"OK", 0}, {"User Not Login", -16017}, {"Not Found", -16007}}, -16001);
    }
    void queryWords()
    {
        QFETCH(QString, word);
        QVector<ContactDetailMsg> conferences(3);
        const LogCapture log;
        QTEST(ContactUtils::analyzeQueryResultContext(answerOf(word.toUtf8().constData()), 5, conferences),
              "code");
        QCOMPARE(conferences.size(), word == QStringLiteral("OK") ? 1 : 3);
        QCOMPARE(log.lines(), QStringList());
    }

    void queryThatFindsNothing_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("empty list") << answerOf("OK", R"("list": [])");
        QTest::newRow("no list") << answerOf("OK", "");
        QTest::newRow("list is an object") << answerOf("OK", R"("list": {"confId": "7"})");
        QTest::newRow("list is null") << answerOf("OK", R"("list": null)");
    }
    void queryThatFindsNothing()
    {
        QFETCH(QString, answer);
        QVector<ContactDetailMsg> conferences(3);
        QCOMPARE(ContactUtils::analyzeQueryResultContext(answer, 0, conferences), -16007);
        QCOMPARE(conferences.size(), 3);
    }

    void updateWords_data()
    {
        addRows({{"OK", 0}, {"Not Found", -16007}, {"Update Failed", -16001}, {"User Not Login", -16017}},
                -16001);
    }
    void updateWords()
    {
        QFETCH(QString, word);
        ContactCreatedConferenceDetail detail = filledDetail();
        const LogCapture log;
        QTEST(ContactUtils::analyzeUpdateReturnContext(answerOf(word.toUtf8().constData()), detail), "code");
        const bool isRead = word == QStringLiteral("OK");
        QCOMPARE(detail.conferences.size(), isRead ? 1 : 3);
        QCOMPARE(log.lines(),
                 isRead ? QStringList{QStringLiteral("debug: MeetingDetail size() = 1")} : QStringList());
        QCOMPARE(detail.scheduleTimeMsecs, qint64(5));
    }

    void namesDecideWhatReturnMeans_data()
    {
        addColumns<QStringList, int>({"statuses", "code"});
        const QString ok = QStringLiteral("OK");
        const QString twice = QStringLiteral("Duplicate");
        const QString missing = QStringLiteral("Not Found");
        QTest::newRow("no names") << QStringList() << 0;
        QTest::newRow("all found") << QStringList({ok, ok}) << 0;
        QTest::newRow("one, not found") << QStringList{missing} << -16002;
        QTest::newRow("two, neither found") << QStringList({missing, missing}) << -16002;
        QTest::newRow("one found, one not") << QStringList({missing, ok}) << -16004;
        QTest::newRow("one matched several") << QStringList{twice} << -16003;
        QTest::newRow("one of each") << QStringList({missing, ok, twice}) << -16003;
        QTest::newRow("one not found, one several") << QStringList({twice, missing}) << -16003;
        QTest::newRow("only unknown statuses") << QStringList{QStringLiteral("ok")} << 0;
    }
    void namesDecideWhatReturnMeans()
    {
        QFETCH(QStringList, statuses);
        QFETCH(int, code);
        QByteArray users;
        for (const QString &status : statuses) {
            users += (users.isEmpty() ? "" : ",") + QByteArray(R"({"name": "n", "status": ")") +
                     status.toUtf8() + "\"}";
        }
        const QString answer = answerOf("Return", QByteArray(OneConference) + ", \"users\": [" + users + "]");

        ContactInviteMemberDetail invited = filledDetail().inviteDetail;
        QCOMPARE(ContactUtils::analyzeResultContext(answer, {}, invited), code);
        QCOMPARE(invited.notExistUsers.size(), statuses.count(QStringLiteral("Not Found")));
        QCOMPARE(invited.normalUsers.size(), statuses.count(QStringLiteral("OK")));
        QCOMPARE(invited.duplicateUsers.size(), statuses.count(QStringLiteral("Duplicate")));
        QCOMPARE(invited.canInviteNum, 0);

        ContactCreatedConferenceDetail created = filledDetail();
        QCOMPARE(ContactUtils::analyzeResultContext(answer, {}, true, 5, created), code);
        QCOMPARE(created.inviteDetail.notExistUsers.size(), invited.notExistUsers.size());
        QCOMPARE(created.conferences.size(), 1);
    }

    void membersLimitTellsHowManyFit_data()
    {
        addColumns<QByteArray, int>({"number", "canInvite"});
        QTest::newRow("two") << QByteArray(", \"can_invite_num\": 2") << 2;
        QTest::newRow("none") << QByteArray(", \"can_invite_num\": 0") << 0;
        QTest::newRow("missing") << QByteArray() << 0;
        QTest::newRow("a text") << QByteArray(", \"can_invite_num\": \"2\"") << 0;
        QTest::newRow("no whole number") << QByteArray(", \"can_invite_num\": 1.5") << 0;
        QTest::newRow("beyond 32 bits") << QByteArray(", \"can_invite_num\": 4294967296") << 0;
    }
    void membersLimitTellsHowManyFit()
    {
        QFETCH(QByteArray, number);
        const QString answer = answerOf("Exceed Members Limit",
                                        R"("not_join_list": [{"name": "a", "status": "OK"}],
                                           "users": [{"name": "b", "status": "OK"}, {"name": "c", "status": "OK"}])" +
                                            number);
        ContactInviteMemberDetail detail = filledDetail().inviteDetail;
        QCOMPARE(ContactUtils::analyzeResultContext(answer, {}, detail), -16006);
        QTEST(detail.canInviteNum, "canInvite");
        QCOMPARE(detail.normalUsers.size(), 1);
        QCOMPARE(detail.normalUsers.first().name, QStringLiteral("a"));
    }

    void unreadableAnswers_data()
    {
        QTest::addColumn<QString>("answer");
        const auto row = [](const char *name, const QByteArray &answer) {
            QTest::newRow(name) << QString::fromUtf8(answer);
        };
        row("empty", "");
        row("a plain word", "OK");
        row("broken off", R"({"ret": "OK")");
        row("a second object after it", R"({"ret": "OK"}{})");
        row("a lone bracket", "[");
        row("two thousand levels deep", "{\"ret\": \"OK\", \"list\": " + QByteArray("[").repeated(2000) +
                                            QByteArray("]").repeated(2000) + "}");
    }
    void unreadableAnswers()
    {
        QFETCH(QString, answer);
        QJsonParseError error;
        QJsonDocument::fromJson(answer.toUtf8(), &error);
        const QString text = QStringLiteral("response error.error: %1").arg(error.error);
        const QString memberText = QStringLiteral("response ret error.error: %1").arg(error.error);
        ContactCreatedConferenceDetail created = filledDetail();
        QVector<ContactDetailMsg> conferences(3);
        LogCapture log;
        for (const QString &expected : {text, memberText, memberText, text, text, text}) {
            log.expect(QtWarningMsg, expected);
        }

        QCOMPARE(codesOf(answer, created, conferences), QVector<int>(6, -16001));

        QCOMPARE(log.texts(QtWarningMsg), QStringList({text, memberText, memberText, text, text, text}));
        QCOMPARE(log.records().constFirst().category, QByteArray("default"));
        QCOMPARE(created.isSchedule, true);
        QCOMPARE(created.scheduleTimeMsecs, qint64(5));
        QCOMPARE(created.conferences.size(), 3);
        QCOMPARE(created.inviteDetail.notExistUsers.size(), 3);
        QCOMPARE(conferences.size(), 3);
    }

    void answersWithoutAnOutcome_data()
    {
        QTest::addColumn<QString>("answer");
        for (const char *answer :
             {"{}", "[]", R"({"ret": null})", R"({"ret": 0})", R"({"ret": ["OK"]})", R"({"RET": "OK"})",
              R"([{"ret": "OK"}])", R"({"result": {"ret": "OK"}})"}) {
            QTest::newRow(answer) << QString::fromUtf8(answer);
        }
    }
    void answersWithoutAnOutcome()
    {
        QFETCH(QString, answer);
        const LogCapture log;
        ContactCreatedConferenceDetail created;
        QVector<ContactDetailMsg> conferences;
        QCOMPARE(codesOf(answer, created, conferences),
                 QVector<int>({-16001, -16001, -16001, -16005, -16001, -16001}));
    }

    void everyCodeHasItsNumber()
    {
        QCOMPARE(ResultCode::Malformed, -16001);
        QCOMPARE(ResultCode::PastTime, -16012);
        QCOMPARE(ResultCode::TimedOut, -16020);
        QCOMPARE(ResultCode::ParticipantsFull, -16021);
        QCOMPARE(ResultCode::UnsupportedIntent, -21);
        QCOMPARE(ResultCode::UnsupportedPhrasing, -24);
        QCOMPARE(ResultCode::MissingSlot, -102);
    }
};

QTEST_GUILESS_MAIN(TestAnswerAnalysers)

#include "tst_answeranalysers.moc"
