// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationview.h"
#include "picturedcard.h"
#include "shownview.h"
#include "styledtest.h"

#include <QtTest>
#include <QtWidgets>

#include <unistd.h>

using namespace devhost;

namespace {

/// Creates a card with as many widgets as a conference card has.
QWidget *makeCard(const QString &title)
{
    auto *card = new QWidget;
    card->setAutoFillBackground(true);
    auto *layout = new QFormLayout(card);
    for (int row = 0; row < 7; ++row) {
        layout->addRow(QStringLiteral("第 %1 行").arg(row), new QLabel(title));
    }
    auto *buttons = new QHBoxLayout;
    for (const char16_t *text : {u"取消", u"修改"}) {
        buttons->addWidget(new QPushButton(QString::fromUtf16(text)));
    }
    layout->addRow(buttons);
    return card;
}

/// Adds turns with one card each, titled by its number.
void addCards(ConversationView &view, int count)
{
    for (int turn = 1; turn <= count; ++turn) {
        view.addReply(turn, QStringLiteral("答"), makeCard(QString::number(turn)));
    }
}

int megabytesInUse()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    return int(file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE) / (1024 * 1024));
}

} // namespace

/// The cards of a conversation: how long they live, what takes their place, and their focus.
class TestConversationCards : public StyledTest
{
    Q_OBJECT

private Q_SLOTS:
    void oldCardsBecomePicturesThatComeBack();
    void cardWithTheFocusStaysAlive();
    void cardInSightStaysAlive();
    void scrollingTakesTheFocusFromNoCard();
    void tenThousandTurnsStaySmall();
    void tabReachesEveryCard();
};

void TestConversationCards::oldCardsBecomePicturesThatComeBack()
{
    ShownView shown(500, 400);
    ConversationView &view = shown.view;
    QImage first;
    QPointer<QWidget> oldest;
    for (int turn = 1; turn <= ConversationView::LiveCards + 20; ++turn) {
        view.addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
        QWidget *card = makeCard(QStringLiteral("第 %1 张").arg(turn));
        view.addReply(turn, QStringLiteral("好的"), card);
        if (turn == 1) {
            oldest = card;
            first = card->grab().toImage();
        }
    }
    QTRY_VERIFY(oldest.isNull());
    int alive = 0;
    for (const ConversationEntry &entry : view.entries()) {
        alive += int(entry.hasLiveCard());
    }
    QCOMPARE(alive, ConversationView::LiveCards);
    QVERIFY(view.findChildren<PicturedCard *>().isEmpty());

    view.verticalScrollBar()->setValue(0);
    QVERIFY(!view.findChildren<PicturedCard *>().isEmpty());
    auto *pictured = qobject_cast<PicturedCard *>(view.entries().at(1).card.data());
    QVERIFY(pictured != nullptr && pictured->isVisible());
    QVERIFY(pictured->accessibleName().contains(QStringLiteral("第 1 张")));
    const QImage again = pictured->grab().toImage();
    QCOMPARE(again.size(), first.size());
    // The picture's colours have fewer bits.
    const QRect inside = first.rect().adjusted(8, 8, -8, -8);
    for (int y = inside.top(); y < inside.bottom(); ++y) {
        for (int x = inside.left(); x < inside.right(); ++x) {
            QVERIFY2(qAbs(qGray(first.pixel(x, y)) - qGray(again.pixel(x, y))) <= 8,
                     qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
    // A veil in the background's colour marks it as unusable.
    QVERIFY(!pictured->isEnabled());
    QVERIFY(pictured->toolTip().contains(QStringLiteral("再")));
    const QImage desk = view.viewport()->grab().toImage();
    const QColor ground = view.palette().color(QPalette::Window);
    const auto distance = [&ground](const QColor &color) {
        return qAbs(color.lightness() - ground.lightness());
    };
    int darkest = 0;
    int darkestVeiled = 0;
    for (int y = inside.top(); y < inside.bottom(); ++y) {
        for (int x = inside.left(); x < inside.right(); ++x) {
            darkest = qMax(darkest, distance(again.pixelColor(x, y)));
            darkestVeiled = qMax(darkestVeiled, distance(desk.pixelColor(pictured->pos() + QPoint(x, y))));
        }
    }
    QVERIFY2(darkest > 100 && darkestVeiled < darkest / 2 && darkestVeiled > 30,
             qPrintable(QStringLiteral("%1, %2").arg(darkest).arg(darkestVeiled)));
    view.scrollToEnd();
    QVERIFY(view.findChildren<PicturedCard *>().isEmpty());
}

void TestConversationCards::cardWithTheFocusStaysAlive()
{
    ShownView shown(500, 400);
    QVERIFY(shown.activate());
    ConversationView &view = shown.view;
    QPointer<QWidget> used = makeCard(QStringLiteral("在用"));
    view.addReply(1, QString(), used);
    used->findChild<QPushButton *>()->setFocus();
    view.verticalScrollBar()->setValue(0);
    const QPointer<QWidget> unused = makeCard(QStringLiteral("不用"));
    view.addReply(2, QString(), unused);
    for (int turn = 3; turn <= ConversationView::LiveCards + 5; ++turn) {
        view.addReply(turn, QString(), makeCard(QStringLiteral("新的")));
    }
    QTRY_VERIFY(unused.isNull());
    QVERIFY(!used.isNull());
    QVERIFY(used->isAncestorOf(QApplication::focusWidget()));
}

/// Whoever scrolled back looks at a card, which must not become a picture under their eyes.
void TestConversationCards::cardInSightStaysAlive()
{
    ShownView shown(500, 300);
    ConversationView &view = shown.view;
    addCards(view, 6);
    view.verticalScrollBar()->setValue(0);
    const QPointer<QWidget> seen = view.entries().first().card.data();
    const QPointer<QWidget> hidden = view.entries().last().card.data();
    QVERIFY(seen != nullptr && seen->isVisible() && !hidden->isVisible());
    for (int turn = 7; turn <= ConversationView::LiveCards + 10; ++turn) {
        view.addReply(turn, QString(), makeCard(QStringLiteral("新的")));
    }
    QCOMPARE(view.verticalScrollBar()->value(), 0);
    QTRY_VERIFY(hidden.isNull());
    QVERIFY(!seen.isNull() && seen->isVisible());
}

/// Hiding the card used to move the focus to another one, and the view scrolled there.
void TestConversationCards::scrollingTakesTheFocusFromNoCard()
{
    ShownView shown(500, 300);
    QVERIFY(shown.activate());
    ConversationView &view = shown.view;
    addCards(view, 6);
    view.verticalScrollBar()->setValue(0);
    QVERIFY(view.moveFocus(true));
    QVERIFY(view.moveFocus(true));
    QVERIFY(view.moveFocus(true)); // the second card's first button
    QWidget *focus = QApplication::focusWidget();
    QWidget *card = view.entries().at(1).card;
    QVERIFY(card->isAncestorOf(focus));
    for (const int value : {view.verticalScrollBar()->maximum(), 0, view.verticalScrollBar()->maximum()}) {
        view.verticalScrollBar()->setValue(value);
        QCOMPARE(view.verticalScrollBar()->value(), value);
        QCOMPARE(QApplication::focusWidget(), focus);
        QVERIFY(!card->geometry().intersects(view.viewport()->rect()) || value == 0);
    }
    // Tabbing goes on from there, and the card is hidden like the others once it has lost the focus.
    QVERIFY(view.moveFocus(true) && view.moveFocus(true));
    QVERIFY(view.entries().at(2).card->isAncestorOf(QApplication::focusWidget()));
    view.scrollToEnd();
    QVERIFY(!card->isVisible());
}

void TestConversationCards::tenThousandTurnsStaySmall()
{
    // Measures this many turns and extrapolates to the promised number.
    const int turns = qEnvironmentVariableIntValue("CONVERSATION_TURNS") > 0
                          ? qEnvironmentVariableIntValue("CONVERSATION_TURNS")
                          : 1500;
    constexpr int promisedTurns = 10000;
    constexpr int mostMegabytes = 200;
    ShownView shown(700, 600);
    ConversationView &view = shown.view;
    const auto talk = [&view](int first, int last) {
        for (int turn = first; turn <= last; ++turn) {
            view.addSaid(turn, QStringLiteral("查询第 %1 天的会议").arg(turn), false);
            view.addReply(turn, QStringLiteral("为您找到会议"),
                          makeCard(QStringLiteral("会议 %1").arg(turn)));
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    };
    QElapsedTimer timer;
    timer.start();
    // Fill up with live cards first: their memory is a constant.
    const int begun = 3 * ConversationView::LiveCards;
    talk(1, begun);
    const int before = megabytesInUse();
    talk(begun + 1, begun + turns);
    const int after = megabytesInUse();
    const int promised = before + int((after - before) * double(promisedTurns) / turns);
    qInfo("%d turns with cards: %d MB, %d more: %d MB, so %d: %d MB; %lld ms", begun, before, turns, after,
          promisedTurns, promised, timer.elapsed());
    QVERIFY(before > 0);
    QVERIFY2(promised < mostMegabytes, qPrintable(QString::number(promised)));
}

void TestConversationCards::tabReachesEveryCard()
{
    ShownView shown(500, 300);
    QVERIFY(shown.activate());
    ConversationView &view = shown.view;
    constexpr int cards = 8;
    addCards(view, cards);
    // A late card stands with its turn further up and gets the focus in that place.
    view.addReply(2, QStringLiteral("晚"), makeCard(QStringLiteral("2b")));
    view.scrollToEnd();
    view.setFocus();
    QStringList visited;
    while (view.moveFocus(true)) {
        const QWidget *focus = QApplication::focusWidget();
        QVERIFY(focus != nullptr);
        const QRect place(focus->mapTo(view.viewport(), QPoint()), focus->size());
        QVERIFY(focus->isVisible() && view.viewport()->rect().contains(place));
        visited << focus->parentWidget()->findChildren<QLabel *>().at(1)->text() + QLatin1Char(' ') +
                       static_cast<const QPushButton *>(focus)->text();
    }
    QCOMPARE(visited.size(), 2 * (cards + 1));
    QCOMPARE(visited.mid(0, 6),
             QStringList({QStringLiteral("1 取消"), QStringLiteral("1 修改"), QStringLiteral("2 取消"),
                          QStringLiteral("2 修改"), QStringLiteral("2b 取消"), QStringLiteral("2b 修改")}));
    QStringList back{visited.last()};
    while (view.moveFocus(false)) {
        const QWidget *focus = QApplication::focusWidget();
        back.prepend(focus->parentWidget()->findChildren<QLabel *>().at(1)->text() + QLatin1Char(' ') +
                     static_cast<const QPushButton *>(focus)->text());
    }
    QCOMPARE(back, visited);
}

QTEST_MAIN(TestConversationCards)
#include "tst_conversationcards.moc"
