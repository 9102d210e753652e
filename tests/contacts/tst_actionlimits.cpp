// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "askedactions.h"
#include "databasefile.h"
#include "sampleworld.h"

#include <QJsonDocument>
#include <QtTest>

#include <future>
#include <thread>

/// Limits of an action: how often, how many, how late.
class TestActionLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tooManyMembersAreLeftOutOfANewConference();
    void anInvitationBeyondTheLimitInvitesNobody();
    void theCreationLimitIsOfOneMinute();
    void aClockThatIsSetBackLocksNobodyOut();
    void aCreationThatWasRefusedDoesNotCount();
    void aRequestThatIsTooLateChangesNothing();
    void aRequestThatTakesTooLongIsUndone();
    void itIsKnownWhatWasPerformed();
    void tenThousandNamesAreHandedOut();
};

void TestActionLimits::tooManyMembersAreLeftOutOfANewConference()
{
    SampleWorld world;
    useFreeAccount(world);
    const QJsonObject answer = world.ask(
        Create, membersNamed({QStringLiteral("赵磊"), QStringLiteral("孙丽"), QStringLiteral("周一鸣"),
                              QStringLiteral("吴敏"), QStringLiteral("郑强"), QStringLiteral("黄蓉"),
                              QStringLiteral("徐婷"), QStringLiteral("马超"), QStringLiteral("朱红"),
                              QStringLiteral("胡军"), QStringLiteral("林芳")}));
    QCOMPARE(list(answer).at(0).toObject().value(QLatin1String("participants")).toArray().size(), 10);
    const QJsonArray left = answer.value(QLatin1String("not_join_list")).toArray();
    QCOMPARE(left.size(), 2);
    QCOMPARE(left.at(0).toObject().value(QLatin1String("name")).toString(), QStringLiteral("胡军"));
    QCOMPARE(answer.value(QLatin1String("can_invite_num")).toInt(-1), 0);
}

void TestActionLimits::anInvitationBeyondTheLimitInvitesNobody()
{
    SampleWorld world;
    startOneWithEight(world);
    const QJsonObject answer = world.ask(
        Invite, membersNamed({QStringLiteral("朱红"), QStringLiteral("胡军"), QStringLiteral("赵磊")}));
    QCOMPARE(answer.value(QLatin1String("can_invite_num")).toInt(-1), 1);
    const QJsonArray left = answer.value(QLatin1String("not_join_list")).toArray();
    QCOMPARE(left.size(), 2); // 赵磊 already has a seat
    QCOMPARE(left.at(0).toObject().value(QLatin1String("status")).toString(), QStringLiteral("OK"));
    QCOMPARE(left.at(0).toObject().value(QLatin1String("userId")).toString(), QStringLiteral("u100039"));
    QCOMPARE(ret(world.ask(Invite, membersNamed({QStringLiteral("朱红")}))), QStringLiteral("OK"));
}

void TestActionLimits::theCreationLimitIsOfOneMinute()
{
    SampleWorld world;
    const auto schedule = [&world](int day) {
        QJsonObject parameters = membersNamed({});
        parameters.insert(QStringLiteral("startTime"), at("2026-04-01T10:00") + day * 86400000LL);
        return ret(world.ask(Create, parameters));
    };
    for (int day = 0; day < 10; ++day) {
        QCOMPARE(schedule(day), QStringLiteral("OK"));
    }
    QCOMPARE(schedule(10), QStringLiteral("Conference Create Too Frequently"));
    world.nowMsecs += 59999;
    QCOMPARE(schedule(10), QStringLiteral("Conference Create Too Frequently"));
    world.nowMsecs += 1;
    QCOMPARE(schedule(10), QStringLiteral("OK"));
}

void TestActionLimits::aClockThatIsSetBackLocksNobodyOut()
{
    SampleWorld world;
    world.admin.SetCreationLimit(1);
    const auto schedule = [&world](int day) {
        QJsonObject parameters = membersNamed({});
        parameters.insert(QStringLiteral("startTime"), at("2026-04-01T10:00") + day * 86400000LL);
        return ret(world.ask(Create, parameters));
    };
    constexpr qint64 dayMsecs = 86400000;
    world.nowMsecs += dayMsecs;
    QCOMPARE(schedule(0), QStringLiteral("OK"));
    world.nowMsecs -= dayMsecs;
    QCOMPARE(schedule(1), QStringLiteral("OK"));
    QCOMPARE(schedule(2), QStringLiteral("Conference Create Too Frequently"));
    // Creations noted while the clock was ahead don't count when that time really comes.
    world.nowMsecs += dayMsecs;
    QCOMPARE(schedule(3), QStringLiteral("OK"));
}

void TestActionLimits::aCreationThatWasRefusedDoesNotCount()
{
    SampleWorld world;
    world.admin.SetCreationLimit(1);
    QCOMPARE(ret(world.ask(Create, membersNamed({QStringLiteral("张伟")}))), QStringLiteral("Return"));
    QCOMPARE(ret(world.ask(Create, membersNamed({QStringLiteral("市场部张伟")}))), QStringLiteral("OK"));
    QCOMPARE(ret(world.ask(Create)), QStringLiteral("Conference Create Too Frequently"));
}

void TestActionLimits::aRequestThatIsTooLateChangesNothing()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    QSignalSpy changed(&world.book, &ContactsBook::changed);
    const qint64 now = RequestTicket::nowMsecs();
    QVERIFY(world.book.perform(Create, QString(), {now, QStringLiteral("late")}).isNull());
    QVERIFY(!world.book.wasPerformed(QStringLiteral("late")));
    QCOMPARE(world.snapshot(), before);
    QCOMPARE(changed.count(), 0);
    QVERIFY(!world.book.perform(Create, QString(), {now + 60000, QStringLiteral("in time")}).isNull());
    QVERIFY(world.book.wasPerformed(QStringLiteral("in time")));
}

void TestActionLimits::aRequestThatTakesTooLongIsUndone()
{
    SampleWorld world;
    const QJsonObject before = world.snapshot();
    const QString file = world.folder.filePath(QStringLiteral("contacts.db"));
    std::promise<void> locked;
    // Another connection holds the write lock until the deadline has passed.
    std::thread other([&file, &locked] {
        const Database database(file);
        const Transaction transaction(database.handle());
        locked.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    });
    locked.get_future().wait();
    const QString answer =
        world.book.perform(Create, QString(), {RequestTicket::nowMsecs() + 100, QStringLiteral("slow")});
    other.join();
    QVERIFY2(answer.isNull(), qPrintable(answer));
    QCOMPARE(world.snapshot(), before);
    QVERIFY(!world.book.wasPerformed(QStringLiteral("slow")));
}

void TestActionLimits::itIsKnownWhatWasPerformed()
{
    SampleWorld world;
    const auto perform = [&world](const QString &action, const QString &id) {
        return ret(QJsonDocument::fromJson(world.book.perform(action, QString(), {0, id}).toUtf8()).object());
    };
    // An action that changes nothing is not recorded.
    QCOMPARE(perform(Search, QStringLiteral("search")), QStringLiteral("OK"));
    QVERIFY(!world.book.wasPerformed(QStringLiteral("search")));
    QCOMPARE(perform(Create, QStringLiteral("first")), QStringLiteral("OK"));
    const Transaction transaction(world.book.database().handle());
    for (int i = 0; i < 1000; ++i) {
        QVERIFY(world.book.wasPerformed(QStringLiteral("first")));
        world.book.session().notePerformed(QString::number(i));
    }
    QVERIFY(!world.book.wasPerformed(QStringLiteral("first")));
    QVERIFY(world.book.wasPerformed(QStringLiteral("999")));
}

void TestActionLimits::tenThousandNamesAreHandedOut()
{
    constexpr int limit = 10000;
    SampleWorld world;
    const int known = world.book.contactNames().size();
    addPeople(world.book, limit);
    const auto befriend = [&world](int first, int last) {
        return world.book.change([&] {
            for (int person = first; person < last; ++person) {
                world.book.people().setContact(QStringLiteral("u100001"),
                                               QStringLiteral("p%1").arg(person, 6, 10, QLatin1Char('0')), {},
                                               false);
            }
            return true;
        });
    };
    QVERIFY(befriend(0, limit - known));
    QCOMPARE(world.book.contactNames().size(), limit);
    QVERIFY(befriend(limit - known, limit));
    QCOMPARE(world.book.contactNames().size(), limit);
}

QTEST_GUILESS_MAIN(TestActionLimits)
#include "tst_actionlimits.moc"
