// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "window/legiblecolor.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>

/// The page of conferences over the sample directory.
class TestConferencePage : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsTheUsersConferences();
    void aFilterLeavesWhatItSays();
    void aHeaderSorts();
    void theSelectionSurvivesAChange();
    void aConferenceStartsByTheClock();
    void aConferenceIsStartedAndEndedByHand();
    void joiningAsksForThePasscode();
    void whatCannotBeDoneIsDisabled();
    void aConferenceIsExportedFromTheMenu();
    void theMenuCopiesTheNumber();
};

void TestConferencePage::itShowsTheUsersConferences()
{
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 5);
    QCOMPARE(m_fixture->cell(1, ConferenceModel::State), QStringLiteral("进行中"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Title), QStringLiteral("部门早会"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Number), QStringLiteral("880100001"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Start), QStringLiteral("2026-03-07 10:00"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Duration), QStringLiteral("240分钟"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::People), QStringLiteral("4/20"));
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Host), QStringLiteral("李娜"));
    // By their start at first, without a grid.
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Number), QStringLiteral("880100008"));
    QVERIFY(!m_fixture->conferences()->showGrid());
    const auto look = [this](int row, ConferenceModel::Column column, int role) {
        return m_fixture->conferences()->model()->index(row, column).data(role);
    };
    QVERIFY(!look(0, ConferenceModel::State, Qt::ForegroundRole).isValid()); // ended
    // The cards' colours, as far as they can be read here.
    QCOMPARE(look(1, ConferenceModel::State, Qt::ForegroundRole).value<QColor>(),
             legibleInLists(QColor(89, 190, 45)));
    QCOMPARE(look(2, ConferenceModel::State, Qt::ForegroundRole).value<QColor>(),
             legibleInLists(QColor(0, 129, 255)));
    QVERIFY(!look(1, ConferenceModel::Title, Qt::ForegroundRole).isValid());
    const QString people = look(1, ConferenceModel::People, Qt::ToolTipRole).toString();
    QVERIFY2(people.contains(QStringLiteral("李娜、吴敏")), qPrintable(people));
    m_fixture->pick("scope", 1);
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 9);
}

void TestConferencePage::aFilterLeavesWhatItSays()
{
    QTest::keyClicks(m_fixture->page(0)->filter(), QStringLiteral("880100005"));
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 1);
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Title), QStringLiteral("产品周会"));
    m_fixture->page(0)->filter()->setFocus();
    QTest::keyClick(m_fixture->page(0)->filter(), Qt::Key_Escape);
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 5);
    m_fixture->page(0)->filter()->setText(QStringLiteral("产品"));
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 1);
    m_fixture->page(0)->filter()->setText(QStringLiteral(".*"));
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 0);
}

void TestConferencePage::aHeaderSorts()
{
    QHeaderView *header = m_fixture->conferences()->horizontalHeader();
    const QPoint point(header->sectionViewportPosition(ConferenceModel::Number) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    const QString first = m_fixture->cell(0, ConferenceModel::Number);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QVERIFY(first != m_fixture->cell(0, ConferenceModel::Number));
    QCOMPARE(QSet<QString>({first, m_fixture->cell(0, ConferenceModel::Number)}),
             QSet<QString>({QStringLiteral("880100001"), QStringLiteral("880100008")}));
    // Durations by their length, not by their text.
    m_fixture->conferences()->sortByColumn(ConferenceModel::Duration, Qt::AscendingOrder);
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Duration), QStringLiteral("30分钟"));
    QCOMPARE(m_fixture->cell(4, ConferenceModel::Duration), QStringLiteral("240分钟"));
}

void TestConferencePage::theSelectionSurvivesAChange()
{
    m_fixture->selectNumber("880100006");
    m_fixture->world->admin.AddConference(QStringLiteral("1"), QStringLiteral("早"), QStringLiteral("100001"),
                                          m_fixture->world->nowMsecs + 1000, 60000, 5, QString(), {});
    m_fixture->follow();
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 6);
    QCOMPARE(m_fixture->page(0)->selected(ConferenceModel::NumberRole).toString(),
             QStringLiteral("880100006"));
}

void TestConferencePage::aConferenceStartsByTheClock()
{
    m_fixture->world->admin.AddConference(QStringLiteral("1"), QStringLiteral("马上"),
                                          QStringLiteral("100001"), m_fixture->world->nowMsecs + 200, 300, 5,
                                          QString(), {});
    m_fixture->follow();
    m_fixture->page(0)->filter()->setText(QStringLiteral("马上"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::State), QStringLiteral("未开始"));
    QSignalSpy changed(m_fixture->conferences()->model(), &QAbstractItemModel::dataChanged);
    m_fixture->world->nowMsecs += 200;
    QVERIFY(changed.wait());
    QCOMPARE(m_fixture->cell(0, ConferenceModel::State), QStringLiteral("进行中"));
    m_fixture->world->nowMsecs += 300;
    QVERIFY(changed.wait());
    QCOMPARE(m_fixture->cell(0, ConferenceModel::State), QStringLiteral("已结束"));
}

void TestConferencePage::aConferenceIsStartedAndEndedByHand()
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
    m_fixture->selectNumber("880100005");
    const QString before = m_fixture->told();
    m_fixture->click("delete");
    QVERIFY(m_fixture->child<QPushButton>("agree")->isVisible());
    QTest::keyClick(m_fixture->child<QPushButton>("refuse"), Qt::Key_Escape);
    QTRY_VERIFY(m_fixture->window->findChild<QPushButton *>(QStringLiteral("agree")) == nullptr);
    QCOMPARE(m_fixture->told(), before);
    // Return, which is pressed without reading, keeps it.
    m_fixture->click("delete");
    QVERIFY(m_fixture->child<QPushButton>("refuse")->isDefault() &&
            !m_fixture->child<QPushButton>("agree")->isDefault());
    QTest::keyClick(m_fixture->child<QPushButton>("refuse")->window(), Qt::Key_Return);
    QTRY_VERIFY(m_fixture->window->findChild<QPushButton *>(QStringLiteral("agree")) == nullptr);
    QCOMPARE(m_fixture->told(), before);
    m_fixture->click("delete");
    m_fixture->click("agree");
    QCOMPARE(m_fixture->told(), QStringLiteral("没有正在进行的会议。"));
}

void TestConferencePage::joiningAsksForThePasscode()
{
    m_fixture->pick("scope", 1);
    m_fixture->selectNumber("880100002");
    m_fixture->click("join");
    QCOMPARE(m_fixture->told(), QStringLiteral("密码不正确，请输入密码后再加入。"));
    QTest::keyClicks(m_fixture->child<QLineEdit>("passcode"), QStringLiteral("246810"));
    QTest::keyClick(m_fixture->child<QLineEdit>("passcode"), Qt::Key_Return);
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    QVERIFY(m_fixture->child<QLineEdit>("passcode")->text().isEmpty());
    m_fixture->selectNumber("880100004");
    m_fixture->click("join");
    QCOMPARE(m_fixture->told(), QStringLiteral("正在其他会议中。"));
    m_fixture->click("leave");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    m_fixture->click("leave");
    QCOMPARE(m_fixture->told(), QStringLiteral("没有正在进行的会议。"));
    m_fixture->click("create");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    QTRY_COMPARE(m_fixture->conferences()->model()->rowCount(), 10);
}

void TestConferencePage::whatCannotBeDoneIsDisabled()
{
    QVERIFY(!m_fixture->child<QPushButton>("join")->isEnabled());
    QVERIFY(!m_fixture->child<QPushButton>("start")->isEnabled());
    QVERIFY(!m_fixture->child<QPushButton>("end")->isEnabled());
    m_fixture->selectNumber("880100001");
    QVERIFY(m_fixture->child<QPushButton>("join")->isEnabled());
    QVERIFY(!m_fixture->child<QPushButton>("start")->isEnabled());
    QVERIFY(m_fixture->child<QPushButton>("end")->isEnabled());
}

void TestConferencePage::aConferenceIsExportedFromTheMenu()
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

    // Cancelled meanwhile.
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

void TestConferencePage::theMenuCopiesTheNumber()
{
    m_fixture->selectNumber("880100006");
    m_fixture->conferences()->setFocus();
    QTest::keyClick(m_fixture->conferences(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100006"));
    QCOMPARE(m_fixture->told(), QStringLiteral("已复制会议号。"));
    QVERIFY(m_fixture->conferences()->actions().contains(m_fixture->child<QAction>("export")));
    QCOMPARE(m_fixture->conferences()->contextMenuPolicy(), Qt::ActionsContextMenu);
}

QTEST_MAIN(TestConferencePage)
#include "tst_conferencepage.moc"
