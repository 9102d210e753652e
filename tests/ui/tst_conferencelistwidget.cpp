// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencelistwidget.h"

#include "conferencemsgstaticwidget.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtTest>

namespace {

bool show(ConferenceListWidget &list, SignalActionType type)
{
    list.resize(360, 500);
    list.multipleInit(type);
    list.show();
    return QTest::qWaitForWindowExposed(&list);
}

} // namespace

class TestConferenceListWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsATranslucentPanel();
    void theScrollArea();
    void theScrollAreaFollowsTheSize();
    void theContent();
};

void TestConferenceListWidget::itIsATranslucentPanel()
{
    const ConferenceListWidget list;
    QVERIFY(list.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(qobject_cast<const CustomizeItem *>(&list) != nullptr);
    QCOMPARE(list.findChild<QScrollArea *>(), nullptr);
}

void TestConferenceListWidget::theScrollArea()
{
    ConferenceListWidget list;
    list.resize(360, 500);
    list.multipleInit(Query_List);
    const auto *area = list.findChild<QScrollArea *>();
    QVERIFY(area != nullptr);
    QCOMPARE(area->frameShape(), QFrame::NoFrame);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(area->geometry(), QRect(0, 70, 360, 430));
    QVERIFY(!area->isHidden());
    QVERIFY(!area->widget()->autoFillBackground());
}

void TestConferenceListWidget::theScrollAreaFollowsTheSize()
{
    ConferenceListWidget list;
    QVERIFY(show(list, JoinMy_List));
    list.resize(400, 300);
    const auto *area = list.findChild<QScrollArea *>();
    QTRY_COMPARE(area->geometry(), QRect(0, 70, 400, 230));
    list.resize(400, 30);
    QTRY_COMPARE(area->geometry(), QRect(0, 70, 400, 0));
}

void TestConferenceListWidget::theContent()
{
    ConferenceListWidget list;
    QVERIFY(show(list, Query_List));
    const auto *area = list.findChild<QScrollArea *>();
    const QWidget *content = area->widget();
    const auto *layout = qobject_cast<QVBoxLayout *>(content->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->alignment(), Qt::AlignTop);
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->contentsMargins(), QMargins(10, 0, 20, 0));

    QCOMPARE(layout->count(), 100);
    for (int i = 0; i < layout->count(); ++i) {
        const auto *card = qobject_cast<ConferenceMsgStaticWidget *>(layout->itemAt(i)->widget());
        QVERIFY(card != nullptr);
        QCOMPARE(card->height(), 120);
        QCOMPARE(card->layout()->count(), 0);
        QCOMPARE(card->y(), i * (120 + 10));
        QCOMPARE(card->width(), area->viewport()->width() - 10 - 20);
    }
    QCOMPARE(content->height(), 100 * (120 + 11));
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
}

QTEST_MAIN(TestConferenceListWidget)
#include "tst_conferencelistwidget.moc"
