// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "testcolumns.h"

#include "window/conferencedetail.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QToolButton>

/// The commands of the conferences page, over the sample directory.
class TestConferenceCommands : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void aConferenceIsStartedAndEndedByHand();
    void cancellingIsAskedAbout();
    void joiningAsksForThePasscode();
    void returnJoinsOnlyWhenTheButtonDoes();
    void aPasscodeIsForOneConference();
    void returnOpensTheRowWithTheFocus();
    void returnAfterFoldingOpensTheRowWithTheFocus();
    void nothingHappensWithoutAConference();
    void startingWhatHasBeenStartedSaysSo();
    void whatCannotBeDoneIsDisabled_data();
    void whatCannotBeDoneIsDisabled();
    void aConferenceIsExportedFromTheMenu();
    void theMenuCopiesTheNumber();
};

void TestConferenceCommands::aConferenceIsStartedAndEndedByHand()
{
    const auto state = [this] {
        return m_fixture->world->conference(QStringLiteral("880100005"))
            .value(QLatin1String("state"))
            .toString();
    };
    m_fixture->selectNumber("880100005");
    m_fixture->click("start");
    QCOMPARE(m_fixture->told(), QStringLiteral("会议已开始。"));
    m_fixture->follow();
    QCOMPARE(state(), QStringLiteral("running"));
    QCOMPARE(m_fixture->page(0)->selected(ConferenceModel::NumberRole).toString(),
             QStringLiteral("880100005"));
    m_fixture->click("end");
    QCOMPARE(m_fixture->told(), QStringLiteral("会议已结束。"));
    m_fixture->follow();
    QCOMPARE(state(), QStringLiteral("ended"));
    QVERIFY(!m_fixture->page(0)->selected(ConferenceModel::NumberRole).isValid());
}

void TestConferenceCommands::cancellingIsAskedAbout()
{
    m_fixture->selectNumber("880100005");
    const QString before = m_fixture->told();
    const auto isAsked = [this] {
        return m_fixture->window->findChild<QPushButton *>(QStringLiteral("agree")) != nullptr;
    };
    m_fixture->click("delete");
    QVERIFY(m_fixture->child<QPushButton>("agree")->isVisible());
    QTest::keyClick(m_fixture->child<QPushButton>("refuse"), Qt::Key_Escape);
    QTRY_VERIFY(!isAsked());
    QCOMPARE(m_fixture->told(), before);
    // Return, often pressed without reading, keeps the conference.
    m_fixture->click("delete");
    QVERIFY(m_fixture->child<QPushButton>("refuse")->isDefault() &&
            !m_fixture->child<QPushButton>("agree")->isDefault());
    QTest::keyClick(m_fixture->child<QPushButton>("refuse")->window(), Qt::Key_Return);
    QTRY_VERIFY(!isAsked());
    QCOMPARE(m_fixture->told(), before);
    QVERIFY(!m_fixture->world->conference(QStringLiteral("880100005")).isEmpty());
    // The conference ends before the question is answered.
    m_fixture->click("delete");
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("ended"));
    m_fixture->click("agree");
    QCOMPARE(m_fixture->told(), QStringLiteral("没有正在进行的会议。"));
    QTRY_VERIFY(!isAsked());
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("notStarted"));
    m_fixture->follow();
    m_fixture->selectNumber("880100005");
    m_fixture->click("delete");
    m_fixture->click("agree");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    QVERIFY(m_fixture->world->conference(QStringLiteral("880100005")).isEmpty());
}

void TestConferenceCommands::joiningAsksForThePasscode()
{
    auto *passcode = m_fixture->child<QLineEdit>("passcode");
    auto *join = m_fixture->child<QPushButton>("join");
    m_fixture->pick("scope", 1);
    m_fixture->selectNumber("880100002");
    QVERIFY(passcode->isVisible());
    QVERIFY(!join->isEnabled());
    QCOMPARE(passcode->echoMode(), QLineEdit::Password);
    QTest::keyClicks(passcode, QStringLiteral("1"));
    m_fixture->click("join");
    QCOMPARE(m_fixture->told(), QStringLiteral("密码不正确，请输入密码后再加入。"));
    QVERIFY(passcode->text().isEmpty());
    QTest::keyClicks(passcode, QStringLiteral("246810"));
    QTest::keyClick(passcode, Qt::Key_Return);
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    QVERIFY(passcode->text().isEmpty());
    m_fixture->follow();
    m_fixture->selectNumber("880100004");
    QVERIFY(!join->isEnabled()); // the user is in another one
    m_fixture->click("leave");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    m_fixture->follow();
    QVERIFY(!m_fixture->child<QPushButton>("leave")->isVisible());
    QVERIFY(join->isEnabled());
    QVERIFY(!passcode->isVisible()); // this one needs no passcode
}

void TestConferenceCommands::returnJoinsOnlyWhenTheButtonDoes()
{
    auto *passcode = m_fixture->child<QLineEdit>("passcode");
    m_fixture->pick("scope", 1);
    m_fixture->selectNumber("880100002");
    passcode->setFocus();
    QVERIFY(!m_fixture->child<QPushButton>("join")->isEnabled());
    QTest::keyClick(passcode, Qt::Key_Return);
    QVERIFY2(m_fixture->told().isEmpty(), qPrintable(m_fixture->told()));
    QTest::keyClicks(passcode, QStringLiteral("1"));
    QTest::keyClick(passcode, Qt::Key_Return);
    QCOMPARE(m_fixture->told(), QStringLiteral("密码不正确，请输入密码后再加入。"));
}

void TestConferenceCommands::aPasscodeIsForOneConference()
{
    auto *passcode = m_fixture->child<QLineEdit>("passcode");
    m_fixture->pick("scope", 1);
    m_fixture->selectNumber("880100002");
    QTest::keyClicks(passcode, QStringLiteral("135790"));
    // The table is reset and keeps its selection.
    m_fixture->world->admin.SetFriendLimit(7);
    m_fixture->follow();
    QCOMPARE(passcode->text(), QStringLiteral("135790"));
    m_fixture->selectNumber("880100004");
    QVERIFY(passcode->text().isEmpty());
    m_fixture->selectNumber("880100002");
    QVERIFY(passcode->isVisible());
    QVERIFY(!m_fixture->child<QPushButton>("join")->isEnabled());
}

void TestConferenceCommands::returnOpensTheRowWithTheFocus()
{
    const auto opened = [this] {
        const auto *detail = m_fixture->window->findChild<ConferenceDetail *>();
        return detail ? detail->findChild<QLabel *>(QStringLiteral("number"))->text() : QString();
    };
    // Tab makes the first row current but selects nothing.
    m_fixture->child<QComboBox>("scope")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), m_fixture->conferences());
    QVERIFY(m_fixture->conferences()->currentIndex().isValid());
    QVERIFY(!m_fixture->conferences()->selectionModel()->hasSelection());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(opened(), QStringLiteral("880100001"));
    QCOMPARE(m_fixture->page(0)->selected(ConferenceModel::NumberRole).toString(),
             QStringLiteral("880100001"));
}

void TestConferenceCommands::returnAfterFoldingOpensTheRowWithTheFocus()
{
    const auto opened = [this] {
        const auto *detail = m_fixture->window->findChild<ConferenceDetail *>();
        return detail ? detail->findChild<QLabel *>(QStringLiteral("number"))->text() : QString();
    };
    auto *disclosure = m_fixture->child<QToolButton>("ended");
    m_fixture->selectNumber("880100005");
    disclosure->setChecked(true);
    m_fixture->child<QTableView>("endedTable")->selectRow(0);
    // Back in the upper table, Return opens its current row, not the other table's selection.
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_Return);
    QCOMPARE(opened(), QStringLiteral("880100005"));
    QTest::keyClick(m_fixture->window->findChild<ConferenceDetail *>(), Qt::Key_Escape);
    QTRY_VERIFY(opened().isEmpty());
    // Folding the lower table clears its selection.
    m_fixture->child<QTableView>("endedTable")->selectRow(0);
    disclosure->setChecked(false);
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_Return);
    QCOMPARE(opened(), QStringLiteral("880100005"));
}

void TestConferenceCommands::nothingHappensWithoutAConference()
{
    // QAction::trigger() works on disabled actions, too, so the slots have to check.
    const QJsonObject before = m_fixture->world->snapshot();
    for (const char *name : {"open", "join", "start", "end", "delete", "copyNumber", "export"}) {
        auto *action = m_fixture->child<QAction>(name);
        QVERIFY2(!action->isEnabled(), name);
        action->trigger();
    }
    QVERIFY(!m_fixture->window->findChild<QDialog *>());
    QVERIFY(m_fixture->told().isEmpty());
    QCOMPARE(m_fixture->world->snapshot(), before);
}

void TestConferenceCommands::startingWhatHasBeenStartedSaysSo()
{
    m_fixture->selectNumber("880100005");
    auto *start = m_fixture->child<QAction>("start");
    QVERIFY(start->isEnabled());
    // The window doesn't know yet: it follows a moment later.
    QVERIFY(
        m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("running")));
    m_fixture->world->nowMsecs += 5 * MinuteMsecs;
    const QJsonObject before = m_fixture->world->snapshot();
    start->trigger();
    QCOMPARE(m_fixture->told(), QStringLiteral("会议已有变化，请再看一下它的状态。"));
    QCOMPARE(m_fixture->world->snapshot(), before);
}

void TestConferenceCommands::whatCannotBeDoneIsDisabled_data()
{
    addColumns<QString, QString, QStringList>({"before", "number", "possible"});
    const QString nothing;
    QTest::newRow("nothing chosen") << nothing << nothing << QStringList{QStringLiteral("create")};
    QTest::newRow("invited, and it runs") << nothing << QStringLiteral("880100001")
                                          << QStringList{QStringLiteral("create"), QStringLiteral("join")};
    QTest::newRow("invited, and it has not started")
        << nothing << QStringLiteral("880100006") << QStringList{QStringLiteral("create")};
    QTest::newRow("one's own, and it has not started")
        << nothing << QStringLiteral("880100005")
        << QStringList{QStringLiteral("create"), QStringLiteral("delete"), QStringLiteral("start")};
    QTest::newRow("one's own, and it runs") << QStringLiteral("start") << QStringLiteral("880100005")
                                            << QStringList{QStringLiteral("create"), QStringLiteral("delete"),
                                                           QStringLiteral("end"), QStringLiteral("join")};
    QTest::newRow("another's, and it is full")
        << nothing << QStringLiteral("880100003") << QStringList{QStringLiteral("create")};
    QTest::newRow("another's, open to everybody")
        << nothing << QStringLiteral("880100004")
        << QStringList{QStringLiteral("create"), QStringLiteral("join")};
    QTest::newRow("in a conference") << QStringLiteral("join") << QStringLiteral("880100004")
                                     << QStringList{QStringLiteral("create"), QStringLiteral("leave")};
    QTest::newRow("in a conference elsewhere") << QStringLiteral("elsewhere") << QStringLiteral("880100004")
                                               << QStringList{QStringLiteral("create")};
    QTest::newRow("logged out") << QStringLiteral("logout") << QStringLiteral("880100005") << QStringList{};
}

void TestConferenceCommands::whatCannotBeDoneIsDisabled()
{
    QFETCH(QString, before);
    QFETCH(QString, number);
    QFETCH(QStringList, possible);
    SampleWorld &world = *m_fixture->world;
    m_fixture->pick("scope", 1);
    if (!number.isEmpty()) {
        m_fixture->page(0)->select(number);
        QCOMPARE(m_fixture->page(0)->selected(ConferenceModel::NumberRole).toString(), number);
    }
    if (before == QLatin1String("start")) {
        world.admin.SetConferenceState(number, QStringLiteral("running"));
    } else if (before == QLatin1String("join")) {
        world.ask(QStringLiteral("Join My Conference"));
    } else if (before == QLatin1String("elsewhere")) {
        world.admin.SetEngagedElsewhere(true);
    } else if (before == QLatin1String("logout")) {
        world.admin.Logout();
    }
    if (!before.isEmpty()) {
        m_fixture->follow();
    }
    QStringList enabled;
    for (const char *name : {"create", "delete", "end", "join", "leave", "start"}) {
        const auto *button = m_fixture->child<QPushButton>(name);
        if (button->isVisible() && button->isEnabled()) {
            enabled.append(QString::fromLatin1(name));
        }
    }
    QCOMPARE(enabled, possible);
    // The context menu offers the same actions.
    QStringList offered;
    const QList<QAction *> actions = m_fixture->conferences()->actions();
    for (const QAction *action : actions) {
        if (action->isEnabled() && enabled.contains(action->objectName())) {
            offered.append(action->objectName());
        }
    }
    offered.sort();
    possible.removeAll(QStringLiteral("create"));
    possible.removeAll(QStringLiteral("leave"));
    QCOMPARE(offered, possible);
    QCOMPARE(m_fixture->child<QAction>("export")->isEnabled(), !number.isEmpty());
}

void TestConferenceCommands::aConferenceIsExportedFromTheMenu()
{
    QVERIFY(!m_fixture->child<QAction>("export")->isEnabled());
    m_fixture->selectNumber("880100005");
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_E, Qt::ControlModifier);
    const auto dialog = [this] {
        return m_fixture->window->findChild<QFileDialog *>();
    };
    QVERIFY(dialog());
    const QString file = m_fixture->world->folder.filePath(QStringLiteral("out"));
    dialog()->selectFile(file);
    QTest::keyClick(dialog(), Qt::Key_Return);
    QTRY_VERIFY(!dialog());
    QFile written(file + QStringLiteral(".ics"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().contains("880100005"));
    QCOMPARE(m_fixture->told(), QStringLiteral("已导出到 %1。").arg(written.fileName()));

    // The conference is cancelled while the dialog is open.
    m_fixture->child<QAction>("export")->trigger();
    QVERIFY(dialog());
    m_fixture->world->ask(QStringLiteral("Delete Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"),
                                       m_fixture->world->conferenceId(QStringLiteral("880100005"))}});
    dialog()->selectFile(m_fixture->world->folder.filePath(QStringLiteral("gone.ics")));
    QTest::keyClick(dialog(), Qt::Key_Return);
    QTRY_COMPARE(m_fixture->told(), QStringLiteral("会议已不存在。"));
    QVERIFY(!QFile::exists(m_fixture->world->folder.filePath(QStringLiteral("gone.ics"))));
    QTRY_VERIFY(!m_fixture->child<QAction>("export")->isEnabled());
}

void TestConferenceCommands::theMenuCopiesTheNumber()
{
    m_fixture->selectNumber("880100006");
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100006"));
    QCOMPARE(m_fixture->told(), QStringLiteral("已复制会议号。"));
    QVERIFY(m_fixture->conferences()->actions().contains(m_fixture->child<QAction>("export")));
    QCOMPARE(m_fixture->conferences()->contextMenuPolicy(), Qt::ActionsContextMenu);
}

QTEST_MAIN(TestConferenceCommands)
#include "tst_conferencecommands.moc"
