// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "appearance.h"
#include "cardsurround.h"
#include "chinesetexts.h"
#include "conversationscript.h"
#include "conversationview.h"
#include "endbutton.h"
#include "inputline.h"
#include "inspector.h"
#include "logrecorder.h"
#include "mainwindow.h"
#include "semantics.h"
#include "stallmeter.h"
#include "windowscript.h"

#include <lumo/lguiapplicationhelper.h>
#include <lumo/lstyle.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

#include <sstream>

using namespace devhost;

namespace {

/// A window on the test plugin, as main() puts it together.
struct Desk
{
    LogRecorder logs;
    PluginHost host;
    bool isLoaded = host.load(QStringLiteral(TEST_PLUGIN));
    Appearance appearance;
    Conversation conversation{host, logs};
    MainWindow window{conversation, appearance};

    Desk()
    {
        window.resize(1000, 700);
        window.show();
    }

    void type(const QString &text)
    {
        window.input()->setText(text);
        QTest::keyClick(window.input(), Qt::Key_Return);
    }

    bool isIdle() const { return !conversation.isBusy(); }

    QStringList shownTexts() const
    {
        QVector<QPair<int, QString>> placed;
        for (const Bubble *bubble : window.view()->findChildren<Bubble *>()) {
            if (bubble->isVisible()) {
                placed.append({bubble->y(), bubble->text()});
            }
        }
        std::sort(placed.begin(), placed.end());
        QStringList texts;
        for (const auto &bubble : placed) {
            texts << bubble.second;
        }
        return texts;
    }
};

} // namespace

/// The window, driven as a person would, with a plugin that answers slowly, late and with cards.
class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void exampleIsSentByAClick();
    void windowStaysAliveWhileARequestRuns();
    void laterInputQueuesAndAnswersStandWithTheirTurn();
    void cardIsLiveAndItsReplyStandsBelow();
    void viewStaysAtTheEndUnlessTheUserScrolledUp();
    void thousandsOfTurnsStayFluid();
    void keysGoThroughTheHistoryAndClearTheLine();
    void inspectorShowsTheTurnAndSendsSemantics();
    void themeAndFontAreAppliedAndRemembered();
    void defaultThemeIsTheToolkitsNearestToTheSystems();
    void fontSizeReachesCardsAndInspector();
    void inspectorIndentsHighlightsFiltersAndFinds();
    void conversationIsSavedAsAScript();
    void scriptHoldsNothingThatWaits();
    void scriptPlaysSentencesAsSentences();
    void narrowWindowShowsCardsWhole();
    void windowRemembersItself();
    void newConversationBeginsAtTheWelcomePage();
    void applicationThatDoesNotRunIsSaid();
    void disabledCardIsVeiledAndEveryCardHasAnEdge();
    void pageKeysScrollFromTheInput();
    void tabGoesAsOneReads();
    void focusReturnsToTheInputAfterACardsButton();
    void buttonToTheEndIsOpaqueAndAtTheSide();
    void buttonToTheEndLeadsThereFromCards();
    void windowSpeaksChinese();
    void problemIsShown();
    void namesAreShownWithoutWhatHides();

private:
    QTemporaryDir m_settings;
};

void TestMainWindow::initTestCase()
{
    // As the program does.
    QApplication::setStyle(new LStyle);
}

void TestMainWindow::init()
{
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCoreApplication::setApplicationName(QString::fromLatin1(QTest::currentTestFunction()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

void TestMainWindow::exampleIsSentByAClick()
{
    Desk desk;
    QVERIFY(desk.isLoaded);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QVERIFY(example != nullptr && example->isVisible());
    QTest::mouseClick(example, Qt::LeftButton);
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 2);
    QCOMPARE(desk.shownTexts().first(), example->text());
    QVERIFY(!example->isVisible());
}

void TestMainWindow::windowStaysAliveWhileARequestRuns()
{
    Desk desk;
    const QTemporaryDir folder;
    const QString gate = folder.filePath(QStringLiteral("go"));
    desk.type(semantic("WAIT", gate));
    QTRY_VERIFY(desk.window.view()->isWaiting());
    StallMeter meter;
    // Typing works meanwhile.
    QTest::keyClicks(desk.window.input(), QStringLiteral("abcdefghij"));
    int ticks = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&ticks] { ++ticks; });
    ticker.start(5);
    QTRY_VERIFY(ticks > 40);
    QVERIFY(desk.window.view()->isWaiting());
    QVERIFY2(meter.longestMsecs() < 150, qPrintable(QString::number(meter.longestMsecs())));
    QCOMPARE(desk.window.input()->text(), QStringLiteral("abcdefghij"));
    QFile go(gate);
    QVERIFY(go.open(QIODevice::WriteOnly));
    go.close();
    QTRY_VERIFY(desk.isIdle());
    QVERIFY(!desk.window.view()->isWaiting());
}

void TestMainWindow::laterInputQueuesAndAnswersStandWithTheirTurn()
{
    Desk desk;
    desk.type(semantic("SLOW", QStringLiteral("60")));
    desk.type(semantic("ECHO", QStringLiteral("zwei")));
    desk.type(semantic("ECHO", QStringLiteral("drei")));
    QTRY_COMPARE(desk.shownTexts().size(), 3);
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 6);
    QCOMPARE(desk.shownTexts(), QStringList({QStringLiteral("语义 JSON SLOW"), QStringLiteral("60"),
                                             QStringLiteral("语义 JSON ECHO"), QStringLiteral("zwei"),
                                             QStringLiteral("语义 JSON ECHO"), QStringLiteral("drei")}));
}

void TestMainWindow::cardIsLiveAndItsReplyStandsBelow()
{
    Desk desk;
    desk.type(semantic("CARD", QStringLiteral("卡片")));
    QPushButton *button = nullptr;
    const auto findButton = [&] {
        for (auto *found : desk.window.view()->findChildren<QPushButton *>()) {
            if (found->text() == QStringLiteral("按我")) {
                button = found;
            }
        }
        return button != nullptr && button->isVisible();
    };
    QTRY_VERIFY(findButton());
    QWidget *card = button->parentWidget();
    const int heightBefore = card->height();
    QTest::mouseClick(button, Qt::LeftButton);
    QTRY_COMPARE(desk.shownTexts().value(2), QStringLiteral("按过了"));
    QTRY_VERIFY(card->height() >= heightBefore + 200);
    for (const Bubble *bubble : desk.window.view()->findChildren<Bubble *>()) {
        if (bubble->text() == QStringLiteral("按过了")) {
            QTRY_VERIFY(bubble->y() >= card->geometry().bottom());
        }
    }
    // A card that deletes itself leaves no hole and no dangling pointer.
    delete card;
    desk.type(semantic("ECHO", QStringLiteral("weiter")));
    QTRY_VERIFY(desk.shownTexts().contains(QStringLiteral("weiter")));
}

void TestMainWindow::viewStaysAtTheEndUnlessTheUserScrolledUp()
{
    Desk desk;
    ConversationView *view = desk.window.view();
    for (int i = 0; i < 40; ++i) {
        desk.type(semantic("ECHO", QStringLiteral("Antwort %1").arg(i)));
    }
    QTRY_VERIFY(desk.isIdle() && view->count() == 80);
    QVERIFY(view->isAtEnd());
    QVERIFY(desk.shownTexts().contains(QStringLiteral("Antwort 39")));

    view->verticalScrollBar()->setValue(200);
    const QStringList before = desk.shownTexts();
    view->addReply(40, QStringLiteral("spät"), nullptr);
    QCOMPARE(view->verticalScrollBar()->value(), 200);
    QCOMPARE(desk.shownTexts(), before);

    // Something that is said oneself leads back to the end.
    desk.type(semantic("ECHO", QStringLiteral("Ende")));
    QTRY_VERIFY(desk.shownTexts().contains(QStringLiteral("Ende")));
    QVERIFY(view->isAtEnd());
    view->verticalScrollBar()->setValue(0);
    QTest::keyClick(view, Qt::Key_End);
    QVERIFY(view->isAtEnd());
}

void TestMainWindow::thousandsOfTurnsStayFluid()
{
    ConversationView view;
    view.resize(700, 600);
    view.show();
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

void TestMainWindow::keysGoThroughTheHistoryAndClearTheLine()
{
    Desk desk;
    InputLine *input = desk.window.input();
    // Sentences, so that they are shown as typed.
    desk.type(QStringLiteral("第一句"));
    desk.type(QStringLiteral("第二句"));
    input->setText(QStringLiteral("开始"));
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(input->text(), QStringLiteral("第二句"));
    QTest::keyClick(input, Qt::Key_Up);
    QCOMPARE(input->text(), QStringLiteral("第一句"));
    QTest::keyClick(input, Qt::Key_Down);
    QTest::keyClick(input, Qt::Key_Down);
    QCOMPARE(input->text(), QStringLiteral("开始"));
    QTest::keyClick(input, Qt::Key_Escape);
    QVERIFY(input->text().isEmpty());
    QTRY_VERIFY(desk.isIdle());
    const int turns = desk.conversation.lastTurn();
    QTest::keyClick(input, Qt::Key_Return);
    QCOMPARE(desk.conversation.lastTurn(), turns);
}

void TestMainWindow::inspectorShowsTheTurnAndSendsSemantics()
{
    Desk desk;
    const auto text = [&desk](const char *name) {
        return desk.window.findChild<QPlainTextEdit *>(QLatin1String(name))->toPlainText();
    };
    desk.type(semantic("ECHO", QStringLiteral("回声")));
    QTRY_VERIFY(text("inspectorReply").contains(QStringLiteral("回声")));
    QVERIFY(text("inspectorSemantic").contains(QStringLiteral("\"intent\": \"ECHO\"")));
    QVERIFY(text("inspectorReply").contains(QStringLiteral("type      3")));
    QVERIFY(text("inspectorLog").contains(QStringLiteral("debug default: service ECHO on another thread")));
    QVERIFY(text("inspectorRequests").contains(QStringLiteral("（没有请求）")));

    desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorEntry"))
        ->setPlainText(semantic("ECHO", QStringLiteral("原样")));
    desk.window.findChild<QPushButton *>(QStringLiteral("inspectorSend"))->click();
    QTRY_VERIFY(text("inspectorReply").contains(QStringLiteral("原样")));

    // A click on an earlier turn brings it back.
    for (Bubble *bubble : desk.window.view()->findChildren<Bubble *>()) {
        if (bubble->text() == QStringLiteral("回声")) {
            QTest::mouseClick(bubble, Qt::LeftButton);
        }
    }
    QCOMPARE(desk.window.inspector()->shownTurn(), 1);
    QVERIFY(text("inspectorReply").contains(QStringLiteral("回声")));
}

void TestMainWindow::themeAndFontAreAppliedAndRemembered()
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

void TestMainWindow::defaultThemeIsTheToolkitsNearestToTheSystems()
{
    Desk desk;
    QCOMPARE(int(desk.appearance.theme()), int(Appearance::System));
    const QPalette light = LGuiApplicationHelper::standardPalette(LGuiApplicationHelper::LightType);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QCOMPARE(example->palette().color(QPalette::Button), light.color(QPalette::Button));
    QCOMPARE(example->palette().color(QPalette::Highlight), light.color(QPalette::Highlight));
    // The plate of a button is seen, also by itself.
    const QImage picture = desk.window.grab().toImage();
    const QPoint middle = example->mapTo(&desk.window, QPoint(example->width() / 2, 4));
    const QPoint beside = example->mapTo(&desk.window, QPoint(-4, 4));
    QCOMPARE(picture.pixelColor(middle), light.color(QPalette::Button));
    QCOMPARE(picture.pixelColor(beside), light.color(QPalette::Window));
}

void TestMainWindow::fontSizeReachesCardsAndInspector()
{
    Desk desk;
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
    // The desktop's own font may already be larger than the one that cards are planned for.
    const int atFirst = label->font().pixelSize();
    QCOMPARE(atFirst, qRound(20 * desk.appearance.cardScale()));
    QVERIFY(atFirst >= 20);
    desk.appearance.setFontStep(2);
    QVERIFY2(label->font().pixelSize() > atFirst + 1, qPrintable(QString::number(label->font().pixelSize())));
    QCOMPARE(edit->font().pointSizeF(), before + 2);
    QCOMPARE(edit->font().family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    // A row that the card gets later, too.
    auto *late = new QLabel(QStringLiteral("后"), card);
    late->setFont(own);
    layout->addWidget(late);
    QTRY_COMPARE(late->font().pixelSize(), label->font().pixelSize());
    desk.appearance.setFontStep(0);
    QCOMPARE(label->font().pixelSize(), atFirst);
}

void TestMainWindow::inspectorIndentsHighlightsFiltersAndFinds()
{
    Desk desk;
    desk.type(semantic("ECHO", QStringLiteral("回声")));
    QTRY_VERIFY(desk.isIdle());
    auto *json = desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorSemantic"));
    QTRY_VERIFY(json->toPlainText().contains(QStringLiteral("\n  \"intent\": {\n    \"")));
    const QTextBlock line = json->document()->find(QStringLiteral("\"intent\": {")).block();
    QTRY_VERIFY(!line.layout()->formats().isEmpty());
    const QColor key = line.layout()->formats().first().format.foreground().color();
    QVERIFY(key != json->palette().color(QPalette::Text));

    auto *log = desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorLog"));
    auto *filter = desk.window.findChild<QLineEdit *>(QStringLiteral("inspectorLogFilter"));
    const QString whole = log->toPlainText();
    QVERIFY(whole.contains(QStringLiteral("service ECHO")));
    filter->setText(QStringLiteral("another echo"));
    QCOMPARE(log->toPlainText().count(QStringLiteral("service ECHO")), 1);
    filter->setText(QStringLiteral("gibt es nicht"));
    QCOMPARE(log->toPlainText(), QString());
    filter->clear();
    QCOMPARE(log->toPlainText(), whole);

    QLineEdit *search = desk.window.inspector()->searchField();
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("intent"));
    QCOMPARE(json->textCursor().selectedText(), QStringLiteral("intent"));
    const int first = json->textCursor().position();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(json->textCursor().position() > first);
}

void TestMainWindow::conversationIsSavedAsAScript()
{
    auto desk = std::make_unique<Desk>();
    desk->type(QStringLiteral("第一句"));
    desk->type(semantic("ECHO", QStringLiteral("原样")));
    desk->type(QStringLiteral("加入会议号902118340，密码是432187"));
    QTRY_VERIFY(desk->isIdle());
    const QString script = scriptOf(desk->conversation);
    const QStringList lines = script.trimmed().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), QStringLiteral("第一句"));
    QCOMPARE(QJsonDocument::fromJson(lines.at(1).toUtf8()),
             QJsonDocument::fromJson(semantic("ECHO", QStringLiteral("原样")).toUtf8()));
    QVERIFY2(!script.contains(QStringLiteral("432187")), qUtf8Printable(script));
    QVERIFY(lines.at(2).startsWith(QLatin1Char('#')));

    // And it is played: the same turns come again. There is one log recorder at a time.
    desk.reset();
    Desk again;
    std::istringstream input(script.toStdString());
    WindowScript player(again.window, again.conversation, input, QString());
    const QSignalSpy finished(&player, &WindowScript::finished);
    player.start();
    QTRY_COMPARE(finished.size(), 1);
    QCOMPARE(again.conversation.lastTurn(), 2);
    QCOMPARE(again.conversation.turn(2).display, QStringLiteral("原样"));
}

/// What waits may turn out to be a password only when its turn comes.
void TestMainWindow::scriptHoldsNothingThatWaits()
{
    Desk desk;
    const QTemporaryDir folder;
    const QString gate = folder.filePath(QStringLiteral("go"));
    desk.type(QStringLiteral("第一句"));
    QTRY_VERIFY(desk.isIdle());
    desk.type(semantic("WAIT", gate));
    desk.type(QStringLiteral("432187"));
    QTRY_VERIFY(desk.window.view()->isWaiting());
    QCOMPARE(scriptOf(desk.conversation), QStringLiteral("第一句\n"));
    QFile go(gate);
    QVERIFY(go.open(QIODevice::WriteOnly));
    go.close();
    QTRY_VERIFY(desk.isIdle());
    QVERIFY(scriptOf(desk.conversation).endsWith(QStringLiteral("\n432187\n")));
}

void TestMainWindow::scriptPlaysSentencesAsSentences()
{
    auto desk = std::make_unique<Desk>();
    desk->type(QStringLiteral("#1 会议室在哪里"));
    desk->type(QStringLiteral("  @press   按我"));
    desk->type(QStringLiteral("@pressing"));
    QTRY_VERIFY(desk->isIdle());
    const QString script = scriptOf(desk->conversation);
    QVERIFY2(!script.contains(QStringLiteral("会议室")) && !script.contains(QStringLiteral("按我")),
             qUtf8Printable(script));

    desk.reset(); // there is one log recorder at a time
    Desk again;
    std::istringstream input(script.toStdString());
    WindowScript player(again.window, again.conversation, input, QString());
    const QSignalSpy finished(&player, &WindowScript::finished);
    player.start();
    QTRY_COMPARE(finished.size(), 1);
    QVERIFY(finished.first().first().toBool()); // no button was looked for
    QCOMPARE(again.conversation.lastTurn(), 1);
    QCOMPARE(again.conversation.turn(1).said, QStringLiteral("@pressing"));
}

void TestMainWindow::narrowWindowShowsCardsWhole()
{
    Desk desk;
    auto *card = new QWidget;
    card->setFixedSize(350, 120);
    desk.window.view()->addReply(1, QStringLiteral("好的"), card);
    desk.type(semantic("ECHO", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle());
    desk.window.resize(100, 100);
    const ConversationView *view = desk.window.view();
    QTRY_VERIFY(view->viewport()->rect().width() >= card->geometry().right() + 1);
    QVERIFY(card->x() >= 0);
    // Nothing stands on anything else, at any width above.
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

void TestMainWindow::windowRemembersItself()
{
    {
        Desk desk;
        desk.window.resize(777, 555);
        desk.window.close();
    }
    LogRecorder logs;
    PluginHost host;
    Appearance appearance;
    Conversation conversation(host, logs);
    const MainWindow window(conversation, appearance);
    QCOMPARE(window.size(), QSize(777, 555));
}

void TestMainWindow::newConversationBeginsAtTheWelcomePage()
{
    Desk desk;
    desk.type(semantic("CARD", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle() && desk.window.view()->count() == 2);
    auto *example = desk.window.findChild<QPushButton *>(QStringLiteral("example"));
    QVERIFY(!example->isVisible());
    QTest::keyClick(&desk.window, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(desk.window.view()->count(), 0);
    QVERIFY(example->isVisible());
    QVERIFY(desk.shownTexts().isEmpty());
    QCOMPARE(desk.conversation.turn(1).id, 0);
    desk.type(semantic("ECHO", QStringLiteral("b")));
    QTRY_VERIFY(desk.isIdle() && desk.shownTexts().size() == 2);
}

void TestMainWindow::applicationThatDoesNotRunIsSaid()
{
    Desk desk;
    auto *account = desk.window.findChild<QLabel *>(QStringLiteral("statusAccount"));
    QVERIFY(account->isVisible());
    QCOMPARE(account->text(), QStringLiteral("联系人应用未运行"));
    QVERIFY(!desk.window.findChild<QPushButton *>(QStringLiteral("statusLeave"))->isVisible());
}

void TestMainWindow::disabledCardIsVeiledAndEveryCardHasAnEdge()
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
    // It is the card that is clicked, and both go together.
    const QSignalSpy clicked(card, &QPushButton::clicked);
    QTest::mouseClick(view.viewport()->childAt(card->geometry().center()), Qt::LeftButton);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(view.findChildren<CardSurround *>().size(), 2);
    delete below;
    QTRY_COMPARE(view.findChildren<CardSurround *>().size(), 1);
}

void TestMainWindow::pageKeysScrollFromTheInput()
{
    Desk desk;
    for (int i = 0; i < 40; ++i) {
        desk.window.view()->addReply(1, QStringLiteral("第 %1 句").arg(i), nullptr);
    }
    auto *bar = desk.window.view()->verticalScrollBar();
    desk.window.view()->scrollToEnd();
    const int end = bar->maximum();
    QVERIFY(end > 0);
    QTest::keyClick(desk.window.input(), Qt::Key_PageUp);
    QCOMPARE(bar->value(), qMax(0, end - bar->pageStep()));
    QTest::keyClick(desk.window.input(), Qt::Key_PageDown);
    QCOMPARE(bar->value(), end);
}

void TestMainWindow::tabGoesAsOneReads()
{
    Desk desk;
    desk.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    for (int i = 0; i < 4; ++i) {
        desk.type(semantic("CARD", QStringLiteral("卡片")));
    }
    QTRY_VERIFY(desk.isIdle() && desk.window.view()->count() == 8);
    ConversationView *view = desk.window.view();
    view->setFocus();
    QWidgetList visited;
    do {
        visited.append(QApplication::focusWidget());
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_Tab);
    } while (visited.size() < 40 && QApplication::focusWidget() != view);
    QCOMPARE(QApplication::focusWidget(), view);
    // The four cards' buttons from above, the input, the button beside it, the inspector.
    for (int i = 1; i <= 4; ++i) {
        QCOMPARE(visited.at(i)->parentWidget(), view->entries().at(2 * i - 1).card.data());
    }
    QCOMPARE(visited.at(5), desk.window.input());
    QVERIFY(qobject_cast<QPushButton *>(visited.at(6)) != nullptr);
    QVERIFY(visited.size() > 8);
    for (int i = 7; i < visited.size(); ++i) {
        QVERIFY2(desk.window.inspector()->isAncestorOf(visited.at(i)),
                 visited.at(i)->metaObject()->className());
    }
    // And back.
    for (int i = visited.size() - 1; i >= 0; --i) {
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), visited.at(i));
    }
}

void TestMainWindow::focusReturnsToTheInputAfterACardsButton()
{
    Desk desk;
    desk.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    desk.type(semantic("CARD", QStringLiteral("卡片")));
    QTRY_VERIFY(desk.isIdle() && desk.window.view()->count() == 2);
    auto *button = desk.window.view()->entries().at(1).card->findChild<QPushButton *>();
    // The button may disable its card, as a cancellation does, which takes the focus away from it.
    connect(button, &QPushButton::clicked, button, [button] { button->parentWidget()->setEnabled(false); });
    button->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button, Qt::Key_Space);
    QTRY_COMPARE(desk.window.view()->count(), 3);
    QTRY_COMPARE(QApplication::focusWidget(), desk.window.input());
}

void TestMainWindow::buttonToTheEndIsOpaqueAndAtTheSide()
{
    Desk desk;
    desk.type(semantic("ECHO", QStringLiteral("a")));
    QTRY_VERIFY(desk.isIdle());
    ConversationView *view = desk.window.view();
    for (int i = 0; i < 40; ++i) {
        view->addSaid(1, QStringLiteral("这一句话足够长，会在按钮下面经过，第 %1 句").arg(i), false);
    }
    auto *button = view->findChild<EndButton *>();
    QVERIFY(!button->isVisible());
    QTest::keyClick(desk.window.input(), Qt::Key_PageUp);
    QVERIFY(button->isVisible());
    const QImage picture = desk.window.grab().toImage();
    const QColor plate = button->palette().color(QPalette::Button);
    const QRect place(button->mapTo(&desk.window, QPoint()), button->size());
    QCOMPARE(picture.pixelColor(place.center() + QPoint(-12, 0)), plate);
    QCOMPARE(picture.pixelColor(place.center() + QPoint(12, 0)), plate);
    // Round: its corners show what lies below.
    QVERIFY(picture.pixelColor(place.topLeft() + QPoint(1, 1)) != plate);
    QVERIFY(button->x() > view->width() * 3 / 4);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(view->isAtEnd() && !button->isVisible());
}

/// The button took the focus and hid itself, whereupon the focus went to the first card and the view with it.
void TestMainWindow::buttonToTheEndLeadsThereFromCards()
{
    Desk desk;
    desk.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    for (int i = 0; i < 12; ++i) {
        desk.type(semantic("CARD", QStringLiteral("卡片")));
    }
    QTRY_VERIFY(desk.isIdle() && desk.window.view()->count() == 24);
    ConversationView *view = desk.window.view();
    auto *button = view->findChild<EndButton *>();
    const auto goesToTheEnd = [&] {
        view->verticalScrollBar()->setValue(0);
        QTest::mouseClick(button, Qt::LeftButton);
        return view->isAtEnd() && !button->isVisible();
    };
    QVERIFY(desk.window.input()->hasFocus());
    QVERIFY(goesToTheEnd());
    // As a click beside the cards would have it.
    QVERIFY(view->hasFocus());
    // Nor does the button itself, where a screen reader has given it the focus.
    view->verticalScrollBar()->setValue(0);
    button->setFocus();
    QVERIFY(button->hasFocus());
    QVERIFY(goesToTheEnd());
    QVERIFY(!view->isAncestorOf(QApplication::focusWidget()));
    // Nor does the card that had the focus bring the view back when it goes out of sight.
    view->entries().at(1).card->findChild<QPushButton *>()->setFocus();
    QVERIFY(goesToTheEnd());
    QVERIFY(view->hasFocus());
}

void TestMainWindow::windowSpeaksChinese()
{
    ChineseTexts texts;
    QCoreApplication::installTranslator(&texts);
    PluginHost nothing;
    QVERIFY(!nothing.load(QStringLiteral("/nowhere.so")));
    QCOMPARE(nothing.problem().toText(),
             QStringLiteral("找不到插件 /nowhere.so。\n请检查 --plugin 后面的路径。"));
    // Qt's own menus too.
    Desk desk;
    const std::unique_ptr<QMenu> menu(desk.window.input()->createStandardContextMenu());
    for (const QAction *action : menu->actions()) {
        const QString text = action->text().section(QLatin1Char('\t'), 0, 0).section(QLatin1Char('('), 0, 0);
        QVERIFY2(!text.contains(QRegularExpression(QStringLiteral("[A-Za-z]"))), qUtf8Printable(text));
    }
    // And every text that the window itself shows, but names of fields and what plugin authors call so.
    for (const QLabel *label : desk.window.findChildren<QLabel *>()) {
        QVERIFY2(!label->text().contains(QRegularExpression(QStringLiteral("[a-z]{2}"))),
                 qUtf8Printable(label->text()));
    }
    for (const QAbstractButton *button : desk.window.findChildren<QAbstractButton *>()) {
        QVERIFY2(!button->text().contains(QRegularExpression(QStringLiteral("[a-z]{2}"))),
                 qUtf8Printable(button->text()));
    }
    QCoreApplication::removeTranslator(&texts);
}

void TestMainWindow::problemIsShown()
{
    Desk desk;
    auto *problem = desk.window.findChild<QLabel *>(QStringLiteral("problem"));
    QVERIFY(!problem->isVisible());
    desk.window.showProblem(QStringLiteral("<b>没有插件</b>"));
    QVERIFY(problem->isVisible());
    QCOMPARE(problem->text(), QStringLiteral("<b>没有插件</b>"));
    QCOMPARE(problem->textFormat(), Qt::PlainText);
}

void TestMainWindow::namesAreShownWithoutWhatHides()
{
    Desk desk;
    desk.type(semantic("ECHO", QStringLiteral("a\u202eb")));
    QTRY_COMPARE(desk.shownTexts().value(1), QStringLiteral("ab"));
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
