// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "titleitem.h"

#include <QScrollArea>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <limits>

using namespace CardSamples;

/// Long texts and many people: what a hostile or a very large answer costs until its card is on the screen.
class TestCardCosts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMegabyteCostsNoTime_data();
    void aMegabyteCostsNoTime();
    void manyCandidatesCostLinearTime();
};

namespace {

constexpr int Megabyte = 1024 * 1024;

using Build = void (*)(ConferenceMsgStaticWidget &card, const QString &text);

/// Milliseconds of this thread, so that what else the machine does is not counted.
double cpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

ContactInviteMemberDetail people(int count, const QString &name)
{
    DuplicateUsers group;
    for (int i = 0; i < count; ++i) {
        group.users.append(user(name, QStringLiteral("张三%1").arg(i), QStringLiteral("u%1").arg(i),
                                QStringLiteral("zhangsan%1").arg(i)));
    }
    ContactInviteMemberDetail detail;
    detail.duplicateUsers = {group};
    return detail;
}

/// Milliseconds until a card built by @p build is painted in a host's list; its end does not count.
template <typename Builder>
double untilPainted(const Builder &build)
{
    QScrollArea host;
    host.setWidgetResizable(true);
    host.resize(372, 480);
    const double start = cpuMilliseconds();
    auto *card = new ConferenceMsgStaticWidget;
    build(*card);
    host.setWidget(card);
    host.grab();
    const double elapsed = cpuMilliseconds() - start;
    // In a host the event loop has its turn before a card is deleted. Without it every widget looks for its
    // own events among those of all others.
    QCoreApplication::sendPostedEvents();
    return elapsed;
}

} // namespace

Q_DECLARE_METATYPE(Build)

void TestCardCosts::initTestCase()
{
    // The first card of a process pays for its fonts.
    untilPainted([](ConferenceMsgStaticWidget &card) {
        card.inviteMultiplePerson(people(3, QStringLiteral("张三")));
    });
}

void TestCardCosts::aMegabyteCostsNoTime_data()
{
    QTest::addColumn<Build>("build");
    QTest::newRow("title") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        ContactDetailMsg one = conference();
        one.title = text;
        card.singleInit({one});
    });
    QTest::newRow("titles of a list") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        QVector<ContactDetailMsg> list = conferences(4);
        list[0].title = text;
        card.multipleInit(list);
    });
    QTest::newRow("number") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        ContactDetailMsg one = conference();
        one.conferenceDialNumber = text;
        card.singleInit({one});
    });
    QTest::newRow("participant") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        ContactDetailMsg one = conference();
        one.participants = {user(text, {}, {}, {})};
        card.singleInit({one});
    });
    QTest::newRow("title while editing") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        QVector<ContactDetailMsg> list = conferences(1);
        list[0].title = text;
        card.createInviteConference(list);
    });
    QTest::newRow("name of a candidate") << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
        ContactInviteMemberDetail detail = people(1, text);
        detail.duplicateUsers[0].users[0].remarkName = text;
        card.inviteMultiplePerson(detail);
    });
    QTest::newRow("account of a candidate")
        << Build([](ConferenceMsgStaticWidget &card, const QString &text) {
               ContactInviteMemberDetail detail = people(1, text);
               detail.duplicateUsers[0].users[0].account = text;
               card.inviteMultiplePerson(detail);
           });
}

void TestCardCosts::aMegabyteCostsNoTime()
{
    QFETCH(Build, build);
    const QString text = QStringLiteral("周会 <b>").repeated(Megabyte / 6);
    const auto elapsed = [&] {
        return untilPainted([&](ConferenceMsgStaticWidget &card) { build(card, text); });
    };
    const double best = qMin(elapsed(), qMin(elapsed(), elapsed()));
    QVERIFY2(best < 50, qPrintable(QString::number(best)));
}

void TestCardCosts::manyCandidatesCostLinearTime()
{
    constexpr int fewPeople = 1000;
    constexpr int factor = 20;
    const auto elapsed = [](int count) {
        const ContactInviteMemberDetail detail = people(count, QStringLiteral("张三"));
        int rows = 0;
        const double time = untilPainted([&](ConferenceMsgStaticWidget &card) {
            card.inviteMultiplePerson(detail);
            rows = shown<TiTleItem>(card).size();
        });
        return rows == count ? time : std::numeric_limits<double>::infinity();
    };
    // More than one attempt, against what else happens on the machine.
    double ratio = 0;
    for (int attempt = 0; attempt < 3; ++attempt) {
        const double few = std::min({elapsed(fewPeople), elapsed(fewPeople), elapsed(fewPeople)});
        ratio = elapsed(factor * fewPeople) / few;
        if (ratio < 1.25 * factor) {
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("Twenty times the people cost %1 times as much.").arg(ratio)));
}

QTEST_MAIN(TestCardCosts)
#include "tst_cardcosts.moc"
