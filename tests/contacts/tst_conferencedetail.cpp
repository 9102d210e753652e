// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"
#include "windowpictures.h"

#include "testcolumns.h"

#include "window/conferencedetail.h"

#include <QAction>
#include <QDateTimeEdit>
#include <QFileDialog>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeWidget>

/// The dialog that shows a conference and lets its host change it.
class TestConferenceDetail : public ContactsDialogTest<ConferenceDetail>
{
    Q_OBJECT

private Q_SLOTS:
    void returnAndADoubleClickOpenIt();
    void everybodyInItIsNamedWithTheirState();
    void aHostChangesEverything();
    void onlyWhatWasEditedIsSent();
    void aLongPasscodeIsKeptWhenItIsNotEdited();
    void aRefusalSaysWhyAndKeepsItOpen();
    void othersCanOnlyRead();
    void whatRunsCannotBeMoved();
    void whatHasEndedCannotBeChanged();
    void itFollowsWhoJoinsAndClosesWhenItIsGone();
    void whatEndsMeanwhileCannotBeChanged();
    void aHostsPasscodeGoesWithTheAccount();
    void whatIsGoneIsNotOpened();
    void itIsExported_data();
    void itIsExported();
    void theQuestionForAFileGoesWithIt();
    void pictures_data();
    void pictures();

private:
    void open(const char *number) const
    {
        m_fixture->selectNumber(number);
        m_fixture->child<QAction>("open")->trigger();
        QVERIFY(dialog() && dialog()->isVisible());
    }
    Conference stored(const char *number) const
    {
        return m_fixture->world->book.conferences()
            .byDialNumber(QString::fromLatin1(number), QStringLiteral("u100001"))
            .value_or(Conference());
    }
    QFileDialog *fileDialog() const { return dialog()->findChild<QFileDialog *>(); }
    void clickSave() const { QTest::mouseClick(field<QPushButton>("save"), Qt::LeftButton); }
};

void TestConferenceDetail::returnAndADoubleClickOpenIt()
{
    QVERIFY(!m_fixture->child<QAction>("open")->isEnabled());
    m_fixture->selectNumber("880100005");
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_Return);
    QVERIFY(dialog());
    QCOMPARE(field<QLabel>("number")->text(), QStringLiteral("880100005"));
    QTest::keyClick(dialog(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog());
    const QPoint row =
        m_fixture->conferences()->visualRect(m_fixture->conferences()->model()->index(0, 1)).center();
    QTest::mouseClick(m_fixture->conferences()->viewport(), Qt::LeftButton, Qt::NoModifier, row);
    QTest::mouseDClick(m_fixture->conferences()->viewport(), Qt::LeftButton, Qt::NoModifier, row);
    QVERIFY(dialog());
    QCOMPARE(field<QLabel>("number")->text(), QStringLiteral("880100001"));
    QTest::keyClick(dialog(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog());
    // It opens for ended conferences, too.
    m_fixture->child<QToolButton>("ended")->click();
    auto *ended = m_fixture->child<QTableView>("endedTable");
    ended->selectRow(0);
    ended->setFocus();
    QTest::keyClick(ended, Qt::Key_Return);
    QVERIFY(dialog());
    QCOMPARE(field<QLabel>("number")->text(), QStringLiteral("880100008"));
}

void TestConferenceDetail::everybodyInItIsNamedWithTheirState()
{
    const auto states = [this] {
        QStringList texts;
        auto *seats = field<QTreeWidget>("seats");
        for (int i = 0; i < seats->topLevelItemCount(); ++i) {
            const QTreeWidgetItem *item = seats->topLevelItem(i);
            texts.append(item->text(0) + QLatin1Char(' ') + item->text(1) + QLatin1Char(' ') + item->text(2));
        }
        return texts;
    };
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->follow();
    open("880100001");
    QCOMPARE(states().size(), 4);
    QVERIFY2(states().contains(QStringLiteral("王小明 100001 已加入")),
             qPrintable(states().join(QLatin1Char('|'))));
    QVERIFY2(states().filter(QStringLiteral("李娜 100003 主持人，")).size() == 1,
             qPrintable(states().join(QLatin1Char('|'))));
    m_fixture->world->ask(QStringLiteral("Exit Conference"));
    m_fixture->follow();
    QVERIFY2(states().contains(QStringLiteral("王小明 100001 已离开")),
             qPrintable(states().join(QLatin1Char('|'))));
}

void TestConferenceDetail::aHostChangesEverything()
{
    open("880100005");
    QVERIFY(!field<QPushButton>("save")->isEnabled());
    QCOMPARE(field<QLineEdit>("passcodeText")->echoMode(), QLineEdit::Password);
    field<QLineEdit>("title")->setText(QStringLiteral("周会"));
    QVERIFY(field<QPushButton>("save")->isEnabled());
    const QDateTime start(QDate(2026, 3, 8), QTime(16, 5));
    field<QDateTimeEdit>("start")->setDateTime(start);
    field<QSpinBox>("minutes")->setValue(95);
    field<QSpinBox>("limit")->setValue(33);
    field<QLineEdit>("passcodeText")->setText(QStringLiteral("77"));
    clickSave();
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_fixture->told(), QStringLiteral("会议 880100005 已修改。"));
    const Conference after = stored("880100005");
    QCOMPARE(after.title, QStringLiteral("周会"));
    QCOMPARE(after.startMsecs, start.toMSecsSinceEpoch());
    QCOMPARE(after.durationMsecs, 95 * MinuteMsecs);
    QCOMPARE(after.participantLimit, 33);
    QCOMPARE(after.passcode, QStringLiteral("77"));
    QTRY_COMPARE(m_fixture->cell(1, ConferenceModel::Title), QStringLiteral("周会"));
    // Reopened, the dialog shows what was stored.
    open("880100005");
    QCOMPARE(field<QLineEdit>("passcodeText")->text(), QStringLiteral("77"));
    QVERIFY(!field<QPushButton>("save")->isEnabled());
    field<QLineEdit>("title")->setText(QStringLiteral("  "));
    QVERIFY(!field<QPushButton>("save")->isEnabled());
}

void TestConferenceDetail::onlyWhatWasEditedIsSent()
{
    // Values that the fields can't show: a start with seconds, a duration that is no whole number of minutes.
    const qint64 start = m_fixture->world->nowMsecs + 10 * 24 * 60 * MinuteMsecs + 12345;
    QVERIFY(!m_fixture->world->admin
                 .AddConference(QStringLiteral("1"), QStringLiteral("旧名"), QStringLiteral("100001"), start,
                                90500, 5, QStringLiteral("9"), {})
                 .isEmpty());
    m_fixture->follow();
    open("1");
    field<QLineEdit>("title")->setText(QStringLiteral("新名"));
    clickSave();
    QTRY_VERIFY(!dialog());
    const Conference after = stored("1");
    QCOMPARE(after.title, QStringLiteral("新名"));
    QCOMPARE(after.startMsecs, start);
    QCOMPARE(after.durationMsecs, qint64(90500));
    QCOMPARE(after.passcode, QStringLiteral("9"));
}

void TestConferenceDetail::aLongPasscodeIsKeptWhenItIsNotEdited()
{
    // Longer than the field allows, as older databases may hold.
    const QString passcode = QStringLiteral("1234567890123456789012345");
    QVERIFY(m_fixture->world->book.change([this, &passcode] {
        m_fixture->world->book.conferences().setPasscode(stored("880100005").id, passcode);
        return true;
    }));
    m_fixture->follow();
    open("880100005");
    QVERIFY(!field<QPushButton>("save")->isEnabled());
    field<QLineEdit>("title")->setText(QStringLiteral("周会"));
    clickSave();
    QTRY_VERIFY(!dialog());
    QCOMPARE(stored("880100005").title, QStringLiteral("周会"));
    QCOMPARE(stored("880100005").passcode, passcode);
}

void TestConferenceDetail::aRefusalSaysWhyAndKeepsItOpen()
{
    const Conference before = stored("880100005");
    open("880100005");
    field<QLineEdit>("title")->setText(QStringLiteral("周会"));
    field<QDateTimeEdit>("start")->setDateTime(QDateTime(QDate(2026, 3, 9), QTime(10, 0))); // 客户回访
    clickSave();
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(field<QLabel>("detailResult")->text(),
             QStringLiteral("修改失败：时间已过或与其他会议重复，或人数少于已邀请的成员。"));
    QCOMPARE(field<QLineEdit>("title")->text(), QStringLiteral("周会"));
    QCOMPARE(stored("880100005").title, before.title);
    QCOMPARE(stored("880100005").startMsecs, before.startMsecs);
}

void TestConferenceDetail::othersCanOnlyRead()
{
    m_fixture->pick("scope", 1);
    open("880100002");
    QVERIFY(field<QLineEdit>("title")->isReadOnly());
    for (const char *name : {"start", "minutes", "limit"}) {
        QVERIFY2(field<QAbstractSpinBox>(name)->isReadOnly(), name);
    }
    QVERIFY(!field<QPushButton>("save")->isVisible());
    // Only the host sees the passcode.
    QVERIFY(!field<QLineEdit>("passcodeText")->isVisible());
    QVERIFY(field<QLineEdit>("passcodeText")->text().isEmpty());
    QCOMPARE(field<QLabel>("passcodeNote")->text(), QStringLiteral("有，仅主持人可见"));
    m_fixture->world->admin.Logout();
    QTRY_VERIFY(!dialog());
}

void TestConferenceDetail::whatRunsCannotBeMoved()
{
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
    m_fixture->follow();
    open("880100005");
    QVERIFY(field<QDateTimeEdit>("start")->isReadOnly());
    QVERIFY(!field<QLineEdit>("title")->isReadOnly());
    field<QSpinBox>("minutes")->setValue(50);
    clickSave();
    QTRY_VERIFY(!dialog());
    QCOMPARE(stored("880100005").durationMsecs, 50 * MinuteMsecs);
}

void TestConferenceDetail::whatHasEndedCannotBeChanged()
{
    m_fixture->child<QToolButton>("ended")->click();
    m_fixture->child<QTableView>("endedTable")->selectRow(0);
    m_fixture->child<QAction>("open")->trigger();
    QVERIFY(dialog());
    QVERIFY(field<QLineEdit>("title")->isReadOnly());
    QVERIFY(!field<QPushButton>("save")->isVisible());
}

void TestConferenceDetail::itFollowsWhoJoinsAndClosesWhenItIsGone()
{
    open("880100005");
    field<QLineEdit>("title")->setText(QStringLiteral("周会"));
    m_fixture->world->admin.SetFriendLimit(7);
    m_fixture->follow();
    QCOMPARE(field<QLineEdit>("title")->text(), QStringLiteral("周会")); // keeps what the user types
    m_fixture->world->ask(QStringLiteral("Delete Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"), stored("880100005").confId}});
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_fixture->told(), QStringLiteral("会议已不存在。"));
}

void TestConferenceDetail::whatEndsMeanwhileCannotBeChanged()
{
    open("880100005");
    field<QLineEdit>("title")->setText(QStringLiteral("周会"));
    QVERIFY(field<QPushButton>("save")->isVisible());
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running"));
    m_fixture->follow();
    QVERIFY(field<QDateTimeEdit>("start")->isReadOnly());
    QVERIFY(!field<QLineEdit>("title")->isReadOnly());
    m_fixture->world->nowMsecs += MinuteMsecs;
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("ended"));
    m_fixture->follow();
    QVERIFY(field<QLineEdit>("title")->isReadOnly());
    QVERIFY(!field<QPushButton>("save")->isVisible());
    QCOMPARE(field<QLineEdit>("title")->text(), QStringLiteral("周会"));
}

void TestConferenceDetail::aHostsPasscodeGoesWithTheAccount()
{
    open("880100005");
    QVERIFY(m_fixture->world->admin.Login(QStringLiteral("100003")));
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_fixture->told(), QStringLiteral("账号已更换，会议详情已关闭。"));
}

void TestConferenceDetail::whatIsGoneIsNotOpened()
{
    m_fixture->selectNumber("880100005");
    // The tables still show it: they follow a moment later.
    m_fixture->world->ask(QStringLiteral("Delete Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"), stored("880100005").confId}});
    m_fixture->child<QAction>("open")->trigger();
    QVERIFY(!dialog());
    QCOMPARE(m_fixture->told(), QStringLiteral("会议已不存在。"));
}

void TestConferenceDetail::itIsExported_data()
{
    addColumns<QString, Qt::Key, Qt::KeyboardModifiers>({"number", "key", "modifiers"});
    addRow("one's own, with the mnemonic", QStringLiteral("880100005"), Qt::Key_X,
           Qt::KeyboardModifiers(Qt::AltModifier));
    addRow("one's own, with the focus on the button", QStringLiteral("880100005"), Qt::Key_Space,
           Qt::KeyboardModifiers());
    addRow("another's", QStringLiteral("880100001"), Qt::Key_X, Qt::KeyboardModifiers(Qt::AltModifier));
}

void TestConferenceDetail::itIsExported()
{
    QFETCH(QString, number);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    open(number.toLatin1().constData());
    dialog()->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), dialog());
    auto *button = field<QPushButton>("export");
    for (int i = 0; i < 20 && key == Qt::Key_Space && !button->hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QTRY_VERIFY(fileDialog()); // a mnemonic presses the button for a moment
    const QString file = m_fixture->world->folder.filePath(QStringLiteral("out"));
    WindowFixture::childOf<QLineEdit>(fileDialog(), "fileNameEdit")->setText(file);
    QTest::keyClick(fileDialog(), Qt::Key_Return);
    QTRY_VERIFY(!fileDialog());

    QFile written(file + QStringLiteral(".ics"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = written.readAll().split('\n');
    const Conference conference = stored(number.toLatin1().constData());
    const QString start = QDateTime::fromMSecsSinceEpoch(conference.startMsecs)
                              .toString(QStringLiteral("'DTSTART;TZID=Asia/Shanghai:'yyyyMMdd'T'hhmmss"));
    for (const QString &line :
         {QStringLiteral("UID:%1").arg(conference.confId), QStringLiteral("SUMMARY:%1").arg(conference.title),
          QStringLiteral("LOCATION:视频会议 %1").arg(number), start}) {
        QVERIFY2(lines.contains(line.toUtf8() + '\r'), qPrintable(line));
    }
    QCOMPARE(lines.count("BEGIN:VEVENT\r"), 1);
    // It stays open, and says itself what became of it.
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(field<QLabel>("detailResult")->text(), QStringLiteral("已导出到 %1。").arg(written.fileName()));
    QCOMPARE(button->accessibleName(), QStringLiteral("导出日历文件"));
}

void TestConferenceDetail::theQuestionForAFileGoesWithIt()
{
    open("880100005");
    field<QPushButton>("export")->click();
    QVERIFY(fileDialog());
    m_fixture->world->ask(QStringLiteral("Delete Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"), stored("880100005").confId}});
    QTRY_VERIFY(!dialog());
    QVERIFY(!m_fixture->window->findChild<QFileDialog *>());
}

void TestConferenceDetail::pictures_data()
{
    addColumns<int, QByteArray>({"theme", "number"});
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    for (const int theme : {int(LGuiApplicationHelper::LightType), int(LGuiApplicationHelper::DarkType)}) {
        const QString name =
            (theme == LGuiApplicationHelper::LightType ? QStringLiteral("light-") : QStringLiteral("dark-")) +
            scale;
        QTest::newRow(qPrintable(QStringLiteral("host-") + name)) << theme << QByteArray("880100005");
        QTest::newRow(qPrintable(QStringLiteral("guest-") + name)) << theme << QByteArray("880100001");
    }
}

void TestConferenceDetail::pictures()
{
    QFETCH(int, theme);
    QFETCH(QByteArray, number);
    const ChosenTheme chosen(theme);
    open(number.constData());
    keepPicture(dialog(), chosen, QStringLiteral("contacts-detail"));
}

QTEST_MAIN(TestConferenceDetail)
#include "tst_conferencedetail.moc"
