// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "card/cardtheme.h"
#include "paintedcontrast.h"
#include "testcolumns.h"

#include "window/legiblecolor.h"

#include <lumo/lguiapplicationhelper.h>

#include <QAction>
#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QToolButton>

/// What the conferences page shows, over the sample directory.
class TestConferencePage : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsTheUsersConferences();
    void todaysStandOut();
    void whatHasEndedIsFoldedAway();
    void theOneTheUserIsInIsOnTop();
    void theOneTheUserIsInMayEndOnAnotherDay();
    void aLongTitleIsElided();
    void aFilterLeavesWhatItSays();
    void aHeaderSorts();
    void theSelectionSurvivesAChange();
    void aConferenceStartsByTheClock();
    void noPasscodeIsShown();
    void anEmptyListSaysWhy();
    void columnsNeverTouch_data();
    void columnsNeverTouch();
    void textsAreLegible_data();
    void textsAreLegible();
};

void TestConferencePage::itShowsTheUsersConferences()
{
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 4);
    QCOMPARE(m_fixture->cell(0, ConferenceModel::State), QStringLiteral("进行中"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Title), QStringLiteral("部门早会"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Number), QStringLiteral("880100001"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Start), QStringLiteral("今天 10:00"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Duration), QStringLiteral("240分钟"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::People), QStringLiteral("4/20"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Host), QStringLiteral("李娜"));
    // All columns fit into the window's initial size.
    QTRY_COMPARE(m_fixture->conferences()->horizontalScrollBar()->maximum(), 0);
    // Initially sorted by start, without a grid; ended conferences are elsewhere.
    QCOMPARE(m_fixture->cell(1, ConferenceModel::Start), QStringLiteral("明天 10:00"));
    QCOMPARE(m_fixture->cell(2, ConferenceModel::Start), QStringLiteral("2026-03-09 10:00"));
    QCOMPARE(m_fixture->child<QTableView>("endedTable")->model()->rowCount(), 0);
    QVERIFY(!m_fixture->conferences()->showGrid());
    QVERIFY(!m_fixture->conferences()->wordWrap()); // long titles end in "…", not after a word
    const auto look = [this](int row, ConferenceModel::Column column, int role) {
        return m_fixture->conferences()->model()->index(row, column).data(role);
    };
    // The dots carry the cards' colours of the states, so that the texts stay legible.
    QCOMPARE(look(0, ConferenceModel::State, Qt::DecorationRole).value<QColor>(),
             legibleInLists(CardTheme::inProgress()));
    QCOMPARE(look(1, ConferenceModel::State, Qt::DecorationRole).value<QColor>(),
             legibleInLists(CardTheme::notStarted()));
    QVERIFY(!look(0, ConferenceModel::State, Qt::ForegroundRole).isValid());
    QVERIFY(!look(0, ConferenceModel::Title, Qt::ForegroundRole).isValid());
    QVERIFY(!look(0, ConferenceModel::Title, Qt::DecorationRole).isValid());
    const QString people = look(0, ConferenceModel::People, Qt::ToolTipRole).toString();
    QVERIFY2(people.contains(QStringLiteral("李娜、吴敏")), qPrintable(people));
    m_fixture->pick("scope", 1);
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 8);
}

void TestConferencePage::todaysStandOut()
{
    const auto look = [this](int row, ConferenceModel::Column column, int role) {
        return m_fixture->conferences()->model()->index(row, column).data(role);
    };
    for (const int column : {int(ConferenceModel::State), int(ConferenceModel::Passcode)}) {
        QVERIFY(look(0, ConferenceModel::Column(column), Qt::BackgroundRole).isValid());
        QVERIFY(!look(1, ConferenceModel::Column(column), Qt::BackgroundRole).isValid());
    }
    QVERIFY(look(0, ConferenceModel::Start, Qt::FontRole).value<QFont>().bold());
    QVERIFY(!look(1, ConferenceModel::Start, Qt::FontRole).isValid());
    // Another day begins while the window is open.
    m_fixture->world->nowMsecs += 24 * 60 * MinuteMsecs;
    m_fixture->world->admin.SetFriendLimit(1);
    m_fixture->follow();
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Start), QStringLiteral("今天 10:00"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Number), QStringLiteral("880100005"));
    QVERIFY(look(0, ConferenceModel::State, Qt::BackgroundRole).isValid());
}

void TestConferencePage::whatHasEndedIsFoldedAway()
{
    auto *disclosure = m_fixture->child<QToolButton>("ended");
    auto *table = m_fixture->child<QTableView>("endedTable");
    QCOMPARE(disclosure->text(), QStringLiteral("已结束 (1)"));
    QVERIFY(!table->isVisible());
    disclosure->setFocus();
    QTest::keyClick(disclosure, Qt::Key_Space);
    QVERIFY(table->isVisible());
    QCOMPARE(table->model()->rowCount(), 1);
    const auto ended = [table](int row, ConferenceModel::Column column, int role) {
        return table->model()->index(row, column).data(role);
    };
    QCOMPARE(ended(0, ConferenceModel::Number, Qt::DisplayRole).toString(), QStringLiteral("880100008"));
    QVERIFY(!ended(0, ConferenceModel::State, Qt::ForegroundRole).isValid());
    // Actions apply to the selection in the lower table.
    m_fixture->selectNumber("880100005");
    table->selectRow(0);
    QVERIFY(!m_fixture->page(0)->selected(ConferenceModel::NumberRole).isValid());
    m_fixture->child<QAction>("copyNumber")->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100008"));
    m_fixture->selectNumber("880100005");
    QVERIFY(!table->selectionModel()->hasSelection());

    // Another one ends: the latest comes first, and the selection stays.
    table->selectRow(0);
    m_fixture->world->admin.SetConferenceState(QStringLiteral("880100005"), QStringLiteral("ended"));
    m_fixture->follow();
    QCOMPARE(disclosure->text(), QStringLiteral("已结束 (2)"));
    QCOMPARE(ended(0, ConferenceModel::Number, Qt::DisplayRole).toString(), QStringLiteral("880100005"));
    QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), 1);
    m_fixture->page(0)->filter()->setText(QStringLiteral("880100005"));
    QCOMPARE(disclosure->text(), QStringLiteral("已结束 (1)"));
    QCOMPARE(table->model()->rowCount(), 1);
    m_fixture->page(0)->filter()->clear();
    QTest::keyClick(disclosure, Qt::Key_Space);
    QVERIFY(!table->isVisible());
    // Though folded, the heading counts what the filter finds.
    m_fixture->page(0)->filter()->setText(QStringLiteral("复盘"));
    QCOMPARE(disclosure->text(), QStringLiteral("已结束 (1)"));
    m_fixture->page(0)->filter()->setText(QStringLiteral("无"));
    QCOMPARE(disclosure->text(), QStringLiteral("已结束 (0)"));
    QVERIFY(!disclosure->isEnabled());
}

void TestConferencePage::theOneTheUserIsInIsOnTop()
{
    auto *current = m_fixture->child<QWidget>("current");
    QVERIFY(!current->isVisible());
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->follow();
    QVERIFY(current->isVisible());
    QVERIFY(current->mapTo(m_fixture->window.get(), QPoint()).y() <
            m_fixture->page(0)->filter()->mapTo(m_fixture->window.get(), QPoint()).y());
    QCOMPARE(m_fixture->child<QLabel>("currentTitle")->text(), QStringLiteral("部门早会"));
    QCOMPARE(m_fixture->child<QLabel>("currentDetails")->text(),
             QStringLiteral("正在会议中 · 会议号 880100001 · 10:00 至 14:00 · 4 人"));
    m_fixture->click("copyCurrentNumber");
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100001"));
    QCOMPARE(m_fixture->told(), QStringLiteral("已复制会议号。"));
    m_fixture->click("leave");
    QCOMPARE(m_fixture->told(), QStringLiteral("好的。"));
    m_fixture->follow();
    QVERIFY(!current->isVisible());
    // It also goes when the conference's time is over.
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->world->nowMsecs = at("2026-03-07T13:59") + MinuteMsecs - 50;
    m_fixture->follow();
    QVERIFY(current->isVisible());
    m_fixture->world->nowMsecs += 50;
    QTRY_VERIFY(!current->isVisible());
}

void TestConferencePage::theOneTheUserIsInMayEndOnAnotherDay()
{
    m_fixture->world->ask(QStringLiteral("Join Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("880100004")}});
    m_fixture->follow();
    QCOMPARE(m_fixture->child<QLabel>("currentDetails")->text(),
             QStringLiteral("正在会议中 · 会议号 880100004 · 09:20 至 3月8日 09:20 · 2 人"));
}

void TestConferencePage::aLongTitleIsElided()
{
    const QString title = QStringLiteral("一个标题非常非常长的会议，").repeated(7);
    m_fixture->world->admin.AddConference(QStringLiteral("1"), title, QStringLiteral("100001"),
                                          m_fixture->world->nowMsecs, 600000, 5, QString(), {});
    const int before = m_fixture->window->minimumSizeHint().width();
    QCOMPARE(m_fixture->world
                 ->ask(QStringLiteral("Join Conference"),
                       QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("1")}})
                 .value(QLatin1String("ret"))
                 .toString(),
             QStringLiteral("OK"));
    m_fixture->follow();
    auto *label = m_fixture->child<QLabel>("currentTitle");
    QTRY_VERIFY(label->text().endsWith(QChar(0x2026)));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    QVERIFY(label->toolTip().contains(title.left(20)));
    QVERIFY(m_fixture->window->minimumSizeHint().width() <= qMax(before, m_fixture->window->width()));
}

void TestConferencePage::aFilterLeavesWhatItSays()
{
    QTest::keyClicks(m_fixture->page(0)->filter(), QStringLiteral("880100005"));
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 1);
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Title), QStringLiteral("产品周会"));
    m_fixture->page(0)->filter()->setFocus();
    QTest::keyClick(m_fixture->page(0)->filter(), Qt::Key_Escape);
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 4);
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
             QSet<QString>({QStringLiteral("880100001"), QStringLiteral("880100007")}));
    // Durations sort by length, not by text.
    m_fixture->conferences()->sortByColumn(ConferenceModel::Duration, Qt::AscendingOrder);
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Duration), QStringLiteral("30分钟"));
    QCOMPARE(m_fixture->cell(3, ConferenceModel::Duration), QStringLiteral("240分钟"));
}

void TestConferencePage::theSelectionSurvivesAChange()
{
    m_fixture->selectNumber("880100006");
    m_fixture->world->admin.AddConference(QStringLiteral("1"), QStringLiteral("早"), QStringLiteral("100001"),
                                          m_fixture->world->nowMsecs + 1000, 60000, 5, QString(), {});
    m_fixture->follow();
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 5);
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
    QTRY_COMPARE(m_fixture->conferences()->model()->rowCount(), 0);
    const QModelIndex ended =
        m_fixture->child<QTableView>("endedTable")->model()->index(0, ConferenceModel::State);
    QCOMPARE(ended.data().toString(), QStringLiteral("已结束"));
    QCOMPARE(m_fixture->child<QToolButton>("ended")->text(), QStringLiteral("已结束 (1)"));
}

void TestConferencePage::noPasscodeIsShown()
{
    m_fixture->pick("scope", 1);
    m_fixture->child<QToolButton>("ended")->setChecked(true);
    int protectedOnes = 0;
    for (const QAbstractItemModel *model :
         {m_fixture->conferences()->model(), m_fixture->child<QTableView>("endedTable")->model()}) {
        for (int row = 0; row < model->rowCount(); ++row) {
            for (int column = 0; column < model->columnCount(); ++column) {
                for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole),
                                       int(Qt::AccessibleTextRole), int(ConferenceModel::SearchRole)}) {
                    QVERIFY(
                        !model->index(row, column).data(role).toString().contains(QLatin1String("246810")));
                }
            }
            const QString mark = model->index(row, ConferenceModel::Passcode).data().toString();
            protectedOnes += mark == QStringLiteral("需要") ? 1 : 0;
        }
    }
    QCOMPARE(protectedOnes, 1);
}

void TestConferencePage::anEmptyListSaysWhy()
{
    const auto hint = [this] {
        return m_fixture->conferences()->accessibleDescription();
    };
    m_fixture->page(0)->filter()->setText(QStringLiteral("无"));
    QCOMPARE(hint(), QStringLiteral("没有符合“无”的会议。按 Esc 清除筛选。"));
    m_fixture->page(0)->filter()->clear();
    QCOMPARE(hint(), QStringLiteral("没有即将开始的会议。点“发起会议”可以预约一个。"));
    m_fixture->world->admin.Logout();
    m_fixture->follow();
    QCOMPARE(hint(), QStringLiteral("还没有登录。请在上方选择账号，登录后可以在这里看到会议。"));
    auto *helper = LGuiApplicationHelper::instance();
    for (const auto theme : {LGuiApplicationHelper::LightType, LGuiApplicationHelper::DarkType}) {
        helper->setPaletteType(theme);
        QCoreApplication::processEvents();
        const double contrast =
            PaintedContrast::ofText(m_fixture->conferences()->viewport()->grab().toImage());
        QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    }
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
}

void TestConferencePage::columnsNeverTouch_data()
{
    addColumns<int>({"width"});
    for (const int width : {360, 640, 960, 1600}) {
        QTest::newRow(qPrintable(QString::number(width))) << width;
    }
}

void TestConferencePage::columnsNeverTouch()
{
    QFETCH(int, width);
    m_fixture->world->admin.AddPerson(QStringLiteral("300001"),
                                      QStringLiteral("一个名字非常非常长的主持人").repeated(3),
                                      QStringLiteral("paying"));
    m_fixture->world->admin.AddConference(
        QStringLiteral("12345678901234567890"), QStringLiteral("长").repeated(90), QStringLiteral("300001"),
        m_fixture->world->nowMsecs, 24 * 60 * MinuteMsecs, 100, QStringLiteral("1"), {});
    m_fixture->pick("scope", 1);
    m_fixture->follow();
    m_fixture->window->resize(width, 560);
    HintedTable *table = m_fixture->conferences();
    QTRY_COMPARE(m_fixture->window->width(), qMax(width, m_fixture->window->minimumSizeHint().width()));
    QCoreApplication::processEvents();
    int sum = 0;
    for (int column = 0; column < ConferenceModel::ColumnCount; ++column) {
        sum += table->columnWidth(column);
        QVERIFY(table->columnWidth(column) >= (column == ConferenceModel::Title ? 180 : 64));
    }
    // The columns fill the table; if they don't fit, it scrolls.
    QVERIFY(sum >= table->viewport()->width());
    QCOMPARE(table->horizontalScrollBar()->maximum(), sum - table->viewport()->width());

    // Only background is painted between two cells, however long their texts.
    const QImage picture = table->viewport()->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    for (int column = 1; column < ConferenceModel::ColumnCount; ++column) {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QRect cell = table->visualRect(table->model()->index(row, column));
            const QRect gap(cell.left() - 4, cell.top() + 4, 8, cell.height() - 8);
            if (!table->viewport()->rect().contains(gap)) {
                continue;
            }
            const QImage between = picture.copy(QRect(gap.topLeft() * ratio, gap.size() * ratio));
            QVERIFY2(PaintedContrast::ofText(between) < 1.1,
                     qPrintable(QStringLiteral("row %1, column %2").arg(row).arg(column)));
        }
    }
}

void TestConferencePage::textsAreLegible_data()
{
    addColumns<int>({"theme"});
    QTest::newRow("light") << int(LGuiApplicationHelper::LightType);
    QTest::newRow("dark") << int(LGuiApplicationHelper::DarkType);
}

void TestConferencePage::textsAreLegible()
{
    QFETCH(int, theme);
    auto *helper = LGuiApplicationHelper::instance();
    helper->setPaletteType(static_cast<LGuiApplicationHelper::ColorType>(theme));
    m_fixture->pick("scope", 1);
    m_fixture->child<QToolButton>("ended")->setChecked(true);
    m_fixture->selectNumber("880100005");
    m_fixture->conferences()->clearFocus();
    QCoreApplication::processEvents();
    HintedTable *table = m_fixture->conferences();
    const QImage picture = table->viewport()->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    int seen = 0;
    for (int row = 0; row < table->model()->rowCount(); ++row) {
        const QRect state = table->visualRect(table->model()->index(row, ConferenceModel::State));
        const QRect dot(state.topLeft() * ratio, QSize(28, state.height()) * ratio);
        if (table->viewport()->rect().contains(state)) {
            QVERIFY(PaintedContrast::ofText(picture.copy(dot)) >= 3);
        }
        for (const int column : {int(ConferenceModel::Title), int(ConferenceModel::Start)}) {
            const QRect cell = table->visualRect(table->model()->index(row, column));
            if (table->viewport()->rect().contains(cell)) {
                ++seen;
                const double contrast =
                    PaintedContrast::ofText(picture.copy(QRect(cell.topLeft() * ratio, cell.size() * ratio)));
                QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
            }
        }
    }
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
    QVERIFY(seen >= 4);
}

QTEST_MAIN(TestConferencePage)
#include "tst_conferencepage.moc"
