// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardlooks.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "desktoptheme.h"
#include "testcolumns.h"

#include <lumo/lfontsizemanager.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace CardLooks;
using namespace CardSamples;

namespace {

/// The stretch factor of each item of @p layout.
QVector<int> stretchesOf(const QBoxLayout &layout)
{
    QVector<int> stretches;
    for (int i = 0; i < layout.count(); ++i) {
        stretches.append(layout.stretch(i));
    }
    return stretches;
}

} // namespace

/// The rows of a card that shows one conference: texts, sizes, fonts.
class TestConferenceCardRows : public CardLooks::LightTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void TestConferenceCardRows::theRowsOfASingleConference()
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
    // The card has its preferred height.
    QCOMPARE(card->height(), card->sizeHint().height());
}

void TestConferenceCardRows::theMeasuresOfTheMainLayout()
{
    const ConferenceMsgStaticWidget card;
    const auto *layout = qobject_cast<QVBoxLayout *>(card.layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignTop);
}

void TestConferenceCardRows::theTitleRow()
{
    ConferenceMsgStaticWidget card;
    const QWidget *row = card.getConferenceTitleWidget();
    QCOMPARE(row->parentWidget(), &card);
    const auto *layout = qobject_cast<QHBoxLayout *>(row->layout());
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(stretchesOf(*layout), (QVector<int>{1, 129}));
    const auto *icon = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    QVERIFY(!icon->pixmap(Qt::ReturnByValue).isNull());
    const auto *text = qobject_cast<QLabel *>(layout->itemAt(1)->widget());
    QCOMPARE(text->text(), QStringLiteral("联系人"));
    QCOMPARE(text->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(textColor(*text), QColor(0, 0, 0, 102));
    QCOMPARE(text->font(), sized(*text, LFontSizeManager::T8));
}

void TestConferenceCardRows::theStatusRow_data()
{
    addColumns<int, QString, QColor>({"status", "text", "color"});
    QTest::newRow("not started") << 0 << QStringLiteral("未开始") << QColor(0, 129, 255);
    QTest::newRow("in progress") << 1 << QStringLiteral("进行中") << QColor(89, 190, 45);
    QTest::newRow("ended") << 2 << QStringLiteral("已结束") << QColor(0, 0, 0, 77);
    QTest::newRow("unknown") << 5 << QStringLiteral("进行中") << QColor(89, 190, 45);
}

void TestConferenceCardRows::theStatusRow()
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
    QCOMPARE(stretchesOf(*state), (QVector<int>{130, 130}));
    const auto *icon = qobject_cast<QLabel *>(state->itemAt(0)->widget());
    QVERIFY(!icon->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(icon->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    const auto *label = qobject_cast<QLabel *>(state->itemAt(1)->widget());
    QCOMPARE(label->text(), text);
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(label->font(), sized(*label, LFontSizeManager::T8));
    QTEST(textColor(*label), "color");
}

void TestConferenceCardRows::theSubjectAloneWhileItIsEdited()
{
    ConferenceMsgStaticWidget card;
    const QWidget *row = card.getConferenceStatusWidget(conference(), false);
    QCOMPARE(row->layout()->count(), 1);
    QCOMPARE(texts(*row), QStringList{QStringLiteral("周例会")});
}

void TestConferenceCardRows::theLineBetweenTheParts()
{
    const auto card = singleCard(conference());
    const auto *line = qobject_cast<QPushButton *>(card->layout()->itemAt(2)->widget());
    QVERIFY(line->isFlat());
    QCOMPARE(line->minimumHeight(), 1);
    QCOMPARE(line->maximumHeight(), 1);
    QCOMPARE(line->focusPolicy(), Qt::NoFocus);
    QCOMPARE(line->parentWidget(), card.get());
}

void TestConferenceCardRows::aCaptionedRow_data()
{
    addColumns<int, QString, QString>({"index", "caption", "value"});
    QTest::newRow("the number") << 3 << QStringLiteral("会议号") << QStringLiteral("902 118 34");
    QTest::newRow("the start") << 4 << QStringLiteral("时间") << QStringLiteral("3月7日    09:00:00");
    QTest::newRow("the duration") << 5 << QStringLiteral("时长") << QStringLiteral("15分钟");
    QTest::newRow("the head count") << 6 << QStringLiteral("人数") << QStringLiteral("20人");
    QTest::newRow("the participants") << 7 << QStringLiteral("参与人") << QStringLiteral("张三 李四 ");
}

void TestConferenceCardRows::aCaptionedRow()
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

void TestConferenceCardRows::theStaticStart_data()
{
    addColumns<QDateTime, QString>({"start", "text"});
    QTest::newRow("no leading zeros in the date")
        << QDateTime(QDate(2024, 3, 7), QTime(9, 30)) << QStringLiteral("3月7日    09:30:00");
    QTest::newRow("two digits") << QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58))
                                << QStringLiteral("12月31日    23:59:58");
    QTest::newRow("midnight") << QDateTime(QDate(2024, 1, 1), QTime(0, 0))
                              << QStringLiteral("1月1日    00:00:00");
}

void TestConferenceCardRows::theStaticStart()
{
    QFETCH(QDateTime, start);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.startTime = start.toMSecsSinceEpoch();
    QTEST(texts(*card.getConferenceBeginTimeWidget(one, true)).constLast(), "text");
}

void TestConferenceCardRows::theStaticDuration_data()
{
    addColumns<qint64, QString>({"duration", "text"});
    QTest::newRow("whole minutes") << 15 * Minute << QStringLiteral("15分钟");
    QTest::newRow("hours count as minutes too") << 2 * Hour << QStringLiteral("120分钟");
    QTest::newRow("a begun minute does not count") << 2 * Minute - 1 << QStringLiteral("1分钟");
    QTest::newRow("none") << Q_INT64_C(0) << QStringLiteral("0分钟");
}

void TestConferenceCardRows::theStaticDuration()
{
    QFETCH(qint64, duration);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.duration = duration;
    QTEST(texts(*card.getConferenceTimeLengthWidget(one, true)).constLast(), "text");
}

void TestConferenceCardRows::participants_data()
{
    addColumns<QStringList, QString>({"names", "text"});
    QTest::newRow("nobody") << QStringList() << QString();
    QTest::newRow("one, with a blank behind") << QStringList{QStringLiteral("A")} << QStringLiteral("A ");
    QTest::newRow("two") << QStringList{QStringLiteral("A"), QStringLiteral("B")} << QStringLiteral("A B ");
    QTest::newRow("a name that is missing leaves its blank")
        << QStringList{QStringLiteral("A"), QString(), QStringLiteral("B")} << QStringLiteral("A  B ");
}

void TestConferenceCardRows::participants()
{
    QFETCH(QStringList, names);
    ConferenceMsgStaticWidget card;
    ContactDetailMsg one = conference();
    one.participants.clear();
    for (const QString &name : names) {
        one.participants.append(user(name, QStringLiteral("别名"), {}, QStringLiteral("account")));
    }
    QTEST(texts(*card.getConferenceparticipateNameWidget(one)).constLast(), "text");
}

void TestConferenceCardRows::theFontsAndColoursOfTheTexts()
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

QTEST_MAIN(TestConferenceCardRows)
#include "tst_conferencecardrows.moc"
