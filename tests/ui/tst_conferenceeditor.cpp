// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardhost.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "customizecombobox.h"
#include "testcolumns.h"

#include <lumo/lcombobox.h>
#include <lumo/lfontsizemanager.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>

#include <QHBoxLayout>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

using namespace CardSamples;

/// The card that edits a conference, until it sends the change.
class TestConferenceEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRows();
    void theDatePicker();
    void theHourBox_data();
    void theHourBox();
    void theDurationBox_data();
    void theDurationBox();
    void theHeadCount_data();
    void theHeadCount();
    void aHeadCountThatWasTouchedIsSent();
    void theButtons();
    void widthsFollowTheScreen();

    void anEditIsAChange_data();
    void anEditIsAChange();
    void anEditTakenBackIsNone_data();
    void anEditTakenBackIsNone();
    void anOddMinuteStaysUntilAnHourIsPicked();
    void aDurationThatIsNotOfferedIsAChange_data();
    void aDurationThatIsNotOfferedIsAChange();
    void theReferenceCanBeReplaced();
};

namespace {

struct Editor
{
    explicit Editor(const ContactDetailMsg &conference)
    {
        QVector<ContactDetailMsg> list = {conference};
        host.card()->createInviteConference(list);
        const ConferenceMsgStaticWidget &card = *host.card();
        date = named<CustomizeComboBox>(card, QStringLiteral("日期"));
        hour = named<LComboBox>(card, QStringLiteral("开始时间"));
        duration = named<LComboBox>(card, QStringLiteral("时长"));
        people = named<LSpinBox>(card, QStringLiteral("人数"));
        cancel = button(card, QStringLiteral("取 消"));
        modify = button(card, QStringLiteral("修 改"));
    }

    /// Whether the card has changes; fails the test if the modify button disagrees.
    bool isChanged() const
    {
        if (modify->isEnabled() != host.card()->getConferenceMsgState()) {
            QTest::qFail("The modify button does not follow the card.", __FILE__, __LINE__);
        }
        return host.card()->getConferenceMsgState();
    }

    CardHost host;
    CustomizeComboBox *date;
    LComboBox *hour;
    LComboBox *duration;
    LSpinBox *people;
    QPushButton *cancel;
    QPushButton *modify;
};

QStringList items(const QComboBox &box)
{
    QStringList result;
    for (int i = 0; i < box.count(); ++i) {
        result.append(box.itemText(i));
    }
    return result;
}

int scaled(int width)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return int(width * (screen->availableGeometry().width() / 1920.0 / screen->devicePixelRatio()));
}

ContactDetailMsg payingConference()
{
    ContactDetailMsg one = conference();
    one.isPayingUser = true;
    return one;
}

using Edit = void (*)(const Editor &);

ContactDetailMsg lasting(qint64 duration, bool isPayingUser)
{
    ContactDetailMsg one = conference();
    one.isPayingUser = isPayingUser;
    one.duration = duration;
    return one;
}

} // namespace

Q_DECLARE_METATYPE(Edit)

void TestConferenceEditor::theRows()
{
    const Editor editor(conference());
    const ConferenceMsgStaticWidget &card = *editor.host.card();
    QCOMPARE(texts(card), (QStringList{QStringLiteral("联系人"), QStringLiteral("周例会"),
                                       QStringLiteral("时间"), QStringLiteral("时长"), QStringLiteral("人数"),
                                       QStringLiteral("参与人"), QStringLiteral("张三 李四 ")}));
    QCOMPARE(card.layout()->count(), 8);
    const auto rowOf = [&card](int index) {
        return card.layout()->itemAt(index)->widget();
    };
    QVERIFY(qobject_cast<QPushButton *>(rowOf(2)) != nullptr);
    QVERIFY(rowOf(3)->isAncestorOf(editor.date) && rowOf(3)->isAncestorOf(editor.hour));
    QVERIFY(rowOf(4)->isAncestorOf(editor.duration));
    QVERIFY(rowOf(5)->isAncestorOf(editor.people));
    QVERIFY(rowOf(7)->isAncestorOf(editor.modify) && rowOf(7)->isAncestorOf(editor.cancel));
    QCOMPARE(CardHost::actions(), QStringList());
}

void TestConferenceEditor::theDatePicker()
{
    const Editor editor(conference());
    QCOMPARE(items(*editor.date), QStringList{QStringLiteral("3月7日 周四")});
    QCOMPARE(editor.date->getConferenceDate(), QDate(2024, 3, 7));
    const auto *layout = qobject_cast<QHBoxLayout *>(editor.date->parentWidget()->layout());
    QCOMPARE(layout->indexOf(editor.date), 2);
    QCOMPARE(layout->itemAt(3)->spacerItem()->sizeHint().width(), 10);
    QCOMPARE(layout->indexOf(editor.hour), 4);
    QCOMPARE(layout->itemAt(4)->alignment(), Qt::Alignment(Qt::AlignRight));
}

void TestConferenceEditor::theHourBox_data()
{
    addColumns<int, int, QString>({"hour", "minute", "label"});
    QTest::newRow("midnight") << 0 << 0 << QStringLiteral("00:00");
    QTest::newRow("nine") << 9 << 0 << QStringLiteral("09:00");
    QTest::newRow("half past nine") << 9 << 30 << QStringLiteral("09:00");
    QTest::newRow("ten") << 10 << 0 << QStringLiteral("10:00");
    QTest::newRow("the last hour") << 23 << 59 << QStringLiteral("23:00");
}

void TestConferenceEditor::theHourBox()
{
    QFETCH(int, hour);
    QFETCH(int, minute);
    ContactDetailMsg one = conference();
    one.startTime = thursdayAt(hour, minute);
    const Editor editor(one);
    QCOMPARE(editor.hour->count(), 24);
    QTEST(editor.hour->currentText(), "label");
    QCOMPARE(editor.hour->windowTitle(), QStringLiteral("timeBox"));
    QVERIFY(!editor.isChanged());
}

void TestConferenceEditor::theDurationBox_data()
{
    addColumns<bool, qint64, int, QString>({"isPayingUser", "duration", "count", "current"});
    QTest::newRow("four choices without paying") << false << 15 * Minute << 4 << QStringLiteral("15分钟");
    QTest::newRow("the longest without paying") << false << 30 * Minute << 4 << QStringLiteral("30分钟");
    QTest::newRow("eight choices when paying") << true << 15 * Minute << 8 << QStringLiteral("15分钟");
    QTest::newRow("the longest when paying") << true << 4 * Hour << 8 << QStringLiteral("4小时");
    QTest::newRow("the shortest") << true << 5 * Minute << 8 << QStringLiteral("5分钟");
}

void TestConferenceEditor::theDurationBox()
{
    QFETCH(bool, isPayingUser);
    QFETCH(qint64, duration);
    const Editor editor(lasting(duration, isPayingUser));
    QTEST(editor.duration->count(), "count");
    QTEST(editor.duration->currentText(), "current");
    QCOMPARE(editor.duration->windowTitle(), QStringLiteral("timeLengthBox"));
    QVERIFY(!editor.isChanged());
}

void TestConferenceEditor::theHeadCount_data()
{
    addColumns<bool, int, int, int>({"isPayingUser", "limit", "maximum", "value"});
    QTest::newRow("not above the limit without paying") << false << 20 << 20 << 20;
    QTest::newRow("up to a hundred when paying") << true << 20 << 100 << 20;
    QTest::newRow("two is the least") << false << 2 << 2 << 2;
    QTest::newRow("none is shown as the least, which is no change") << false << 0 << 2 << 2;
    QTest::newRow("one is shown as the least, which is no change") << true << 1 << 100 << 2;
    QTest::newRow("a limit above the most is shown as the most, which is no change")
        << true << 300 << 100 << 100;
}

void TestConferenceEditor::theHeadCount()
{
    QFETCH(bool, isPayingUser);
    QFETCH(int, limit);
    ContactDetailMsg one = conference();
    one.isPayingUser = isPayingUser;
    one.participantLimit = limit;
    Editor editor(one);
    // Not every toolkit has this property.
    const QVariant embedded = editor.people->property("enabledEmbedStyle");
    QVERIFY(!embedded.isValid() || embedded.toBool());
    QCOMPARE(editor.people->minimum(), 2);
    QTEST(editor.people->maximum(), "maximum");
    QTEST(editor.people->value(), "value");
    QVERIFY(!editor.isChanged());

    // Changing something else sends the limit unchanged.
    editor.date->slotSelectionData(QDate(2024, 3, 8));
    QVERIFY(editor.isChanged());
    QTest::mouseClick(editor.modify, Qt::LeftButton);
    const QJsonObject sent = QJsonDocument::fromJson(CardHost::parameters().toUtf8()).object();
    QCOMPARE(sent.value(QLatin1String("participantLimit")).toInt(-1), limit);
}

void TestConferenceEditor::aHeadCountThatWasTouchedIsSent()
{
    ContactDetailMsg one = payingConference();
    one.participantLimit = 0;
    Editor editor(one);
    editor.people->setValue(3);
    QVERIFY(editor.isChanged());
    editor.people->setValue(2);
    QVERIFY(editor.isChanged());
    QTest::mouseClick(editor.modify, Qt::LeftButton);
    const QJsonObject sent = QJsonDocument::fromJson(CardHost::parameters().toUtf8()).object();
    QCOMPARE(sent.value(QLatin1String("participantLimit")).toInt(-1), 2);
}

void TestConferenceEditor::theButtons()
{
    const Editor editor(conference());
    const auto *layout = qobject_cast<QHBoxLayout *>(editor.cancel->parentWidget()->layout());
    QCOMPARE(layout->spacing(), 10);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->indexOf(editor.cancel), 0);
    QCOMPARE(layout->indexOf(editor.modify), 2);
    QVERIFY(qobject_cast<LSuggestButton *>(editor.modify) != nullptr);
    QVERIFY(editor.cancel->isEnabled());
    QVERIFY(!editor.modify->isEnabled());
    const auto *divider = qobject_cast<QPushButton *>(layout->itemAt(1)->widget());
    QVERIFY(divider->isFlat());
    QCOMPARE(divider->maximumWidth(), 1);
    QCOMPARE(divider->minimumWidth(), 1);
    QCOMPARE(divider->focusPolicy(), Qt::NoFocus);
    for (const QPushButton *action : {editor.cancel, editor.modify}) {
        QCOMPARE(action->font(), LFontSizeManager::instance()->get(LFontSizeManager::T6, action->font()));
        QCOMPARE(action->palette().color(QPalette::Active, QPalette::WindowText).alpha(), 178);
    }
}

void TestConferenceEditor::widthsFollowTheScreen()
{
    const Editor editor(conference());
    QCOMPARE(editor.date->minimumWidth(), scaled(160));
    QCOMPARE(editor.hour->minimumWidth(), scaled(100));
    QCOMPARE(editor.duration->minimumWidth(), scaled(138));
    QCOMPARE(editor.people->minimumWidth(), scaled(138));
}

void TestConferenceEditor::anEditIsAChange_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::newRow("another day") << Edit(
        [](const Editor &editor) { editor.date->slotSelectionData(QDate(2024, 3, 8)); });
    QTest::newRow("another hour, with the keyboard")
        << Edit([](const Editor &editor) { QTest::keyClick(editor.hour, Qt::Key_Down); });
    QTest::newRow("another duration, with the keyboard")
        << Edit([](const Editor &editor) { QTest::keyClick(editor.duration, Qt::Key_Up); });
    QTest::newRow("one person less, with the keyboard")
        << Edit([](const Editor &editor) { QTest::keyClick(editor.people, Qt::Key_Down); });
}

void TestConferenceEditor::anEditIsAChange()
{
    QFETCH(Edit, edit);
    Editor editor(payingConference());
    QVERIFY(editor.host.activate());
    QVERIFY(!editor.isChanged());
    edit(editor);
    QVERIFY(editor.isChanged());
}

void TestConferenceEditor::anEditTakenBackIsNone_data()
{
    addColumns<Edit, Edit>({"edit", "takeBack"});
    QTest::newRow("the day") << Edit([](const Editor &editor) {
        editor.date->slotSelectionData(QDate(2024, 3, 8));
    }) << Edit([](const Editor &editor) { editor.date->slotSelectionData(QDate(2024, 3, 7)); });
    QTest::newRow("the hour") << Edit([](const Editor &editor) {
        editor.hour->setCurrentText(QStringLiteral("23:00"));
    }) << Edit([](const Editor &editor) { editor.hour->setCurrentText(QStringLiteral("09:00")); });
    QTest::newRow("the duration") << Edit([](const Editor &editor) {
        editor.duration->setCurrentText(QStringLiteral("4小时"));
    }) << Edit([](const Editor &editor) { editor.duration->setCurrentText(QStringLiteral("15分钟")); });
    QTest::newRow("the head count") << Edit([](const Editor &editor) { editor.people->setValue(100); })
                                    << Edit([](const Editor &editor) { editor.people->setValue(20); });
}

void TestConferenceEditor::anEditTakenBackIsNone()
{
    QFETCH(Edit, edit);
    QFETCH(Edit, takeBack);
    const Editor editor(payingConference());
    edit(editor);
    QVERIFY(editor.isChanged());
    takeBack(editor);
    QVERIFY(!editor.isChanged());
}

void TestConferenceEditor::anOddMinuteStaysUntilAnHourIsPicked()
{
    ContactDetailMsg one = conference();
    one.startTime = thursdayAt(9, 30);
    const Editor editor(one);
    QVERIFY(!editor.isChanged());
    editor.duration->setCurrentIndex(0);
    QVERIFY(editor.isChanged());
    editor.duration->setCurrentText(QStringLiteral("15分钟"));
    QVERIFY(!editor.isChanged());
    editor.hour->setCurrentText(QStringLiteral("10:00"));
    QVERIFY(editor.isChanged());
    // The half hour is lost: 09:00 is not the original time.
    editor.hour->setCurrentText(QStringLiteral("09:00"));
    QVERIFY(editor.isChanged());
}

void TestConferenceEditor::aDurationThatIsNotOfferedIsAChange_data()
{
    addColumns<bool, qint64>({"isPayingUser", "duration"});
    QTest::newRow("in no table") << true << 45 * Minute;
    QTest::newRow("only for who pays") << false << 2 * Hour;
    QTest::newRow("none") << true << Q_INT64_C(0);
}

void TestConferenceEditor::aDurationThatIsNotOfferedIsAChange()
{
    QFETCH(bool, isPayingUser);
    QFETCH(qint64, duration);
    const Editor editor(lasting(duration, isPayingUser));
    QCOMPARE(editor.duration->currentText(), QStringLiteral("5分钟"));
    QVERIFY(!items(*editor.duration).contains(QString()));
    QVERIFY(editor.host.card()->getConferenceMsgState());
    // Only an edit updates the button.
    QVERIFY(!editor.modify->isEnabled());
    editor.people->stepDown();
    QVERIFY(editor.modify->isEnabled());
}

void TestConferenceEditor::theReferenceCanBeReplaced()
{
    const Editor editor(conference());
    ContactDetailMsg other = conference();
    other.participantLimit = 19;
    editor.host.card()->setConstConferenceMsg(other);
    QVERIFY(editor.host.card()->getConferenceMsgState());
    editor.people->setValue(19);
    QVERIFY(!editor.isChanged());
}

QTEST_MAIN(TestConferenceEditor)
#include "tst_conferenceeditor.moc"
