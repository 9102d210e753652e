// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"

#include "cardlooks.h"
#include "cardsamples.h"
#include "customizeitem.h"
#include "desktoptheme.h"
#include "paintedcontrast.h"
#include "testcolumns.h"

#include <lumo/lcommandlinkbutton.h>
#include <lumo/lfontsizemanager.h>

#include <QLabel>
#include <QVBoxLayout>
#include <QtTest>

using namespace CardLooks;
using namespace CardSamples;

/// What a card shows for one conference and for several, and its colours. Sends no requests.
class TestConferenceCard : public CardLooks::LightTest
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyCard();

    void howManyConferencesAListShows_data();
    void howManyConferencesAListShows();
    void anItemOfTheList();
    void theFooter();
    void theFooterIsLegibleInTheDarkTheme();
    void anEmptyListLeavesTheCardEmpty();
    void aSingleConferenceOfSeveralIsTheFirst();
    void theModeFollowsTheBuilder();

    void markupIsShownAsItIs();
    void lineBreaksDoNotMakeARowTaller();
    void noTextMakesTheCardWider_data();
    void noTextMakesTheCardWider();

    void theBackground_data();
    void theBackground();
    void theTextsFollowTheTheme();
    void coloursThatDoNotFollowTheTheme();
    void noStyleSheetIsUsed();
};

void TestConferenceCard::anEmptyCard()
{
    ConferenceMsgStaticWidget card;
    QVERIFY(card.findChildren<QWidget *>().isEmpty());
    card.singleInit({});
    QVERIFY(card.findChildren<QWidget *>().isEmpty());
    QCOMPARE(card.layout()->count(), 0);
    QCOMPARE(card.minimumHeight(), 0);
    QCOMPARE(card.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
    QCOMPARE(card.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(card.focusPolicy(), Qt::TabFocus);
}

void TestConferenceCard::howManyConferencesAListShows_data()
{
    addColumns<int, int, QString>({"count", "items", "footer"});
    QTest::newRow("one") << 1 << 1 << QString();
    QTest::newRow("two") << 2 << 2 << QString();
    QTest::newRow("three") << 3 << 3 << QString();
    QTest::newRow("four") << 4 << 3 << QStringLiteral("在“联系人”中查看所有4个结果…");
    QTest::newRow("ten thousand") << 10000 << 3 << QStringLiteral("在“联系人”中查看所有10000个结果…");
}

void TestConferenceCard::howManyConferencesAListShows()
{
    QFETCH(int, count);
    QFETCH(int, items);
    QFETCH(QString, footer);
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(count));
    QCOMPARE(shown<CustomizeItem>(card).size(), items);
    QCOMPARE(card.layout()->count(), 1 + items + (footer.isEmpty() ? 0 : 1));
    for (int i = 0; i < items; ++i) {
        QVERIFY(texts(*shown<CustomizeItem>(card).at(i)).contains(QStringLiteral("会议%1").arg(i + 1)));
    }
    QCOMPARE(shown<LCommandLinkButton>(card).size(), footer.isEmpty() ? 0 : 1);
    if (!footer.isEmpty()) {
        QCOMPARE(shown<LCommandLinkButton>(card).constFirst()->text(), footer);
    }
}

void TestConferenceCard::anItemOfTheList()
{
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(2));
    // Forces the layout of a card that was never shown.
    card.grab();
    CustomizeItem *item = shown<CustomizeItem>(card).constFirst();
    QCOMPARE(item->focusPolicy(), Qt::NoFocus);
    const auto *layout = qobject_cast<QVBoxLayout *>(item->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignTop);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(texts(*item), (QStringList{QStringLiteral("会议1"), QStringLiteral("未开始"),
                                        QStringLiteral("会议号"), QStringLiteral("902 118 34"),
                                        QStringLiteral("时间"), QStringLiteral("3月7日    09:00:00")}));
    QImage image(item->size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    item->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    QCOMPARE(image.pixelColor(image.width() / 2, 3), QColor(0, 0, 0, 7));
    // A radius of 8 leaves only the corner transparent.
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(8, 1).alpha(), 7);
}

void TestConferenceCard::theFooterIsLegibleInTheDarkTheme()
{
    DesktopTheme::set(DesktopTheme::Dark);
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(4));
    card.show();
    LCommandLinkButton *footer = shown<LCommandLinkButton>(card).constFirst();
    const QImage chip = footer->grab().toImage();
    const int inset = chip.height() / 2;
    const double contrast = PaintedContrast::ofText(chip.copy(chip.rect().adjusted(inset, 1, -inset, -1)));
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    QVERIFY(qGray(PaintedContrast::ground(chip)) > 150);
    QVERIFY(qGray(chip.pixel(0, 0)) < 80);
}

void TestConferenceCard::theFooter()
{
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(4));
    const LCommandLinkButton *footer = shown<LCommandLinkButton>(card).constFirst();
    QCOMPARE(footer->minimumWidth(), 200);
    QCOMPARE(footer->maximumWidth(), 200);
    QCOMPARE(footer->font(), sized(*footer, LFontSizeManager::T8));
    QCOMPARE(footer->palette().color(QPalette::ButtonText), QColor(0, 0, 0, 102));
}

void TestConferenceCard::anEmptyListLeavesTheCardEmpty()
{
    ConferenceMsgStaticWidget card;
    card.multipleInit({});
    QVERIFY(card.findChildren<QWidget *>().isEmpty());
    QVector<ContactDetailMsg> none;
    card.createInviteConference(none);
    QVERIFY(card.findChildren<QWidget *>().isEmpty());
}

void TestConferenceCard::aSingleConferenceOfSeveralIsTheFirst()
{
    ConferenceMsgStaticWidget card;
    card.singleInit(conferences(3));
    QVERIFY(texts(card).contains(QStringLiteral("会议1")));
    QVERIFY(!texts(card).contains(QStringLiteral("会议2")));
}

void TestConferenceCard::theModeFollowsTheBuilder()
{
    ConferenceMsgStaticWidget single;
    single.singleInit(conferences(1));
    QCOMPARE(int(single.mode()), 1);
    ConferenceMsgStaticWidget list;
    list.multipleInit(conferences(2));
    QCOMPARE(int(list.mode()), 0);
}

void TestConferenceCard::markupIsShownAsItIs()
{
    const QString markup = QStringLiteral("<b>x</b><img src=\"file:///etc/hostname\">&amp;");
    ContactDetailMsg one = conference();
    one.title = markup;
    one.conferenceDialNumber = markup;
    one.participants = {user(markup, {}, {}, {})};
    for (int i = 0; i < 2; ++i) {
        ConferenceMsgStaticWidget card;
        if (i == 0) {
            card.singleInit({one});
        } else {
            card.multipleInit({one, one});
        }
        QVERIFY(texts(card).contains(markup));
        const auto labels = shown<QLabel>(card);
        for (const QLabel *label : labels) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
}

void TestConferenceCard::lineBreaksDoNotMakeARowTaller()
{
    ContactDetailMsg one = conference();
    one.title = QStringLiteral("abcde");
    const int height = singleCard(one)->height();
    one.title = QStringLiteral("a\nb\r\nc\u2028d\u2029e");
    const auto card = singleCard(one);
    QCOMPARE(card->height(), height);
    QVERIFY(texts(*card).contains(QStringLiteral("a b  c d e")));
}

void TestConferenceCard::noTextMakesTheCardWider_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("as planned") << 360;
    QTest::newRow("narrower") << 200;
    QTest::newRow("wider") << 900;
}

void TestConferenceCard::noTextMakesTheCardWider()
{
    QFETCH(int, width);
    ContactDetailMsg one = conference();
    one.title = QString(500, QChar(0x4f1a));
    one.conferenceDialNumber = QString(500, QLatin1Char('9'));
    one.participants.fill(user(QStringLiteral("张三"), {}, {}, {}), 100);

    // Outside a layout the card sets its own size.
    QVERIFY(singleCard(one)->width() < 400);

    QWidget host;
    auto *layout = new QVBoxLayout(&host);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *card = new ConferenceMsgStaticWidget;
    layout->addWidget(card);
    card->singleInit({one});
    host.resize(width, 400);
    host.show();
    QCOMPARE(card->width(), width);
    const auto labels = shown<QLabel>(*card);
    for (const QLabel *label : labels) {
        const QRect place(label->mapTo(card, QPoint()), label->size());
        QVERIFY2(card->rect().contains(place), qPrintable(label->text()));
    }
}

void TestConferenceCard::theBackground_data()
{
    addColumns<int, QColor>({"theme", "color"});
    QTest::newRow("light") << int(DesktopTheme::Light) << QColor(247, 247, 247, 200);
    QTest::newRow("dark") << int(DesktopTheme::Dark) << QColor(0x19, 0x19, 0x19, 204);
}

void TestConferenceCard::theBackground()
{
    QFETCH(int, theme);
    QFETCH(QColor, color);
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));
    ConferenceMsgStaticWidget card;
    card.resize(100, 50);
    QImage image(card.size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    card.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    const QColor painted = image.pixelColor(50, 25);
    QCOMPARE(painted.alpha(), color.alpha());
    // Premultiplied colours lose precision.
    QVERIFY(qAbs(painted.red() - color.red()) <= 1);
    QVERIFY(qAbs(painted.green() - color.green()) <= 1);
    QVERIFY(qAbs(painted.blue() - color.blue()) <= 1);
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QVERIFY(image.pixelColor(8, 1).alpha() > 190);
}

void TestConferenceCard::theTextsFollowTheTheme()
{
    const auto card = singleCard(conference());
    QCOMPARE(textColor(*labelWith(*card, QStringLiteral("周例会"))), QColor(0, 0, 0, 178));
    DesktopTheme::set(DesktopTheme::Dark);
    QTRY_COMPARE(textColor(*labelWith(*card, QStringLiteral("周例会"))), QColor(255, 255, 255, 178));
    QCOMPARE(textColor(*labelWith(*card, QStringLiteral("联系人"))), QColor(255, 255, 255, 102));
    QCOMPARE(textColor(*labelWith(*card, QStringLiteral("时长"))), QColor(255, 255, 255, 153));
    QCOMPARE(textColor(*labelWith(*card, QStringLiteral("20人"))), QColor(255, 255, 255, 178));
    DesktopTheme::set(DesktopTheme::Light);
    QTRY_COMPARE(textColor(*labelWith(*card, QStringLiteral("时长"))), QColor(0, 0, 0, 153));
}

void TestConferenceCard::coloursThatDoNotFollowTheTheme()
{
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(4));
    DesktopTheme::set(DesktopTheme::Dark);
    QTRY_COMPARE(textColor(*labelWith(card, QStringLiteral("会议1"))), QColor(255, 255, 255, 178));
    QCOMPARE(textColor(*labelWith(card, QStringLiteral("未开始"))), QColor(0, 129, 255));
    QCOMPARE(textColor(*labelWith(card, QStringLiteral("已结束"))), QColor(0, 0, 0, 77));
    QCOMPARE(shown<LCommandLinkButton>(card).constFirst()->palette().color(QPalette::ButtonText),
             QColor(0, 0, 0, 102));
}

void TestConferenceCard::noStyleSheetIsUsed()
{
    ConferenceMsgStaticWidget card;
    QVector<ContactDetailMsg> list = conferences(1);
    card.createInviteConference(list);
    const auto widgets = card.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        QVERIFY(widget->styleSheet().isEmpty());
    }
}

QTEST_MAIN(TestConferenceCard)
#include "tst_conferencecard.moc"
