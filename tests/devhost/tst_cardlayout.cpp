// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardrowlist.h"
#include "cardbuilds.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "conversationview.h"
#include "shownview.h"
#include "testcolumns.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QSpacerItem>
#include <QtTest>

using namespace CardSamples;

/// What a host does with a card.
using Use = void (*)(QWidget &card);
Q_DECLARE_METATYPE(Use)

namespace {

/// A spacer without extent that counts how often the layout around it gives it a place.
class PlaceCounter : public QSpacerItem
{
public:
    PlaceCounter() : QSpacerItem(0, 0) {}

    void setGeometry(const QRect &place) override
    {
        ++m_count;
        QSpacerItem::setGeometry(place);
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

} // namespace

/// What a card costs between its builder and its first picture on the desk.
class TestCardLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCardIsLaidOutOnce_data();
    void aCardIsLaidOutOnce();
    void aCardHasItsSizeFromItsBuilder_data() { aCardIsLaidOutOnce_data(); }
    void aCardHasItsSizeFromItsBuilder();
    void aCardHasItsMinimumSizeFromItsBuilder_data() { aCardIsLaidOutOnce_data(); }
    void aCardHasItsMinimumSizeFromItsBuilder();
    void aHiddenCardShrinksWithItsRows_data();
    void aHiddenCardShrinksWithItsRows();
};

void TestCardLayout::aCardIsLaidOutOnce_data()
{
    addColumns<Build, int>({"build", "times"});
    QTest::newRow("one conference") << Build([](ConferenceMsgStaticWidget &card) {
        card.singleInit({conference()});
    }) << 1;
    QTest::newRow("a list") << Build([](ConferenceMsgStaticWidget &card) {
        card.multipleInit(conferences(4));
    }) << 1;
    // Qt's combo boxes measure themselves once more when they are shown first.
    QTest::newRow("a conference to be changed") << Build(buildEditable) << 2;
    QTest::newRow("people to create with") << Build(buildCreate) << 1;
    QTest::newRow("people to invite") << Build(buildInvite) << 1;
    QTest::newRow("people within the limit") << Build(buildLimit) << 1;
}

void TestCardLayout::aCardIsLaidOutOnce()
{
    QFETCH(Build, build);
    QFETCH(int, times);
    ShownView shown(600, 800);
    QVERIFY(shown.activate());
    auto *card = new ConferenceMsgStaticWidget;
    auto *counter = new PlaceCounter;
    static_cast<QBoxLayout *>(card->layout())->addSpacerItem(counter);
    build(*card);
    QCOMPARE(counter->count(), 0);
    shown.view.addReply(1, QStringLiteral("好的。"), card);
    QVERIFY(QTest::qWaitForWindowExposed(&shown.view));
    QTRY_VERIFY(card->isVisible());
    // What the first rounds of the event loop bring, painting included.
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
    }
    QVERIFY(!shown.view.grab().isNull());
    QCOMPARE(counter->count(), times);
}

/// Other hosts show a card in that size.
void TestCardLayout::aCardHasItsSizeFromItsBuilder()
{
    QFETCH(Build, build);
    ConferenceMsgStaticWidget card;
    const QSize before = card.size();
    build(card);
    const QSize size = card.size();
    QVERIFY(size != before);
    card.adjustSize();
    QCOMPARE(card.size(), size);
}

/// Qt sets it when it lays the card out, and other hosts rely on it before they show the card.
void TestCardLayout::aCardHasItsMinimumSizeFromItsBuilder()
{
    QFETCH(Build, build);
    ConferenceMsgStaticWidget card;
    build(card);
    const QSize smallest = card.layout()->totalMinimumSize();
    QVERIFY(!smallest.isEmpty());
    QCOMPARE(card.minimumSize(), smallest);
    card.resize(smallest.width(), 1);
    QCOMPARE(card.height(), smallest.height());
}

void TestCardLayout::aHiddenCardShrinksWithItsRows_data()
{
    addColumns<Use>({"use"});
    QTest::newRow("never shown") << Use([](QWidget &) {});
    QTest::newRow("grabbed") << Use([](QWidget &card) { card.grab(); });
    QTest::newRow("shown and hidden") << Use([](QWidget &card) {
        card.show();
        QVERIFY(QTest::qWaitForWindowExposed(&card));
        card.hide();
    });
}

/// A button may take its row off a card that its host has just hidden.
void TestCardLayout::aHiddenCardShrinksWithItsRows()
{
    QFETCH(Use, use);
    QWidget card;
    CardRowList rows(&card);
    rows.add(rows.listed(new QLineEdit));
    rows.adjustSize();
    const QSize oneRow = card.size();
    auto *second = new QLineEdit;
    rows.add(rows.listed(second));
    rows.adjustSize();
    QVERIFY(card.height() > oneRow.height());
    use(card);
    rows.remove(second, Qt::OtherFocusReason);
    rows.adjustSize();
    QCOMPARE(card.size(), oneRow);
}

QTEST_MAIN(TestCardLayout)
#include "tst_cardlayout.moc"
