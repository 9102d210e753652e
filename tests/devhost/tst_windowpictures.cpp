// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardlabel.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "documentedpictures.h"
#include "inspector.h"
#include "paintedcontrast.h"
#include "titleitem.h"
#include "windowtest.h"

#include <QtTest>
#include <QtWidgets>

using namespace CardSamples;
using namespace devhost;

namespace {

constexpr QSize WindowSize(900, 600);
constexpr double LeastTextContrast = 4.5;
constexpr double LeastEdgeContrast = 3;

/// Leaves the welcome page, which the first turn replaces with the conversation.
void talk(Desk &desk)
{
    desk.window.submit(QStringLiteral("你好"));
    QTRY_VERIFY(desk.isIdle());
    desk.view().clear();
}

ConferenceMsgStaticWidget *found()
{
    auto *card = new ConferenceMsgStaticWidget;
    card->singleInit({conference()});
    return card;
}

using Arrange = void (*)(Desk &);

void welcome(Desk &) {}

void answer(Desk &desk)
{
    talk(desk);
    desk.view().addSaid(1, QStringLiteral("查询今天的会议"), false);
    desk.view().addReply(1, QStringLiteral("以下是您查询的视频会议:"), found());
}

void waiting(Desk &desk)
{
    talk(desk);
    desk.view().addSaid(1, QStringLiteral("查询今天的会议"), false);
    desk.view().setWaiting(1);
    desk.view().addSaid(2, QStringLiteral("你会什么"), true);
}

void editable(Desk &desk)
{
    talk(desk);
    auto *card = new ConferenceMsgStaticWidget;
    QVector<ContactDetailMsg> list = {conference()};
    card->createInviteConference(list);
    desk.view().addReply(1, QStringLiteral("好的，为您预约如下。"), card);
}

void picked(Desk &desk)
{
    talk(desk);
    auto *card = new ConferenceMsgStaticWidget;
    card->createMultiplePerson(createdDetail(), true);
    card->findChildren<TiTleItem *>().at(1)->toggleSelection();
    desk.view().addReply(1, QStringLiteral("您需要邀请以下哪位好友:"), card);
}

void disabled(Desk &desk)
{
    answer(desk);
    desk.view().findChild<ConferenceMsgStaticWidget *>()->setEnabled(false);
}

void failed(Desk &desk)
{
    talk(desk);
    desk.view().addSaid(1, QStringLiteral("查询今天的会议"), false);
    desk.view().addNotice(1, QStringLiteral("插件没有回答。"));
}

void problem(Desk &desk)
{
    desk.window.showProblem(QStringLiteral("找不到插件。\n请把它安装到那里，或者用 --plugin 指定文件。"));
}

void scrolledUp(Desk &desk)
{
    talk(desk);
    for (int turn = 1; turn <= 20; ++turn) {
        desk.view().addSaid(turn, QStringLiteral("第 %1 句").arg(turn), false);
        desk.view().addReply(turn, QStringLiteral("第 %1 个回答").arg(turn), nullptr);
    }
    desk.view().verticalScrollBar()->setValue(100);
}

void password(Desk &desk)
{
    answer(desk);
    desk.window.input()->setSecret(true);
    desk.window.input()->setText(QStringLiteral("1234"));
}

struct State
{
    const char *name;
    Arrange arrange;
};

} // namespace

Q_DECLARE_METATYPE(State)

/**
 * Compares the window in ten states and both themes with the pictures in docs/pictures/desk, and measures the
 * contrast of the desk's texts and edges. Writes those pictures if UPDATE_PICTURES is set.
 */
class TestWindowPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyState_data();
    void everyState();

private:
    QTemporaryDir m_settings;
};

void TestWindowPictures::initTestCase()
{
    QApplication::setStyle(new LStyle);
    QApplication::setCursorFlashTime(0);
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

void TestWindowPictures::everyState_data()
{
    DocumentedPictures::addRows<State>({{"welcome", welcome},
                                        {"answer", answer},
                                        {"waiting", waiting},
                                        {"editable", editable},
                                        {"picked", picked},
                                        {"disabled", disabled},
                                        {"failed", failed},
                                        {"problem", problem},
                                        {"scrolled-up", scrolledUp},
                                        {"password", password}});
}

void TestWindowPictures::everyState()
{
    QFETCH(State, state);
    QFETCH(bool, isDark);
    Desk desk;
    desk.appearance.setTheme(isDark ? Appearance::Dark : Appearance::Light);
    desk.window.resize(WindowSize);
    desk.window.show();
    // The preferred monospaced font differs between machines; the pictures use one found on every Debian.
    const auto edits = desk.window.findChildren<QPlainTextEdit *>();
    for (QPlainTextEdit *edit : edits) {
        QFont font = edit->font();
        font.setFamily(QStringLiteral("DejaVu Sans Mono"));
        edit->setFont(font);
    }
    state.arrange(desk);
    QCoreApplication::sendPostedEvents();
    QTest::qWait(1); // the queued layout
    const QImage picture = desk.window.grab().toImage();
    const QString difference = DocumentedPictures::differenceFromDocuments(picture, QStringLiteral("desk"),
                                                                           QLatin1String(state.name), isDark);

    // Only the desk's own texts: the cards' colours belong to the plugin.
    const qreal ratio = picture.devicePixelRatio();
    const auto widgets = desk.window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *bubble = qobject_cast<const Bubble *>(widget);
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QPushButton *>(widget);
        const bool hasText = (bubble != nullptr && !bubble->isDimmed()) ||
                             (label != nullptr && !label->text().isEmpty()) || button != nullptr;
        const QRect place(widget->mapTo(&desk.window, QPoint()), widget->size());
        bool isOnCard = false;
        for (const ConversationEntry &entry : desk.view().entries()) {
            isOnCard = isOnCard || (entry.card != nullptr && entry.card->isAncestorOf(widget));
        }
        const auto *area = qobject_cast<const QAbstractScrollArea *>(widget);
        const bool hasEdge = (button != nullptr && !button->isFlat()) ||
                             qobject_cast<const QLineEdit *>(widget) != nullptr ||
                             (area != nullptr && area->frameShape() == QFrame::StyledPanel);
        if (hasEdge && !isOnCard && widget->isVisible() && widget->isEnabled() &&
            desk.window.rect().contains(place)) {
            const double contrast =
                PaintedContrast::ofEdge(picture, QRect(place.topLeft() * ratio, place.size() * ratio));
            QVERIFY2(
                contrast >= LeastEdgeContrast,
                qPrintable(QStringLiteral("edge of %1 %2: %3")
                               .arg(QLatin1String(widget->metaObject()->className()), widget->objectName())
                               .arg(contrast)));
        }
        if (!hasText || isOnCard || !widget->isVisible() || !widget->isEnabled() ||
            !desk.window.rect().contains(place)) {
            continue;
        }
        const QRect pixels(place.topLeft() * ratio, place.size() * ratio);
        const double contrast = PaintedContrast::ofText(picture.copy(pixels));
        QVERIFY2(
            contrast >= LeastTextContrast,
            qPrintable(QStringLiteral("%1 %2: %3")
                           .arg(QLatin1String(widget->metaObject()->className()), widget->accessibleName())
                           .arg(contrast)));
    }

    // Fixed texts of a card are never elided, however large the desktop's font.
    for (const ConversationEntry &entry : desk.view().entries()) {
        const auto labels =
            entry.card == nullptr ? QList<CardLabel *>() : entry.card->findChildren<CardLabel *>();
        for (const CardLabel *label : labels) {
            QVERIFY2(!label->isVisible() || label->width() >= label->wholeWidth(), qPrintable(label->text()));
        }
    }

    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_MAIN(TestWindowPictures)
#include "tst_windowpictures.moc"
