// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsurround.h"
#include "plugindesk.h"
#include "shownview.h"

#include <lumo/lguiapplicationhelper.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace devhost;

/// Theme, font size and widths of the window and its cards.
class TestWindowAppearance : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void thousandsOfTurnsStayFluid();
    void themeAndFontAreAppliedAndRemembered();
    void defaultThemeIsTheToolkitsNearestToTheSystems();
    void fontSizeReachesCardsAndInspector();
    void narrowWindowShowsCardsWhole();
    void disabledCardIsVeiledAndEveryCardHasAnEdge();
};

void TestWindowAppearance::thousandsOfTurnsStayFluid()
{
    ShownView shown(700, 600);
    ConversationView &view = shown.view;
    const QString longText(300, QChar(0x4f1a));
    QElapsedTimer timer;
    timer.start();
    for (int turn = 1; turn <= 3000; ++turn) {
        view.addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
        view.addReply(turn, turn % 10 == 0 ? longText : QStringLiteral("好的。"), nullptr);
    }
    qInfo("6000 bubbles in %lld ms", timer.elapsed());
    QVERIFY2(timer.elapsed() < 15000, qPrintable(QString::number(timer.elapsed())));
    const int bubbles = view.findChildren<Bubble *>().size();
    QVERIFY2(bubbles > 5 && bubbles < 100, qPrintable(QString::number(bubbles)));
    timer.restart();
    for (int i = 0; i < 200; ++i) {
        view.verticalScrollBar()->setValue(i * 400);
    }
    qInfo("one scroll step: %.3f ms", double(timer.nsecsElapsed()) / 200e6);
    QVERIFY(timer.elapsed() < 4000);
    timer.restart();
    view.resize(500, 600);
    qInfo("one resize: %lld ms", timer.elapsed());
    QVERIFY(timer.elapsed() < 1000);
}

void TestWindowAppearance::themeAndFontAreAppliedAndRemembered()
{
    const qreal size = QApplication::font().pointSizeF();
    {
        Appearance appearance;
        appearance.setTheme(Appearance::Dark);
        QCOMPARE(LGuiApplicationHelper::instance()->themeType(), LGuiApplicationHelper::DarkType);
        appearance.setFontStep(3);
        QCOMPARE(QApplication::font().pointSizeF(), size + 3);
        appearance.setFontStep(1000);
        QCOMPARE(appearance.fontStep(), int(Appearance::LargestStep));
        appearance.setFontStep(0);
        QCOMPARE(QApplication::font().pointSizeF(), size);
    }
    {
        Appearance appearance;
        QCOMPARE(int(appearance.theme()), int(Appearance::Dark));
        appearance.setTheme(Appearance::Light);
        QCOMPARE(LGuiApplicationHelper::instance()->themeType(), LGuiApplicationHelper::LightType);
        appearance.setTheme(Appearance::System);
    }
}

void TestWindowAppearance::defaultThemeIsTheToolkitsNearestToTheSystems()
{
    PluginDesk desk;
    QCOMPARE(int(desk.appearance.theme()), int(Appearance::System));
    const QPalette light = LGuiApplicationHelper::standardPalette(LGuiApplicationHelper::LightType);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QCOMPARE(example->palette().color(QPalette::Button), light.color(QPalette::Button));
    QCOMPARE(example->palette().color(QPalette::Highlight), light.color(QPalette::Highlight));
    // A button's background stands out from the window's.
    const QImage picture = desk.window.grab().toImage();
    const QPoint middle = example->mapTo(&desk.window, QPoint(example->width() / 2, 4));
    const QPoint beside = example->mapTo(&desk.window, QPoint(-4, 4));
    QCOMPARE(picture.pixelColor(middle), light.color(QPalette::Button));
    QCOMPARE(picture.pixelColor(beside), light.color(QPalette::Window));
}

void TestWindowAppearance::fontSizeReachesCardsAndInspector()
{
    PluginDesk desk;
    auto *card = new QWidget;
    auto *label = new QLabel(QStringLiteral("字"), card);
    QFont own = label->font();
    own.setPixelSize(20);
    label->setFont(own);
    auto *layout = new QVBoxLayout(card);
    layout->addWidget(label);
    desk.window.view()->addReply(1, QString(), card);
    auto *edit = desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorRequests"));
    const qreal before = edit->font().pointSizeF();
    // The desktop's font may already be larger than the one cards are designed for.
    const int atFirst = label->font().pixelSize();
    QCOMPARE(atFirst, qRound(20 * desk.appearance.cardScale()));
    QVERIFY(atFirst >= 20);
    desk.appearance.setFontStep(2);
    QVERIFY2(label->font().pixelSize() > atFirst + 1, qPrintable(QString::number(label->font().pixelSize())));
    QCOMPARE(edit->font().pointSizeF(), before + 2);
    const QFontMetrics metrics(edit->font());
    QCOMPARE(metrics.horizontalAdvance(QLatin1Char('i')), metrics.horizontalAdvance(QLatin1Char('W')));
    // The same holds for a row added later.
    auto *late = new QLabel(QStringLiteral("后"), card);
    late->setFont(own);
    layout->addWidget(late);
    QTRY_COMPARE(late->font().pixelSize(), label->font().pixelSize());
    desk.appearance.setFontStep(0);
    QCOMPARE(label->font().pixelSize(), atFirst);
}

void TestWindowAppearance::narrowWindowShowsCardsWhole()
{
    PluginDesk desk;
    auto *card = new QWidget;
    card->setFixedSize(350, 120);
    desk.window.view()->addReply(1, QStringLiteral("好的"), card);
    desk.type(semantic("ECHO", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle());
    desk.window.resize(100, 100);
    const ConversationView *view = desk.window.view();
    QTRY_VERIFY(view->viewport()->rect().width() >= card->geometry().right() + 1);
    QVERIFY(card->x() >= 0);
    // Nothing overlaps at any larger width.
    for (int width = desk.window.width(); width <= 1600; width += 123) {
        desk.window.resize(width, 600);
        const auto controls = desk.window.centralWidget()->findChildren<QWidget *>();
        for (const QWidget *one : controls) {
            for (const QWidget *other : controls) {
                const bool areSiblings = one != other && one->parentWidget() == other->parentWidget();
                if (!areSiblings || !one->isVisible() || !other->isVisible() || one->parentWidget() == view ||
                    one->parentWidget() == view->viewport() || qobject_cast<const QFrame *>(one) != nullptr ||
                    qobject_cast<const QFrame *>(other) != nullptr || one->size().isEmpty() ||
                    qobject_cast<const QTabBar *>(one->parentWidget()) != nullptr) {
                    continue;
                }
                QVERIFY2(!one->geometry().intersects(other->geometry()),
                         qPrintable(QStringLiteral("%1 and %2 at %3")
                                        .arg(QLatin1String(one->metaObject()->className()),
                                             QLatin1String(other->metaObject()->className()))
                                        .arg(width)));
            }
        }
    }
}

void TestWindowAppearance::disabledCardIsVeiledAndEveryCardHasAnEdge()
{
    ConversationView view;
    view.resize(600, 400);
    auto *card = new QPushButton;
    card->setFixedSize(300, 100);
    auto *below = new QWidget; // a card like the light ones
    below->setFixedSize(300, 100);
    below->setAutoFillBackground(true);
    view.addReply(1, QString(), card);
    view.addReply(2, QString(), below);
    view.show();
    QTRY_VERIFY(below->isVisible());
    const QColor ground = view.palette().color(QPalette::Window);
    const auto colourAt = [&view](const QPoint &place) {
        return view.viewport()->grab().toImage().pixelColor(place);
    };
    const QPoint edge(below->x() + 150, below->y() - 1);
    QVERIFY(qAbs(colourAt(edge).lightness() - ground.lightness()) > 30);
    const QPoint inside(below->x() + 150, below->y() + 50);
    QPalette black;
    black.setColor(QPalette::All, QPalette::Window, Qt::black);
    below->setPalette(black);
    QCOMPARE(colourAt(inside), QColor(Qt::black));
    below->setEnabled(false);
    QVERIFY(colourAt(inside).lightness() > 100);
    below->setEnabled(true);
    QCOMPARE(colourAt(inside), QColor(Qt::black));
    // Clicks reach the card, and its surround is deleted with it.
    const QSignalSpy clicked(card, &QPushButton::clicked);
    QTest::mouseClick(view.viewport()->childAt(card->geometry().center()), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(view.findChildren<CardSurround *>().size(), 2);
    delete below;
    QTRY_COMPARE(view.findChildren<CardSurround *>().size(), 1);
}

QTEST_MAIN(TestWindowAppearance)
#include "tst_windowappearance.moc"
