// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationlink.h"
#include "cardsurround.h"
#include "endbutton.h"
#include "inspector.h"
#include "shownview.h"
#include "statusline.h"
#include "turnmenu.h"
#include "turntexts.h"
#include "waitingdots.h"
#include "welcomepage.h"
#include "windowtest.h"

#include <lumo/lfontsizemanager.h>
#include <lumo/lsuggestbutton.h>

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace devhost;

namespace {

QVector<Bubble *> bubblesIn(const ConversationView &view)
{
    QVector<Bubble *> shown;
    const auto bubbles = view.findChildren<Bubble *>();
    for (Bubble *bubble : bubbles) {
        if (bubble->isVisible()) {
            shown.append(bubble);
        }
    }
    std::sort(shown.begin(), shown.end(), [](Bubble *a, Bubble *b) { return a->y() < b->y(); });
    return shown;
}

QColor pixel(QWidget &widget, const QPoint &place)
{
    return widget.grab().toImage().pixelColor(place * widget.devicePixelRatioF());
}

} // namespace

/// Colours, spacing and sides of the window's parts, which no other test covers.
class TestWindowLooks : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsSaidStandsOnTheRightAndInTheAccentColour();
    void aSentenceInTheQueueIsDimmed();
    void bubblesStandApart();
    void whatIsReadStaysWhereItIs();
    void oneDotAfterTheOtherStandsOut();
    void theEndButtonShowsTheFocus();
    void theStatusLineIsQuietAndCutsTitles();
    void durationsHaveTheDigitsThatMatter();
    void aSentenceWithASecretIsNotAskedAgain();
    void theWelcomeIsLargerThanTheText();
    void theInputStandsApartFromItsButton();
    void theInspectorIsThereAtFirstAndKeepsItsWidth();
    void cardsHaveAThinEdge();
};

void TestWindowLooks::whatIsSaidStandsOnTheRightAndInTheAccentColour()
{
    ShownView onScreen(600, 400);
    ConversationView &view = onScreen.view;
    view.addSaid(1, QStringLiteral("说"), false);
    view.addReply(1, QStringLiteral("答"), nullptr);
    const QVector<Bubble *> bubbles = bubblesIn(view);
    QCOMPARE(bubbles.size(), 2);
    Bubble *said = bubbles.at(0);
    Bubble *reply = bubbles.at(1);
    // Both keep the same distance from their edge.
    QCOMPARE(view.viewport()->width() - said->geometry().right() - 1, reply->x());
    QVERIFY(said->x() > view.viewport()->width() / 2);
    const QPoint inside(6, said->height() / 2);
    QCOMPARE(pixel(*said, inside), view.palette().color(QPalette::Highlight));
    QCOMPARE(pixel(*reply, inside), view.palette().color(QPalette::Base));
}

void TestWindowLooks::aSentenceInTheQueueIsDimmed()
{
    ShownView onScreen(600, 400);
    ConversationView &view = onScreen.view;
    view.addSaid(1, QStringLiteral("等着"), true);
    const auto ground = [&view] {
        Bubble *bubble = bubblesIn(view).constFirst();
        return view.viewport()->grab().toImage().pixelColor(bubble->pos() + QPoint(6, bubble->height() / 2));
    };
    const QColor accent = view.palette().color(QPalette::Highlight);
    QVERIFY(ground().lightness() > accent.lightness() + 20);
    view.setStarted(1);
    QCOMPARE(ground(), accent);
}

void TestWindowLooks::bubblesStandApart()
{
    constexpr int gap = 9;
    constexpr int verticalPadding = 9;
    ShownView onScreen(600, 400);
    ConversationView &view = onScreen.view;
    view.addSaid(1, QStringLiteral("一"), false);
    view.addReply(1, QStringLiteral("二"), nullptr);
    const QVector<Bubble *> bubbles = bubblesIn(view);
    QCOMPARE(bubbles.at(1)->y() - bubbles.at(0)->geometry().bottom() - 1, gap);
    // The same for the padding around their texts.
    int natural = 0;
    const int oneLine = Bubble::sizeFor(QStringLiteral("一"), view.font(), 1000, natural).height();
    const int twoLines = Bubble::sizeFor(QStringLiteral("一\n二"), view.font(), 1000, natural).height();
    const int padding = oneLine - (twoLines - oneLine);
    QVERIFY2(qAbs(padding - 2 * verticalPadding) <= 1, qPrintable(QString::number(padding)));
}

void TestWindowLooks::whatIsReadStaysWhereItIs()
{
    ShownView onScreen(600, 300);
    ConversationView &view = onScreen.view;
    for (int turn = 1; turn <= 30; ++turn) {
        view.addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
    }
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2);
    const QString read = bubblesIn(view).at(2)->text();
    const auto place = [&view, &read] {
        const QVector<Bubble *> shown = bubblesIn(view);
        for (const Bubble *bubble : shown) {
            if (bubble->text() == read) {
                return bubble->y();
            }
        }
        return -1000;
    };
    const int before = place();
    // A late answer far above the visible part.
    view.addReply(1, QString(400, QChar(0x4f1a)), nullptr);
    QCOMPARE(place(), before);
}

void TestWindowLooks::oneDotAfterTheOtherStandsOut()
{
    WaitingDots dots;
    dots.show();
    const auto strongest = [&dots] {
        const QImage picture = dots.grab().toImage();
        int found = -1;
        int darkest = 256;
        for (int dot = 0; dot < 3; ++dot) {
            const int lightness =
                picture.pixelColor(dots.width() / 2 + (dot - 1) * 14, dots.height() / 2).lightness();
            if (lightness < darkest) {
                darkest = lightness;
                found = dot;
            }
        }
        return found;
    };
    const auto faint = [&dots] {
        const QImage picture = dots.grab().toImage();
        int count = 0;
        for (int dot = 0; dot < 3; ++dot) {
            count +=
                picture.pixelColor(dots.width() / 2 + (dot - 1) * 14, dots.height() / 2).lightness() > 128
                    ? 1
                    : 0;
        }
        return count;
    };
    QCOMPARE(faint(), 2);
    QSet<int> seen;
    QTRY_VERIFY((seen.insert(strongest()), seen.size() == 3));
}

void TestWindowLooks::theEndButtonShowsTheFocus()
{
    EndButton button;
    button.show();
    button.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    const QPoint edge(button.width() / 2, 1);
    button.clearFocus();
    QVERIFY(pixel(button, edge) != button.palette().color(QPalette::Highlight));
    button.setFocus();
    QCOMPARE(pixel(button, edge), button.palette().color(QPalette::Highlight));
}

void TestWindowLooks::theStatusLineIsQuietAndCutsTitles()
{
    StatusLine line;
    ApplicationState state;
    state.isReached = true;
    state.user = QStringLiteral("王小明");
    state.conferenceTitle = QString(40, QChar(0x4f1a));
    state.conferenceNumber = QStringLiteral("880100001");
    line.show(state);
    const auto *conference = line.findChild<QLabel *>(QStringLiteral("statusConference"));
    QCOMPARE(conference->text(), QStringLiteral("会议中：%1　880100001").arg(QString(30, QChar(0x4f1a))));
    QCOMPARE(conference->toolTip(), state.conferenceTitle);
    for (const char *name : {"statusAccount", "statusConference"}) {
        QCOMPARE(line.findChild<QLabel *>(QLatin1String(name))->foregroundRole(), QPalette::PlaceholderText);
    }
}

void TestWindowLooks::durationsHaveTheDigitsThatMatter()
{
    Turn turn;
    turn.understandingMsecs = 1.234;
    turn.serviceMsecs = 123.456;
    turn.replyMsecs = 10;
    const QString text = turntexts::requests(turn);
    QVERIFY2(text.contains(QStringLiteral("理解　　　1.23 ms")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("service()　123 ms，其中请求 0.00 ms")), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("回复和卡片 10 ms")), qPrintable(text));
}

void TestWindowLooks::aSentenceWithASecretIsNotAskedAgain()
{
    const Desk desk;
    Conversation &conversation = const_cast<Desk &>(desk).conversation;
    const auto mayBeAsked = [&conversation](const QString &said) {
        Turn turn;
        turn.said = said;
        const std::unique_ptr<QMenu> menu(makeTurnMenu(turn, said, conversation, nullptr));
        return menu->actions().last()->isEnabled();
    };
    QVERIFY(mayBeAsked(QStringLiteral("查询今天的会议")));
    QVERIFY(!mayBeAsked(QStringLiteral("加入会议，密码••••")));
    QVERIFY(!mayBeAsked(QString()));
}

void TestWindowLooks::theWelcomeIsLargerThanTheText()
{
    const WelcomePage page;
    const LFontSizeManager *sizes = LFontSizeManager::instance();
    int greetings = 0;
    const auto labels = page.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->text().startsWith(QStringLiteral("您好"))) {
            QCOMPARE(label->font().pixelSize(), sizes->fontPixelSize(LFontSizeManager::T4));
            ++greetings;
        }
    }
    QCOMPARE(greetings, 1);
}

void TestWindowLooks::theInputStandsApartFromItsButton()
{
    Desk desk;
    desk.window.show();
    const QWidget *input = desk.window.input();
    const auto *send = input->parentWidget()->findChild<LSuggestButton *>();
    QCOMPARE(send->mapTo(&desk.window, QPoint()).x() -
                 input->mapTo(&desk.window, QPoint(input->width(), 0)).x(),
             10);
    QVERIFY(input->height() >= 38 && send->height() >= 38);
}

void TestWindowLooks::theInspectorIsThereAtFirstAndKeepsItsWidth()
{
    QList<int> sizes;
    {
        Desk desk;
        desk.window.show();
        QVERIFY(desk.window.inspector()->isVisible());
        auto *splitter = desk.window.findChild<QSplitter *>();
        splitter->setSizes({600, 480});
        sizes = splitter->sizes();
        desk.window.close();
    }
    Desk desk;
    desk.window.show();
    QCOMPARE(desk.window.findChild<QSplitter *>()->sizes(), sizes);
}

void TestWindowLooks::cardsHaveAThinEdge()
{
    ConversationView view;
    view.resize(600, 300);
    auto *card = new QWidget;
    card->setFixedSize(200, 80);
    view.addReply(1, QString(), card);
    view.show();
    QTRY_VERIFY(card->isVisible());
    const auto *edge = view.findChild<CardSurround *>();
    QCOMPARE(edge->geometry(), card->geometry().adjusted(-1, -1, 1, 1));
    const QColor drawn = view.viewport()->grab().toImage().pixelColor(card->x() + 100, card->y() - 1);
    const QColor ground = view.palette().color(QPalette::Window);
    QVERIFY(drawn != ground);
    QVERIFY(qAbs(drawn.lightness() - ground.lightness()) < 100);
}

QTEST_MAIN(TestWindowLooks)
#include "tst_windowlooks.moc"
