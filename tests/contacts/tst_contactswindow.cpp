// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "logcapture.h"
#include "testcolumns.h"

#include "core/statement.h"
#include "window/conferencemodel.h"
#include "window/contactswindow.h"
#include "window/tablepage.h"

#include <lumo/lguiapplicationhelper.h>

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

/// The window over the sample directory, driven as a person would.
class TestContactsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void itShowsTheUsersConferences();
    void aFilterLeavesWhatItSays();
    void aHeaderSorts();
    void theSelectionSurvivesAChange();
    void aConferenceStartsByTheClock();
    void aConferenceIsStartedAndEndedByHand();
    void joiningAsksForThePasscode();
    void everyButtonCanBeReachedWithTheKeyboard();
    void loggingInAndOutChangesWhatIsShown();
    void theAccountsKindIsChanged();
    void aFriendIsAdded();
    void whatCannotBeDoneIsDisabled();
    void namesAreShownClean();
    void everyControlHasANameForScreenReaders();
    void closingHidesIt();
    void aNoticeStaysUntilItIsRead();
    void usersDoNotSeeWhatIsForDevelopers();
    void remindersAreSetWithTheKeyboard();
    void aConferenceIsExportedFromTheMenu();
    void theMenuCopiesTheNumber();
    void pictures_data();
    void pictures();

private:
    template <typename T>
    T *child(const char *name)
    {
        T *found = m_window->findChild<T *>(QString::fromLatin1(name));
        Q_ASSERT(found);
        return found;
    }
    TablePage *page(int index)
    {
        return static_cast<TablePage *>(m_window->findChild<QTabWidget *>()->widget(index));
    }
    HintedTable *conferences() { return page(0)->table(); }
    QString cell(int row, ConferenceModel::Column column)
    {
        return conferences()->model()->index(row, column).data().toString();
    }
    void selectNumber(const char *number) { page(0)->select(QString::fromLatin1(number)); }
    void click(const char *name) { QTest::mouseClick(child<QPushButton>(name), Qt::LeftButton); }
    void pick(const char *combo, int index)
    {
        auto *box = child<QComboBox>(combo);
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    }
    /// Lets the window follow a change, which it does a moment later.
    void follow()
    {
        QSignalSpy later(&m_world->book, &ContactsBook::changedLately);
        QVERIFY(later.wait());
    }
    QString told() { return child<QLabel>("told")->text(); }

    std::unique_ptr<LogCapture> m_log;
    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<ContactsWindow> m_window;
};

void TestContactsWindow::init()
{
    m_log = std::make_unique<LogCapture>();
    m_world = std::make_unique<SampleWorld>();
    m_window =
        std::make_unique<ContactsWindow>(m_world->book, m_world->admin, ContactsWindow::Tools::ForDevelopers);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestContactsWindow::cleanup()
{
    m_window.reset();
    m_world.reset();
    m_log.reset();
}

void TestContactsWindow::itShowsTheUsersConferences()
{
    QCOMPARE(conferences()->model()->rowCount(), 5);
    QCOMPARE(cell(1, ConferenceModel::State), QStringLiteral("进行中"));
    QCOMPARE(cell(1, ConferenceModel::Title), QStringLiteral("部门早会"));
    QCOMPARE(cell(1, ConferenceModel::Number), QStringLiteral("880100001"));
    QCOMPARE(cell(1, ConferenceModel::Start), QStringLiteral("2026-03-07 10:00"));
    QCOMPARE(cell(1, ConferenceModel::Duration), QStringLiteral("240分钟"));
    QCOMPARE(cell(1, ConferenceModel::People), QStringLiteral("4/20"));
    QCOMPARE(cell(1, ConferenceModel::Host), QStringLiteral("李娜"));
    // By their start at first, without a grid.
    QCOMPARE(cell(0, ConferenceModel::Number), QStringLiteral("880100008"));
    QVERIFY(!conferences()->showGrid());
    const auto look = [this](int row, ConferenceModel::Column column, int role) {
        return conferences()->model()->index(row, column).data(role);
    };
    QVERIFY(!look(0, ConferenceModel::State, Qt::ForegroundRole).isValid()); // ended
    QCOMPARE(look(1, ConferenceModel::State, Qt::ForegroundRole).value<QColor>(), QColor(89, 190, 45));
    QCOMPARE(look(2, ConferenceModel::State, Qt::ForegroundRole).value<QColor>(), QColor(0, 129, 255));
    QVERIFY(!look(1, ConferenceModel::Title, Qt::ForegroundRole).isValid());
    const QString people = look(1, ConferenceModel::People, Qt::ToolTipRole).toString();
    QVERIFY2(people.contains(QStringLiteral("李娜、吴敏")), qPrintable(people));
    pick("scope", 1);
    QCOMPARE(conferences()->model()->rowCount(), 9);
}

void TestContactsWindow::aFilterLeavesWhatItSays()
{
    QTest::keyClicks(page(0)->filter(), QStringLiteral("880100005"));
    QCOMPARE(conferences()->model()->rowCount(), 1);
    QCOMPARE(cell(0, ConferenceModel::Title), QStringLiteral("产品周会"));
    page(0)->filter()->setFocus();
    QTest::keyClick(page(0)->filter(), Qt::Key_Escape);
    QCOMPARE(conferences()->model()->rowCount(), 5);
    page(0)->filter()->setText(QStringLiteral("产品"));
    QCOMPARE(conferences()->model()->rowCount(), 1);
    page(0)->filter()->setText(QStringLiteral(".*"));
    QCOMPARE(conferences()->model()->rowCount(), 0);
}

void TestContactsWindow::aHeaderSorts()
{
    QHeaderView *header = conferences()->horizontalHeader();
    const QPoint point(header->sectionViewportPosition(ConferenceModel::Number) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    const QString first = cell(0, ConferenceModel::Number);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QVERIFY(first != cell(0, ConferenceModel::Number));
    QCOMPARE(QSet<QString>({first, cell(0, ConferenceModel::Number)}),
             QSet<QString>({QStringLiteral("880100001"), QStringLiteral("880100008")}));
    // Durations by their length, not by their text.
    conferences()->sortByColumn(ConferenceModel::Duration, Qt::AscendingOrder);
    QCOMPARE(cell(0, ConferenceModel::Duration), QStringLiteral("30分钟"));
    QCOMPARE(cell(4, ConferenceModel::Duration), QStringLiteral("240分钟"));
}

void TestContactsWindow::theSelectionSurvivesAChange()
{
    selectNumber("880100006");
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("早"), QStringLiteral("100001"),
                                 m_world->nowMsecs + 1000, 60000, 5, QString(), {});
    follow();
    QCOMPARE(conferences()->model()->rowCount(), 6);
    QCOMPARE(page(0)->selected(ConferenceModel::NumberRole).toString(), QStringLiteral("880100006"));
}

void TestContactsWindow::aConferenceStartsByTheClock()
{
    m_world->admin.AddConference(QStringLiteral("1"), QStringLiteral("马上"), QStringLiteral("100001"),
                                 m_world->nowMsecs + 200, 300, 5, QString(), {});
    follow();
    page(0)->filter()->setText(QStringLiteral("马上"));
    QCOMPARE(cell(0, ConferenceModel::State), QStringLiteral("未开始"));
    QSignalSpy changed(conferences()->model(), &QAbstractItemModel::dataChanged);
    m_world->nowMsecs += 200;
    QVERIFY(changed.wait());
    QCOMPARE(cell(0, ConferenceModel::State), QStringLiteral("进行中"));
    m_world->nowMsecs += 300;
    QVERIFY(changed.wait());
    QCOMPARE(cell(0, ConferenceModel::State), QStringLiteral("已结束"));
}

void TestContactsWindow::aConferenceIsStartedAndEndedByHand()
{
    selectNumber("880100005");
    click("start");
    QCOMPARE(told(), QStringLiteral("会议已开始。"));
    follow();
    QCOMPARE(m_world->conference(QStringLiteral("880100005")).value(QLatin1String("state")).toString(),
             QStringLiteral("running"));
    QCOMPARE(page(0)->selected(ConferenceModel::NumberRole).toString(), QStringLiteral("880100005"));
    click("end");
    QCOMPARE(told(), QStringLiteral("会议已结束。"));
    follow();
    QCOMPARE(m_world->conference(QStringLiteral("880100005")).value(QLatin1String("state")).toString(),
             QStringLiteral("ended"));
    selectNumber("880100005");
    const QString before = told();
    click("delete");
    QVERIFY(child<QPushButton>("agree")->isVisible());
    QTest::keyClick(child<QPushButton>("refuse"), Qt::Key_Escape);
    QTRY_VERIFY(m_window->findChild<QPushButton *>(QStringLiteral("agree")) == nullptr);
    QCOMPARE(told(), before);
    // Return, which is pressed without reading, keeps it.
    click("delete");
    QVERIFY(child<QPushButton>("refuse")->isDefault() && !child<QPushButton>("agree")->isDefault());
    QTest::keyClick(child<QPushButton>("refuse")->window(), Qt::Key_Return);
    QTRY_VERIFY(m_window->findChild<QPushButton *>(QStringLiteral("agree")) == nullptr);
    QCOMPARE(told(), before);
    click("delete");
    click("agree");
    QCOMPARE(told(), QStringLiteral("没有正在进行的会议。"));
}

void TestContactsWindow::joiningAsksForThePasscode()
{
    pick("scope", 1);
    selectNumber("880100002");
    click("join");
    QCOMPARE(told(), QStringLiteral("密码不正确，请输入密码后再加入。"));
    QTest::keyClicks(child<QLineEdit>("passcode"), QStringLiteral("246810"));
    QTest::keyClick(child<QLineEdit>("passcode"), Qt::Key_Return);
    QCOMPARE(told(), QStringLiteral("好的。"));
    QVERIFY(child<QLineEdit>("passcode")->text().isEmpty());
    selectNumber("880100004");
    click("join");
    QCOMPARE(told(), QStringLiteral("正在其他会议中。"));
    click("leave");
    QCOMPARE(told(), QStringLiteral("好的。"));
    click("leave");
    QCOMPARE(told(), QStringLiteral("没有正在进行的会议。"));
    click("create");
    QCOMPARE(told(), QStringLiteral("好的。"));
    QTRY_COMPARE(conferences()->model()->rowCount(), 10);
}

void TestContactsWindow::everyButtonCanBeReachedWithTheKeyboard()
{
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), page(0)->filter());
    selectNumber("880100005");
    QSet<QString> reached;
    for (int step = 0; step < 30; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.insert(QApplication::focusWidget()->objectName());
    }
    for (const char *name : {"account", "kind", "logout", "elsewhere", "scope", "passcode", "join", "leave",
                             "create", "start", "delete", "sample"}) {
        QVERIFY2(reached.contains(QString::fromLatin1(name)), name);
    }
}

void TestContactsWindow::loggingInAndOutChangesWhatIsShown()
{
    click("logout");
    follow();
    QCOMPARE(conferences()->model()->rowCount(), 0);
    // An empty table says so.
    const QImage hinted = conferences()->viewport()->grab().toImage();
    conferences()->setHint(QString());
    QVERIFY(conferences()->viewport()->grab().toImage() != hinted);
    QCOMPARE(page(1)->table()->model()->rowCount(), 0);
    QCOMPARE(child<QComboBox>("account")->currentText(), QStringLiteral("未登录"));
    QVERIFY(!child<QPushButton>("logout")->isEnabled());
    click("create");
    QCOMPARE(told(), QStringLiteral("请先登录。"));
    auto *account = child<QComboBox>("account");
    pick("account", account->findData(QStringLiteral("100002")));
    QCOMPARE(m_world->snapshot().value(QLatin1String("user")).toString(), QStringLiteral("100002"));
    follow();
    QCOMPARE(conferences()->model()->rowCount(), 2);
    QCOMPARE(child<QComboBox>("kind")->currentText(), QStringLiteral("免费"));
}

void TestContactsWindow::theAccountsKindIsChanged()
{
    pick("kind", 1);
    const QJsonObject me = m_world->snapshot().value(QLatin1String("people")).toArray().at(0).toObject();
    QCOMPARE(me.value(QLatin1String("kind")).toString(), QStringLiteral("free"));
    child<QCheckBox>("elsewhere")->click();
    QVERIFY(m_world->snapshot().value(QLatin1String("engagedElsewhere")).toBool());
}

void TestContactsWindow::aFriendIsAdded()
{
    m_window->findChild<QTabWidget *>()->setCurrentIndex(1);
    QTest::keyClicks(child<QLineEdit>("friendAccount"), QStringLiteral("100031"));
    click("addFriend");
    QCOMPARE(told(), QStringLiteral("好的。"));
    follow();
    page(1)->filter()->setText(QStringLiteral("100005"));
    QCOMPARE(page(1)->table()->model()->index(0, 0).data().toString(), QStringLiteral("小刘（刘洋）"));
    page(1)->filter()->setText(QStringLiteral("已发送好友申请"));
    QCOMPARE(page(1)->table()->model()->rowCount(), 1);
    QTest::keyClicks(child<QLineEdit>("friendAccount"), QStringLiteral("100001"));
    QTest::keyClick(child<QLineEdit>("friendAccount"), Qt::Key_Return);
    QCOMPARE(told(), QStringLiteral("无法添加自己为好友。"));
}

void TestContactsWindow::whatCannotBeDoneIsDisabled()
{
    QVERIFY(!child<QPushButton>("join")->isEnabled());
    QVERIFY(!child<QPushButton>("start")->isEnabled());
    QVERIFY(!child<QPushButton>("end")->isEnabled());
    selectNumber("880100001");
    QVERIFY(child<QPushButton>("join")->isEnabled());
    QVERIFY(!child<QPushButton>("start")->isEnabled());
    QVERIFY(child<QPushButton>("end")->isEnabled());
}

void TestContactsWindow::namesAreShownClean()
{
    const QString hostile = QStringLiteral("\u202e李\u0007 <b>四</b>\u200b");
    QVERIFY(m_world->admin.AddPerson(QStringLiteral("300001"), hostile, QStringLiteral("free")));
    QVERIFY(m_world->admin.AddContact(QStringLiteral("100001"), QStringLiteral("300001"), hostile,
                                      QStringLiteral("friend")));
    follow();
    m_window->findChild<QTabWidget *>()->setCurrentIndex(1);
    page(1)->filter()->setText(QStringLiteral("300001"));
    QCOMPARE(page(1)->table()->model()->index(0, 0).data().toString(), QStringLiteral("李 <b>四</b>"));
    const QString tip = page(1)->table()->model()->index(0, 0).data(Qt::ToolTipRole).toString();
    QVERIFY2(tip.contains(QStringLiteral("&lt;b&gt;")), qPrintable(tip));
}

void TestContactsWindow::everyControlHasANameForScreenReaders()
{
    const QList<QWidget *> widgets = m_window->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() ||
            widget->objectName().startsWith(QLatin1String("qt_"))) {
            continue;
        }
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                 widget->metaObject()->className());
    }
}

void TestContactsWindow::closingHidesIt()
{
    QTest::keyClick(m_window.get(), Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
    m_window->bringUp();
    QVERIFY(m_window->isVisible());
}

void TestContactsWindow::aNoticeStaysUntilItIsRead()
{
    QVERIFY(!child<QWidget>("notice")->isVisible());
    const QString text = QStringLiteral("数据库已损坏，原文件保存为 <b>/home/x</b>。");
    QVERIFY(m_world->book.change([this, &text] {
        m_world->book.session().setNotice(text);
        return true;
    }));
    for (int round = 0; round < 2; ++round) {
        m_window = std::make_unique<ContactsWindow>(m_world->book, m_world->admin);
        m_window->show();
        QVERIFY(child<QWidget>("notice")->isVisible());
        QCOMPARE(child<QLabel>("noticeText")->text(), text);
        QCOMPARE(child<QLabel>("noticeText")->textFormat(), Qt::PlainText);
    }
    QDir().mkpath(QStringLiteral("contacts-pictures"));
    QVERIFY(m_window->grab().save(QStringLiteral("contacts-pictures/notice.png")));
    QTest::mouseClick(child<QPushButton>("noticeRead"), Qt::LeftButton);
    QVERIFY(!child<QWidget>("notice")->isVisible());
    QCOMPARE(m_world->book.session().notice(), QString());
}

void TestContactsWindow::usersDoNotSeeWhatIsForDevelopers()
{
    QVERIFY(child<QPushButton>("sample")->isVisible());
    QVERIFY(child<QCheckBox>("elsewhere")->isVisible());
    // Who tries it out is asked before everything goes.
    m_world->admin.Reset();
    click("sample");
    click("refuse");
    QTRY_VERIFY(m_window->findChild<QPushButton *>(QStringLiteral("refuse")) == nullptr);
    QVERIFY(m_world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    click("sample");
    click("agree");
    QVERIFY(!m_world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    m_window = std::make_unique<ContactsWindow>(m_world->book, m_world->admin);
    m_window->show();
    QVERIFY(!child<QPushButton>("sample")->isVisible());
    QVERIFY(!child<QCheckBox>("elsewhere")->isVisible());
}

void TestContactsWindow::remindersAreSetWithTheKeyboard()
{
    const auto settings = [this] {
        return m_world->book.reminders().settings();
    };
    QTest::keyClick(m_window.get(), Qt::Key_3, Qt::AltModifier);
    auto *tabs = m_window->findChild<QTabWidget *>();
    QCOMPARE(tabs->currentIndex(), 2);
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier); // nothing to search here
    tabs->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("remind"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("leadMinutes"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("15"));
    QCOMPARE(settings().leadMinutes, 5);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(settings().leadMinutes, 15);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(!settings().isOn);
    QCOMPARE(settings().leadMinutes, 15);
    follow();
    QVERIFY(!child<QWidget>("leadMinutes")->isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(settings().isOn);

    // What cannot be saved is not shown as if it were.
    m_log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    Statement(m_world->book.database().handle(),
              QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON reminder_settings BEGIN"
                             " SELECT RAISE(ABORT, 'no'); END"))
        .run();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(child<QCheckBox>("remind")->isChecked());
    QVERIFY(settings().isOn);
}

void TestContactsWindow::aConferenceIsExportedFromTheMenu()
{
    QVERIFY(!child<QAction>("export")->isEnabled());
    selectNumber("880100005");
    conferences()->setFocus();
    QTest::keyClick(conferences(), Qt::Key_E, Qt::ControlModifier);
    const auto dialog = [this] {
        return m_window->findChild<QFileDialog *>();
    };
    QVERIFY(dialog());
    const QString file = m_world->folder.filePath(QStringLiteral("out"));
    dialog()->selectFile(file);
    QTest::keyClick(dialog(), Qt::Key_Return);
    QTRY_VERIFY(!dialog());
    QFile written(file + QStringLiteral(".ics"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().contains("880100005"));
    QCOMPARE(told(), QStringLiteral("已导出到 %1。").arg(written.fileName()));

    // Cancelled meanwhile.
    child<QAction>("export")->trigger();
    QVERIFY(dialog());
    m_world->ask(
        QStringLiteral("Delete Conference"),
        QJsonObject{{QStringLiteral("conferenceId"), m_world->conferenceId(QStringLiteral("880100005"))}});
    dialog()->selectFile(m_world->folder.filePath(QStringLiteral("gone.ics")));
    QTest::keyClick(dialog(), Qt::Key_Return);
    QTRY_COMPARE(told(), QStringLiteral("会议已不存在。"));
    QVERIFY(!QFile::exists(m_world->folder.filePath(QStringLiteral("gone.ics"))));
    QTRY_VERIFY(!child<QAction>("export")->isEnabled());
}

void TestContactsWindow::theMenuCopiesTheNumber()
{
    selectNumber("880100006");
    conferences()->setFocus();
    QTest::keyClick(conferences(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("880100006"));
    QCOMPARE(told(), QStringLiteral("已复制会议号。"));
    QVERIFY(conferences()->actions().contains(child<QAction>("export")));
    QCOMPARE(conferences()->contextMenuPolicy(), Qt::ActionsContextMenu);
}

void TestContactsWindow::pictures_data()
{
    addColumns<int, int, bool>({"theme", "tab", "loggedIn"});
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    for (const int theme : {int(LGuiApplicationHelper::LightType), int(LGuiApplicationHelper::DarkType)}) {
        const QString name =
            (theme == LGuiApplicationHelper::LightType ? QStringLiteral("light-") : QStringLiteral("dark-")) +
            scale;
        QTest::newRow(qPrintable(QStringLiteral("conferences-") + name)) << theme << 0 << true;
        QTest::newRow(qPrintable(QStringLiteral("people-") + name)) << theme << 1 << true;
        QTest::newRow(qPrintable(QStringLiteral("reminders-") + name)) << theme << 2 << true;
        QTest::newRow(qPrintable(QStringLiteral("empty-") + name)) << theme << 0 << false;
    }
}

void TestContactsWindow::pictures()
{
    QFETCH(int, theme);
    QFETCH(int, tab);
    QFETCH(bool, loggedIn);
    auto *helper = LGuiApplicationHelper::instance();
    helper->setPaletteType(static_cast<LGuiApplicationHelper::ColorType>(theme));
    m_world->admin.AddConference(
        QStringLiteral("1"),
        QStringLiteral("一个标题非常非常长的会议，长得任何一列都放不下，所以要省略").repeated(2),
        QStringLiteral("100001"), m_world->nowMsecs + 86400000LL * 3, 1800000, 5, QString(), {});
    if (!loggedIn) {
        m_world->admin.Logout();
    }
    follow();
    m_window->findChild<QTabWidget *>()->setCurrentIndex(tab);
    if (tab == 0 && loggedIn) {
        selectNumber("880100001");
    }
    QCoreApplication::processEvents();
    const QImage picture = m_window->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2).lightness() > 128, theme == LGuiApplicationHelper::LightType);
    const QDir folder(QStringLiteral(CONTACT_BINARY_DIR "/screenshots"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY(picture.save(
        folder.filePath(QStringLiteral("contacts-%1.png").arg(QLatin1String(QTest::currentDataTag())))));
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
}

QTEST_MAIN(TestContactsWindow)
#include "tst_contactswindow.moc"
