// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "core/statement.h"
#include "testcolumns.h"
#include "window/conferencemodel.h"
#include "window/contactswindow.h"
#include "window/peoplemodel.h"
#include "window/tablepage.h"

#include <QComboBox>
#include <QJsonArray>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <ctime>

namespace {

constexpr int Count = 100000;
constexpr qint64 HourMsecs = 3600000;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double Slower = 10; // still far below one walk over everything
#else
constexpr double Slower = 1;
#endif
/// One frame at 60 a second.
constexpr double MostShownMsecs = 16 * Slower;

/// Milliseconds of processor time of this thread, which a busy machine does not stretch.
double threadMsecs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// The lower quartile: what the machine's other work adds, by emptied caches and interrupts, it adds to some.
double usual(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 4);
}

} // namespace

/// The window over a hundred thousand conferences and as many contacts.
class TestLargeWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void aWriteIsAnsweredFirstAndShownSoon_data();
    void aWriteIsAnsweredFirstAndShownSoon();
    void aBurstIsShownOnce();
    void openingReadsOnlyWhatIsShown();
    void aPageIsSortedOnceAtOpening();
    void peopleComeAsOneScrolls();
    void aFilterFindsWhoWasNotReadYet();
    void anotherOrderIsOfAllPeople();
    void conferencesComeAsOneScrolls();
    void anotherOrderIsOfManyConferences();
    void whereOneHasScrolledOneStays();
    void everybodyCanLogIn();

private:
    void fill();
    TablePage *page(int index)
    {
        return static_cast<TablePage *>(m_window->findChild<QTabWidget *>()->widget(index));
    }
    /// What the window does when it follows a change, up to its painting.
    double showMsecs()
    {
        QSignalSpy later(&m_world->book, &ContactsBook::changedLately);
        const double before = threadMsecs();
        if (!later.wait()) {
            return -1;
        }
        m_window->grab();
        return threadMsecs() - before;
    }

    /// Lets the people be read to the end and looks how long that stopped the window at most.
    void finishReading()
    {
        auto *people = static_cast<PeopleModel *>(page(1)->table()->model());
        QVector<double> goes;
        while (people->isReading()) {
            const double before = threadMsecs();
            QCoreApplication::processEvents();
            goes.append(threadMsecs() - before);
        }
        std::sort(goes.begin(), goes.end());
        if (goes.size() < 20) {
            return; // not much was read
        }
        // Each of them but for what a machine does now and then, and the last one, which shows the rows.
        const double most = goes.at(goes.size() * 19 / 20);
        qInfo("%d goes, %.2f ms nearly all, %.2f ms the longest", goes.size(), most, goes.constLast());
        QVERIFY2(most < MostShownMsecs, qPrintable(QString::number(most)));
    }

    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<ContactsWindow> m_window;
    int m_round = 0;
};

void TestLargeWindow::initTestCase()
{
    m_world = std::make_unique<SampleWorld>();
    m_world->admin.SetCreationLimit(1000000);
    m_world->admin.SetFriendLimit(1000000);
    fill();
    m_window = std::make_unique<ContactsWindow>(m_world->book, m_world->admin);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestLargeWindow::cleanupTestCase()
{
    m_window.reset();
    m_world.reset();
}

void TestLargeWindow::fill()
{
    ContactsBook &book = m_world->book;
    const auto run = [&book](const char *sql) {
        Statement(book.database().handle(), QString::fromLatin1(sql)).bind(Count).run();
    };
    QVERIFY(book.change([&] {
        run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
            " INSERT INTO person SELECT printf('p%06d', i), printf('5%06d', i), printf('person %d', i), 0 "
            "FROM n");
        run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
            " INSERT INTO contact (owner_id, person_id, remark_name, is_friend)"
            " SELECT 'u100001', printf('p%06d', i), '', 0 FROM n");
        Statement(
            book.database().handle(),
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?)"
                           " INSERT INTO conference (id, conf_id, dial_number, title, host_id, start_msecs,"
                           " duration_msecs, participant_limit)"
                           " SELECT 1000 + i, printf('c%d', i), printf('7%06d', i), printf('conference %d', "
                           "i), 'u100001',"
                           " ? + i * 3600000, 1800000, 20 FROM n"))
            .bind(Count)
            .bind(m_world->nowMsecs + HourMsecs)
            .run();
        run("INSERT INTO participant SELECT id, 'u100001', 0, 0, start_msecs FROM conference WHERE id > 1000"
            " AND id <= 1000 + ?");
        run("INSERT INTO participant SELECT id, printf('p%06d', id - 1000), 1, 0, start_msecs FROM conference"
            " WHERE id > 1000 AND id <= 1000 + ?");
        return true;
    }));
    QCOMPARE(book.people().contacts(QStringLiteral("u100001")).size(), Count + 23);
}

void TestLargeWindow::aWriteIsAnsweredFirstAndShownSoon_data()
{
    addColumns<QString, int>({"action", "tab"});
    QTest::newRow("create, conferences shown") << QStringLiteral("Create Conference") << 0;
    QTest::newRow("create, people shown") << QStringLiteral("Create Conference") << 1;
    QTest::newRow("add a friend, people shown") << QStringLiteral("Add Friends") << 1;
    QTest::newRow("invite, conferences shown") << QStringLiteral("Invite Members") << 0;
    QTest::newRow("leave, conferences shown") << QStringLiteral("Exit Conference") << 0;
    QTest::newRow("delete, conferences shown") << QStringLiteral("Delete Conference") << 0;
}

void TestLargeWindow::aWriteIsAnsweredFirstAndShownSoon()
{
    QFETCH(QString, action);
    QFETCH(int, tab);
    constexpr int rounds = 9;
    m_window->findChild<QTabWidget *>()->setCurrentIndex(tab);
    QVector<double> answers;
    QVector<double> shown;
    for (int round = 0; round < rounds; ++round) {
        QJsonObject parameters;
        ++m_round;
        if (action == QLatin1String("Create Conference")) {
            parameters = {
                {QStringLiteral("startTime"), m_world->nowMsecs + (Count + 100 + 2 * m_round) * HourMsecs}};
        } else if (action == QLatin1String("Add Friends")) {
            parameters = {
                {QStringLiteral("userId"), QStringLiteral("5%1").arg(m_round, 6, 10, QLatin1Char('0'))}};
        } else if (action == QLatin1String("Delete Conference")) {
            parameters = {{QStringLiteral("conferenceId"), QStringLiteral("c%1").arg(m_round)}};
        } else {
            QCOMPARE(m_world->ask(QStringLiteral("Create Conference")).value(QLatin1String("ret")).toString(),
                     QStringLiteral("OK"));
            QVERIFY(showMsecs() >= 0);
            if (action == QLatin1String("Invite Members")) {
                parameters = membersNamed({QStringLiteral("person %1").arg(m_round)});
            }
        }
        const double before = threadMsecs();
        const QJsonObject answer = m_world->ask(action, parameters);
        answers.append(threadMsecs() - before);
        QCOMPARE(answer.value(QLatin1String("ret")).toString(), QStringLiteral("OK"));
        shown.append(showMsecs());
        if (action == QLatin1String("Invite Members")) {
            m_world->ask(QStringLiteral("Exit Conference"));
        }
    }
    qInfo("%s: %.2f ms before the answer, %.2f ms in the window", QTest::currentDataTag(), usual(answers),
          usual(shown));
    QVERIFY2(usual(answers) < 2 * Slower, qPrintable(QString::number(usual(answers))));
    QVERIFY2(usual(shown) < MostShownMsecs, qPrintable(QString::number(usual(shown))));
}

void TestLargeWindow::aBurstIsShownOnce()
{
    QSignalSpy later(&m_world->book, &ContactsBook::changedLately);
    for (int i = 0; i < 50; ++i) {
        m_world->admin.SetFriendLimit(1000000 + i);
    }
    QCOMPARE(later.count(), 0);
    QVERIFY(later.wait());
    QVERIFY(!later.wait(100));
    QCOMPARE(later.count(), 1);
}

void TestLargeWindow::openingReadsOnlyWhatIsShown()
{
    QVector<double> opened;
    for (int round = 0; round < 3; ++round) {
        const double before = threadMsecs();
        ContactsWindow window(m_world->book, m_world->admin);
        window.grab();
        opened.append(threadMsecs() - before);
    }
    qInfo("%.2f ms for opening", usual(opened));
    // Far above it, and far below one walk over all contacts, wherever it runs.
    const double before = threadMsecs();
    const int count = m_world->book.people().contacts(QStringLiteral("u100001")).size();
    const double allOfThem = threadMsecs() - before;
    QVERIFY(count >= Count);
    QVERIFY2(usual(opened) < allOfThem / 2,
             qPrintable(QStringLiteral("%1 ms, %2 for all contacts").arg(usual(opened)).arg(allOfThem)));
}

void TestLargeWindow::aPageIsSortedOnceAtOpening()
{
    struct Model : QStandardItemModel
    {
        using QStandardItemModel::QStandardItemModel;
        void sort(int column, Qt::SortOrder order) override { calls.append({column, order}); }
        QVector<QPair<int, Qt::SortOrder>> calls;
    };
    Model model(0, PeopleModel::ColumnCount);
    const TablePage page(&model, Qt::UserRole, PeopleModel::Account);
    const QVector<QPair<int, Qt::SortOrder>> once{{PeopleModel::Account, Qt::AscendingOrder}};
    QCOMPARE(model.calls, once);
}

void TestLargeWindow::peopleComeAsOneScrolls()
{
    m_window->findChild<QTabWidget *>()->setCurrentIndex(1);
    HintedTable *table = page(1)->table();
    QAbstractItemModel *model = table->model();
    QVERIFY(model->rowCount() < 1000);
    while (model->rowCount() < 1000) {
        const int before = model->rowCount();
        table->scrollToBottom();
        QTRY_VERIFY(model->rowCount() > before);
    }
    QStringList accounts;
    for (int row = 0; row < 1000; ++row) {
        accounts.append(model->index(row, PeopleModel::Account).data().toString());
    }
    QCOMPARE(accounts.first(), QStringLiteral("100002"));
    QCOMPARE(accounts.last(), QStringLiteral("5000977")); // behind the sample's 23
    QStringList sorted = accounts;
    sorted.sort();
    QCOMPARE(accounts, sorted);
    QCOMPARE(sorted.removeDuplicates(), 0);
}

void TestLargeWindow::aFilterFindsWhoWasNotReadYet()
{
    QAbstractItemModel *model = page(1)->table()->model();
    page(1)->filter()->setText(QStringLiteral("PERSON 99999"));
    finishReading();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, PeopleModel::Account).data().toString(), QStringLiteral("5099999"));
    QVERIFY(!model->canFetchMore({}));
    page(1)->filter()->setText(QStringLiteral("nobody"));
    finishReading();
    QCOMPARE(model->rowCount(), 0);
    // A write meanwhile looks through everybody again, but not at a stretch.
    m_world->admin.SetFriendLimit(1000000);
    const double shown = showMsecs();
    QVERIFY2(shown >= 0 && shown < MostShownMsecs, qPrintable(QString::number(shown)));
    finishReading();
    page(1)->filter()->clear();
    QVERIFY(model->rowCount() >= 100);
}

void TestLargeWindow::anotherOrderIsOfAllPeople()
{
    HintedTable *table = page(1)->table();
    table->sortByColumn(PeopleModel::Account, Qt::DescendingOrder);
    finishReading();
    QCOMPARE(table->model()->rowCount(), Count + 23);
    QCOMPARE(table->model()->index(0, PeopleModel::Account).data().toString(), QStringLiteral("5100000"));
    // A write reads everybody again, but not at a stretch.
    m_world->admin.SetFriendLimit(1000000);
    const double shown = showMsecs();
    QVERIFY2(shown >= 0 && shown < MostShownMsecs, qPrintable(QString::number(shown)));
    finishReading();
    QCOMPARE(table->model()->rowCount(), Count + 23);
    table->sortByColumn(PeopleModel::Account, Qt::AscendingOrder);
    finishReading();
    QVERIFY(table->model()->rowCount() < Count);
}

void TestLargeWindow::conferencesComeAsOneScrolls()
{
    m_window->findChild<QTabWidget *>()->setCurrentIndex(0);
    HintedTable *table = page(0)->table();
    QAbstractItemModel *model = table->model();
    QCOMPARE(model->rowCount(), 100);
    table->scrollToBottom();
    QTRY_COMPARE(model->rowCount(), 200);
    table->scrollToBottom();
    QTRY_COMPARE(model->rowCount(), 300);
    QVector<qint64> starts;
    QStringList numbers;
    for (int row = 0; row < model->rowCount(); ++row) {
        starts.append(model->index(row, ConferenceModel::Start).data(ConferenceModel::SortRole).toLongLong());
        numbers.append(model->index(row, ConferenceModel::Number).data().toString());
    }
    QVector<qint64> sorted = starts;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(starts, sorted);
    QVERIFY(sorted.first() < sorted.last());
    QCOMPARE(numbers.removeDuplicates(), 0);
}

void TestLargeWindow::anotherOrderIsOfManyConferences()
{
    HintedTable *table = page(0)->table();
    table->sortByColumn(ConferenceModel::Title, Qt::AscendingOrder);
    QVERIFY(table->model()->rowCount() >= 1000);
    table->sortByColumn(ConferenceModel::Start, Qt::AscendingOrder);
    QCOMPARE(table->model()->rowCount(), 300);
    page(0)->filter()->setText(QStringLiteral("conference 900"));
    QCOMPARE(table->model()->rowCount(), 1);
    page(0)->filter()->clear();
}

void TestLargeWindow::whereOneHasScrolledOneStays()
{
    m_window->findChild<QTabWidget *>()->setCurrentIndex(0);
    HintedTable *table = page(0)->table();
    table->scrollToTop();
    page(0)->select(QStringLiteral("7000010"));
    table->scrollTo(table->model()->index(150, 0), QAbstractItemView::PositionAtTop);
    const int before = table->verticalScrollBar()->value();
    QVERIFY(before > 0);
    // Rows come behind what is shown.
    m_world->ask(QStringLiteral("Delete Conference"),
                 QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("c250")}});
    QVERIFY(showMsecs() >= 0);
    QCOMPARE(table->verticalScrollBar()->value(), before);
    QCOMPARE(page(0)->selected(ConferenceModel::NumberRole).toString(), QStringLiteral("7000010"));
}

void TestLargeWindow::everybodyCanLogIn()
{
    auto *account = m_window->findChild<QComboBox *>(QStringLiteral("account"));
    QAbstractItemModel *model = account->model();
    QVERIFY(model->rowCount() < 200);
    QCOMPARE(account->currentData().toString(), QStringLiteral("100001"));
    while (model->canFetchMore({})) {
        model->fetchMore({});
    }
    QSet<QString> accounts;
    for (int row = 0; row < model->rowCount(); ++row) {
        accounts.insert(model->index(row, 0).data(Qt::UserRole).toString());
    }
    QCOMPARE(model->rowCount(), Count + 26 + 1); // and nobody
    QCOMPARE(accounts.size(), model->rowCount());
    account->setCurrentIndex(account->findData(QStringLiteral("5099999")));
    Q_EMIT account->activated(account->currentIndex());
    QVERIFY(showMsecs() >= 0);
    QCOMPARE(m_world->book.session().user()->account, QStringLiteral("5099999"));
    QCOMPARE(account->currentData().toString(), QStringLiteral("5099999"));
    QCOMPARE(account->currentIndex(), 1);
}

QTEST_MAIN(TestLargeWindow)
#include "tst_largewindow.moc"
