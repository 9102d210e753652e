// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardcosts.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "titleitem.h"

#include <QtTest>

#include <algorithm>
#include <limits>

using namespace CardSamples;

/// The CPU time that a hostile or very large answer costs until its card is painted.
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

} // namespace

Q_DECLARE_METATYPE(CardCosts::BuildWithText)

void TestCardCosts::initTestCase()
{
    CardCosts::warmUp();
}

void TestCardCosts::aMegabyteCostsNoTime_data()
{
    QTest::addColumn<CardCosts::BuildWithText>("build");
    for (const CardCosts::LongText &text : CardCosts::longTexts()) {
        QTest::newRow(text.place) << text.build;
    }
}

void TestCardCosts::aMegabyteCostsNoTime()
{
    QFETCH(CardCosts::BuildWithText, build);
    const QString text = CardCosts::textOfLength(Megabyte);
    const auto elapsed = [&] {
        return CardCosts::untilPainted([&](ConferenceMsgStaticWidget &card) { build(card, text); });
    };
    const double best = qMin(elapsed(), qMin(elapsed(), elapsed()));
    QVERIFY2(best < 50, qPrintable(QString::number(best)));
}

void TestCardCosts::manyCandidatesCostLinearTime()
{
    constexpr int fewPeople = 5000; // already more than the processor's caches hold
    constexpr int factor = 4;
    const auto elapsed = [](int count) {
        const ContactInviteMemberDetail detail = CardCosts::people(count, QStringLiteral("张三"));
        int rows = 0;
        const double time = CardCosts::untilPainted([&](ConferenceMsgStaticWidget &card) {
            card.inviteMultiplePerson(detail);
            rows = shown<TiTleItem>(card).size();
        });
        return rows == count ? time : std::numeric_limits<double>::infinity();
    };
    // Other programs only make an attempt longer, so compare the best of each size.
    double few = std::numeric_limits<double>::infinity();
    double many = few;
    for (int attempt = 0; attempt < 5; ++attempt) {
        few = qMin(few, elapsed(fewPeople));
        many = qMin(many, elapsed(factor * fewPeople));
        if (attempt > 0 && many < 1.25 * factor * few) {
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("Four times the people cost %1 times as much.").arg(many / few)));
}

QTEST_MAIN(TestCardCosts)
#include "tst_cardcosts.moc"
