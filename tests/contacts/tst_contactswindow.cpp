// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "testcolumns.h"

#include <lumo/lguiapplicationhelper.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QLineEdit>

/// What all pages of the window have in common.
class TestContactsWindow : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonCanBeReachedWithTheKeyboard();
    void everyControlHasANameForScreenReaders();
    void closingHidesIt();
    void comingUpForAProgramItLeavesTheFocusWhereOneTypes();
    void aNoticeStaysUntilItIsRead();
    void usersDoNotSeeWhatIsForDevelopers();
    void pictures_data();
    void pictures();
};

void TestContactsWindow::everyButtonCanBeReachedWithTheKeyboard()
{
    QTest::keyClick(m_fixture->window.get(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), m_fixture->page(0)->filter());
    m_fixture->selectNumber("880100005");
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

void TestContactsWindow::everyControlHasANameForScreenReaders()
{
    const QList<QWidget *> widgets = m_fixture->window->findChildren<QWidget *>();
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
    QTest::keyClick(m_fixture->window.get(), Qt::Key_W, Qt::ControlModifier);
    QVERIFY(!m_fixture->window->isVisible());
    m_fixture->window->bringUp(WindowFocus::Take);
    QVERIFY(m_fixture->window->isVisible());
}

void TestContactsWindow::comingUpForAProgramItLeavesTheFocusWhereOneTypes()
{
    QLineEdit elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    elsewhere.setFocus();
    QTRY_VERIFY(elsewhere.hasFocus());
    ContactsWindow &window = *m_fixture->window;
    window.bringUp(WindowFocus::Leave);
    QCoreApplication::processEvents();
    QVERIFY(elsewhere.hasFocus() && !window.isActiveWindow());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("a"));
    QCOMPARE(elsewhere.text(), QStringLiteral("a"));
    // Neither when it has to be shown first; the test's platform itself knows no such wish.
    window.hide();
    window.bringUp(WindowFocus::Leave);
    QVERIFY(window.isVisible());
    QVERIFY(window.windowHandle()->property("_q_showWithoutActivating").toBool());

    elsewhere.activateWindow();
    QTRY_VERIFY(elsewhere.hasFocus());
    window.bringUp(WindowFocus::Take);
    QTRY_VERIFY(window.isActiveWindow());
    window.hide();
    window.bringUp(WindowFocus::Take);
    QVERIFY(!window.windowHandle()->property("_q_showWithoutActivating").toBool());
}

void TestContactsWindow::aNoticeStaysUntilItIsRead()
{
    QVERIFY(!m_fixture->child<QWidget>("notice")->isVisible());
    const QString text = QStringLiteral("数据库已损坏，原文件保存为 <b>/home/x</b>。");
    QVERIFY(m_fixture->world->book.change([this, &text] {
        m_fixture->world->book.session().setNotice(text);
        return true;
    }));
    for (int round = 0; round < 2; ++round) {
        m_fixture->window = std::make_unique<ContactsWindow>(m_fixture->world->book, m_fixture->world->admin);
        m_fixture->window->show();
        QVERIFY(m_fixture->child<QWidget>("notice")->isVisible());
        QCOMPARE(m_fixture->child<QLabel>("noticeText")->text(), text);
        QCOMPARE(m_fixture->child<QLabel>("noticeText")->textFormat(), Qt::PlainText);
    }
    QDir().mkpath(QStringLiteral("contacts-pictures"));
    QVERIFY(m_fixture->window->grab().save(QStringLiteral("contacts-pictures/notice.png")));
    QTest::mouseClick(m_fixture->child<QPushButton>("noticeRead"), Qt::LeftButton);
    QVERIFY(!m_fixture->child<QWidget>("notice")->isVisible());
    QCOMPARE(m_fixture->world->book.session().notice(), QString());
}

void TestContactsWindow::usersDoNotSeeWhatIsForDevelopers()
{
    QVERIFY(m_fixture->child<QPushButton>("sample")->isVisible());
    QVERIFY(m_fixture->child<QCheckBox>("elsewhere")->isVisible());
    // Who tries it out is asked before everything goes.
    m_fixture->world->admin.Reset();
    m_fixture->click("sample");
    m_fixture->click("refuse");
    QTRY_VERIFY(m_fixture->window->findChild<QPushButton *>(QStringLiteral("refuse")) == nullptr);
    QVERIFY(m_fixture->world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    m_fixture->click("sample");
    m_fixture->click("agree");
    QVERIFY(!m_fixture->world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    m_fixture->window = std::make_unique<ContactsWindow>(m_fixture->world->book, m_fixture->world->admin);
    m_fixture->window->show();
    QVERIFY(!m_fixture->child<QPushButton>("sample")->isVisible());
    QVERIFY(!m_fixture->child<QCheckBox>("elsewhere")->isVisible());
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
    m_fixture->world->admin.AddConference(
        QStringLiteral("1"),
        QStringLiteral("一个标题非常非常长的会议，长得任何一列都放不下，所以要省略").repeated(2),
        QStringLiteral("100001"), m_fixture->world->nowMsecs + 86400000LL * 3, 1800000, 5, QString(), {});
    if (!loggedIn) {
        m_fixture->world->admin.Logout();
    }
    m_fixture->follow();
    m_fixture->window->findChild<QTabWidget *>()->setCurrentIndex(tab);
    if (tab == 0 && loggedIn) {
        m_fixture->selectNumber("880100001");
    }
    QCoreApplication::processEvents();
    const QImage picture = m_fixture->window->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2).lightness() > 128, theme == LGuiApplicationHelper::LightType);
    const QDir folder(QStringLiteral(CONTACT_BINARY_DIR "/screenshots"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY(picture.save(
        folder.filePath(QStringLiteral("contacts-%1.png").arg(QLatin1String(QTest::currentDataTag())))));
    helper->setPaletteType(LGuiApplicationHelper::UnknownType);
}

QTEST_MAIN(TestContactsWindow)
#include "tst_contactswindow.moc"
