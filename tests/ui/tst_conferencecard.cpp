// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"

#include "cardsamples.h"
#include "customizecombobox.h"
#include "customizeitem.h"
#include "desktoptheme.h"
#include "logcapture.h"
#include "paintedcontrast.h"
#include "testcolumns.h"

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>
#include <lumo/lfontsizemanager.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QtTest>

using namespace CardSamples;

/// What a card shows and how it is laid out. Nothing here asks the contacts application.
class TestConferenceCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEmptyCard();
    void theRowsOfASingleConference();
    void theMeasuresOfTheMainLayout();
    void theTitleRow();
    void theStatusRow_data();
    void theStatusRow();
    void theSubjectAloneWhileItIsEdited();
    void theLineBetweenTheParts();
    void aCaptionedRow_data();
    void aCaptionedRow();
    void theStaticStart_data();
    void theStaticStart();
    void theStaticDuration_data();
    void theStaticDuration();
    void participants_data();
    void participants();
    void theFontsAndColoursOfTheTexts();

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

private:
    std::unique_ptr<LogCapture> m_log;
};

namespace {

std::unique_ptr<ConferenceMsgStaticWidget> singleCard(const ContactDetailMsg &conference)
{
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->singleInit({conference});
    return card;
}

QLabel *labelWith(const QWidget &parent, const QString &text)
{
    for (QLabel *label : shown<QLabel>(parent)) {
        if (label->text() == text) {
            return label;
        }
    }
    return nullptr;
}

QColor textColor(const QWidget &widget)
{
    return widget.palette().color(QPalette::Active, QPalette::WindowText);
}

/// The widget's own font in the size of that class.
QFont sized(const QWidget &widget, LFontSizeManager::SizeType size)
{
    return LFontSizeManager::instance()->get(size, widget.font());
}

} // namespace

void TestConferenceCard::init()
{
    m_log = std::make_unique<LogCapture>();
    DesktopTheme::set(DesktopTheme::Light);
}

void TestConferenceCard::cleanup()
{
    m_log.reset();
    DesktopTheme::set(DesktopTheme::Light);
}

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

void TestConferenceCard::theRowsOfASingleConference()
{
    const auto card = singleCard(conference());
    QCOMPARE(texts(*card),
             (QStringList{QStringLiteral("联系人"), QStringLiteral("周例会"), QStringLiteral("未开始"),
                          QStringLiteral("会议号"), QStringLiteral("902 118 34"), QStringLiteral("时间"),
                          QStringLiteral("3月7日    09:00:00"), QStringLiteral("时长"),
                          QStringLiteral("15分钟"), QStringLiteral("人数"), QStringLiteral("20人"),
                          QStringLiteral("参与人"), QStringLiteral("张三 李四 ")}));
    QCOMPARE(card->layout()->count(), 8);
    QVERIFY(qobject_cast<QPushButton *>(card->layout()->itemAt(2)->widget()) != nullptr);
    // It took its own size.
    QCOMPARE(card->height(), card->sizeHint().height());
}

void TestConferenceCard::theMeasuresOfTheMainLayout()
{
    const ConferenceMsgStaticWidget card;
    const auto *layout = qobject_cast<QVBoxLayout *>(card.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void TestConferenceCard::theTitleRow()
{
    ConferenceMsgStaticWidget card;
    const QWidget *row = card.getConferenceTitleWidget();
    QCOMPARE(row->parentWidget(), &card);
    const auto *layout = qobject_cast<QHBoxLayout *>(row->layout());
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->stretch(0), 1);
    QCOMPARE(layout->stretch(1), 129);
    const auto *icon = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QVERIFY(!icon->pixmap(Qt::ReturnByValue).isNull());
    const auto *text = qobject_cast<QLabel *>(layout->itemAt(1)->widget());
    QCOMPARE(text->text(), QStringLiteral("联系人"));
    QCOMPARE(text->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(textColor(*text), QColor(0, 0, 0, 102));
    QCOMPARE(text->font(), sized(*text, LFontSizeManager::T8));
}

void TestConferenceCard::theStatusRow_data()
{
    addColumns<int, QString, QColor>({"status", "text", "color"});
    QTest::newRow("not started") << 0 << QStringLiteral("未开始") << QColor(0, 129, 255);
    QTest::newRow("in progress") << 1 << QStringLiteral("进行中") << QColor(89, 190, 45);
    QTest::newRow("ended") << 2 << QStringLiteral("已结束") << QColor(0, 0, 0, 77);
    QTest::newRow("unknown") << 5 << QStringLiteral("进行中") << QColor(89, 190, 45);
}

void TestConferenceCard::theStatusRow()
{
    QFETCH(int, status);
    QFETCH(QString, text);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.status = status;
    const QWidget *row = card.getConferenceStatusWidget(one, true);
    QCOMPARE(row->parentWidget(), &card);
    const auto *layout = qobject_cast<QHBoxLayout *>(row->layout());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->stretch(0), 1);
    const auto *subject = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QCOMPARE(subject->text(), one.title);
    QCOMPARE(textColor(*subject), QColor(0, 0, 0, 178));
    QCOMPARE(subject->font(), sized(*subject, LFontSizeManager::T6));

    const auto *state = qobject_cast<QHBoxLayout *>(layout->itemAt(1)->layout());
    QVERIFY(state != nullptr);
    QCOMPARE(state->spacing(), 5);
    QCOMPARE(state->count(), 2);
    QCOMPARE(state->stretch(0), 130);
    QCOMPARE(state->stretch(1), 130);
    const auto *icon = qobject_cast<QLabel *>(state->itemAt(0)->widget());
    QVERIFY(!icon->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(icon->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    const auto *label = qobject_cast<QLabel *>(state->itemAt(1)->widget());
    QCOMPARE(label->text(), text);
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(label->font(), sized(*label, LFontSizeManager::T8));
    QTEST(textColor(*label), "color");
}

void TestConferenceCard::theSubjectAloneWhileItIsEdited()
{
    ConferenceMsgStaticWidget card;
    const QWidget *row = card.getConferenceStatusWidget(conference(), false);
    QCOMPARE(row->layout()->count(), 1);
    QCOMPARE(texts(*row), QStringList{QStringLiteral("周例会")});
}

void TestConferenceCard::theLineBetweenTheParts()
{
    const auto card = singleCard(conference());
    const auto *line = qobject_cast<QPushButton *>(card->layout()->itemAt(2)->widget());
    QVERIFY(line->isFlat());
    QCOMPARE(line->minimumHeight(), 1);
    QCOMPARE(line->maximumHeight(), 1);
    QCOMPARE(line->focusPolicy(), Qt::NoFocus);
    QCOMPARE(line->parentWidget(), card.get());
}

void TestConferenceCard::aCaptionedRow_data()
{
    addColumns<int, QString, QString>({"index", "caption", "value"});
    QTest::newRow("the number") << 3 << QStringLiteral("会议号") << QStringLiteral("902 118 34");
    QTest::newRow("the start") << 4 << QStringLiteral("时间") << QStringLiteral("3月7日    09:00:00");
    QTest::newRow("the duration") << 5 << QStringLiteral("时长") << QStringLiteral("15分钟");
    QTest::newRow("the head count") << 6 << QStringLiteral("人数") << QStringLiteral("20人");
    QTest::newRow("the participants") << 7 << QStringLiteral("参与人") << QStringLiteral("张三 李四 ");
}

void TestConferenceCard::aCaptionedRow()
{
    QFETCH(int, index);
    QFETCH(QString, caption);
    QFETCH(QString, value);
    const auto card = singleCard(conference());
    const QWidget *row = card->layout()->itemAt(index)->widget();
    QCOMPARE(row->parentWidget(), card.get());
    const auto *layout = qobject_cast<QHBoxLayout *>(row->layout());
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->alignment(), Qt::Alignment(Qt::AlignLeft));
    QCOMPARE(layout->count(), 3);

    const auto *captionLabel = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QCOMPARE(captionLabel->text(), caption);
    QCOMPARE(captionLabel->minimumWidth(), 60);
    QCOMPARE(captionLabel->maximumWidth(), 60);
    QCOMPARE(captionLabel->minimumHeight(), 20);
    QCOMPARE(textColor(*captionLabel), QColor(0, 0, 0, 153));
    QCOMPARE(captionLabel->font(), sized(*captionLabel, LFontSizeManager::T7));

    QCOMPARE(layout->itemAt(1)->spacerItem()->sizeHint().width(), 10);

    const auto *valueLabel = qobject_cast<QLabel *>(layout->itemAt(2)->widget());
    QCOMPARE(valueLabel->text(), value);
    QCOMPARE(textColor(*valueLabel), QColor(0, 0, 0, 178));
    QCOMPARE(valueLabel->font(), sized(*valueLabel, LFontSizeManager::T6));
    const bool isNumber = caption == QStringLiteral("会议号");
    QCOMPARE(valueLabel->alignment(), (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

void TestConferenceCard::theStaticStart_data()
{
    addColumns<QDateTime, QString>({"start", "text"});
    QTest::newRow("no leading zeros in the date")
        << QDateTime(QDate(2024, 3, 7), QTime(9, 30)) << QStringLiteral("3月7日    09:30:00");
    QTest::newRow("two digits") << QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58))
                                << QStringLiteral("12月31日    23:59:58");
    QTest::newRow("midnight") << QDateTime(QDate(2024, 1, 1), QTime(0, 0))
                              << QStringLiteral("1月1日    00:00:00");
}

void TestConferenceCard::theStaticStart()
{
    QFETCH(QDateTime, start);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.startTime = start.toMSecsSinceEpoch();
    QTEST(texts(*card.getConferenceBeginTimeWidget(one, true)).last(), "text");
}

void TestConferenceCard::theStaticDuration_data()
{
    addColumns<qint64, QString>({"duration", "text"});
    QTest::newRow("whole minutes") << 15 * Minute << QStringLiteral("15分钟");
    QTest::newRow("hours count as minutes too") << 2 * Hour << QStringLiteral("120分钟");
    QTest::newRow("a begun minute does not count") << 2 * Minute - 1 << QStringLiteral("1分钟");
    QTest::newRow("none") << Q_INT64_C(0) << QStringLiteral("0分钟");
}

void TestConferenceCard::theStaticDuration()
{
    QFETCH(qint64, duration);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.duration = duration;
    QTEST(texts(*card.getConferenceTimeLengthWidget(one, true)).last(), "text");
}

void TestConferenceCard::participants_data()
{
    addColumns<QStringList, QString>({"names", "text"});
    QTest::newRow("nobody") << QStringList() << QString();
    QTest::newRow("one, with a blank behind") << QStringList{QStringLiteral("A")} << QStringLiteral("A ");
    QTest::newRow("two") << QStringList{QStringLiteral("A"), QStringLiteral("B")} << QStringLiteral("A B ");
    QTest::newRow("a name that is missing leaves its blank")
        << QStringList{QStringLiteral("A"), QString(), QStringLiteral("B")} << QStringLiteral("A  B ");
}

void TestConferenceCard::participants()
{
    QFETCH(QStringList, names);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.participants.clear();
    for (const QString &name : names) {
        one.participants.append(user(name, QStringLiteral("别名"), {}, QStringLiteral("account")));
    }
    QTEST(texts(*card.getConferenceparticipateNameWidget(one)).last(), "text");
}

void TestConferenceCard::theFontsAndColoursOfTheTexts()
{
    ConferenceMsgStaticWidget card;
    QLabel label;
    card.setWidgetColor(&label, 42);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(label.palette().color(group, QPalette::WindowText), QColor(0, 0, 0, 42));
    }
    DesktopTheme::set(DesktopTheme::Dark);
    card.setWidgetColor(&label, 255);
    QCOMPARE(textColor(label), QColor(255, 255, 255, 255));
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
        QCOMPARE(shown<LCommandLinkButton>(card).first()->text(), footer);
    }
}

void TestConferenceCard::anItemOfTheList()
{
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(2));
    // Lays out what was never shown.
    card.grab();
    CustomizeItem *item = shown<CustomizeItem>(card).first();
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
    // A radius of 8 leaves its corner free, and no more.
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(image.pixelColor(8, 1).alpha(), 7);
}

void TestConferenceCard::theFooterIsLegibleInTheDarkTheme()
{
    DesktopTheme::set(DesktopTheme::Dark);
    ConferenceMsgStaticWidget card;
    card.multipleInit(conferences(4));
    card.show();
    LCommandLinkButton *footer = shown<LCommandLinkButton>(card).first();
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
    const LCommandLinkButton *footer = shown<LCommandLinkButton>(card).first();
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
        for (const QLabel *label : shown<QLabel>(card)) {
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

    // Without a layout around it the card takes a size of its own.
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
    for (const QLabel *label : shown<QLabel>(*card)) {
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
    // Colours are stored multiplied with their alpha, which costs a digit.
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
    QCOMPARE(shown<LCommandLinkButton>(card).first()->palette().color(QPalette::ButtonText),
             QColor(0, 0, 0, 102));
}

void TestConferenceCard::noStyleSheetIsUsed()
{
    ConferenceMsgStaticWidget card;
    QVector<ContactDetailMsg> list = conferences(1);
    card.createInviteConference(list);
    for (const QWidget *widget : card.findChildren<QWidget *>()) {
        QVERIFY(widget->styleSheet().isEmpty());
    }
}

QTEST_MAIN(TestConferenceCard)
#include "tst_conferencecard.moc"
