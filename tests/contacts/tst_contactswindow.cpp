// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"
#include "windowpictures.h"

#include "testcolumns.h"

#include <QAccessible>
#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QMenu>

/// What the window's pages have in common.
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
    void tabGoesAsOneReads();
    void pictures_data();
    void pictures();
};

void TestContactsWindow::everyButtonCanBeReachedWithTheKeyboard()
{
    QTest::keyClick(m_fixture->window.get(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(QApplication::focusWidget(), m_fixture->page(0)->filter());
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->follow();
    m_fixture->selectNumber("880100005");
    const auto reached = [] {
        QSet<QString> names;
        for (int step = 0; step < 30; ++step) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            names.insert(QApplication::focusWidget()->objectName());
        }
        return names;
    };
    const QSet<QString> inConference = reached();
    for (const char *name : {"account", "kind", "logout", "developer", "scope", "ended", "leave",
                             "copyCurrentNumber", "create", "start", "delete"}) {
        QVERIFY2(inConference.contains(QString::fromLatin1(name)), name);
    }
    m_fixture->click("leave");
    m_fixture->pick("scope", 1);
    m_fixture->follow();
    m_fixture->selectNumber("880100002");
    m_fixture->child<QLineEdit>("passcode")->setText(QStringLiteral("1"));
    m_fixture->page(0)->filter()->setFocus();
    const QSet<QString> outside = reached();
    for (const char *name : {"passcode", "join"}) {
        QVERIFY2(outside.contains(QString::fromLatin1(name)), name);
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
    // Nor when a hidden window is shown; the offscreen platform ignores the request, so check Qt's property.
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
    QVERIFY(m_fixture->child<QPushButton>("developer")->isVisible());
    QMenu *menu = m_fixture->child<QPushButton>("developer")->menu();
    QVERIFY(menu->actions().contains(m_fixture->child<QAction>("sample")));
    QVERIFY(menu->actions().contains(m_fixture->child<QAction>("elsewhere")));
    // Restoring the sample asks before it deletes everything.
    m_fixture->world->admin.Reset();
    m_fixture->child<QAction>("sample")->trigger();
    m_fixture->click("refuse");
    QTRY_VERIFY(m_fixture->window->findChild<QPushButton *>(QStringLiteral("refuse")) == nullptr);
    QVERIFY(m_fixture->world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    m_fixture->child<QAction>("sample")->trigger();
    m_fixture->click("agree");
    QVERIFY(!m_fixture->world->snapshot().value(QLatin1String("people")).toArray().isEmpty());
    QCOMPARE(m_fixture->told(), QStringLiteral("示例数据已恢复。"));
    m_fixture->child<QAction>("elsewhere")->trigger();
    QVERIFY(m_fixture->world->snapshot().value(QLatin1String("engagedElsewhere")).toBool());
    m_fixture->world->admin.SetEngagedElsewhere(false);
    m_fixture->follow();
    QVERIFY(!m_fixture->child<QAction>("elsewhere")->isChecked());
    m_fixture->window = std::make_unique<ContactsWindow>(m_fixture->world->book, m_fixture->world->admin);
    m_fixture->window->show();
    for (const char *name : {"developer", "sample", "elsewhere"}) {
        QVERIFY(!m_fixture->window->findChild<QObject *>(QString::fromLatin1(name)));
    }
}

void TestContactsWindow::tabGoesAsOneReads()
{
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->follow();
    m_fixture->pick("scope", 1);
    m_fixture->child<QAbstractButton>("ended")->click();
    m_fixture->selectNumber("880100005");
    auto *first = m_fixture->child<QWidget>("account");
    first->setFocus();
    QVector<QWidget *> order;
    for (QWidget *widget = first; order.size() < 40; widget = QApplication::focusWidget()) {
        if (order.contains(widget)) {
            break;
        }
        order.append(widget);
        QTest::keyClick(widget, Qt::Key_Tab);
    }
    QVERIFY(order.size() > 12);
    // Controls side by side are visited from left to right.
    const auto place = [this](const QWidget *widget) {
        return QRect(widget->mapTo(m_fixture->window.get(), QPoint()), widget->size());
    };
    for (int i = 1; i < order.size(); ++i) {
        const QRect before = place(order.at(i - 1));
        const QRect here = place(order.at(i));
        const bool isBeside = here.top() < before.bottom() && before.top() < here.bottom();
        const bool isInside = order.at(i - 1)->parentWidget()->isAncestorOf(order.at(i)) && !isBeside;
        QVERIFY2(
            isBeside ? here.left() > before.left() : (here.top() >= before.bottom() || isInside),
            qPrintable(order.at(i - 1)->objectName() + QStringLiteral(" to ") + order.at(i)->objectName()));
    }
}

void TestContactsWindow::pictures_data()
{
    addColumns<int, int, QString>({"theme", "tab", "state"});
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    for (const int theme : {int(LGuiApplicationHelper::LightType), int(LGuiApplicationHelper::DarkType)}) {
        const QString name =
            (theme == LGuiApplicationHelper::LightType ? QStringLiteral("light-") : QStringLiteral("dark-")) +
            scale;
        QTest::newRow(qPrintable(QStringLiteral("conferences-") + name))
            << theme << 0 << QStringLiteral("selected");
        QTest::newRow(qPrintable(QStringLiteral("people-") + name)) << theme << 1 << QString();
        QTest::newRow(qPrintable(QStringLiteral("reminders-") + name)) << theme << 2 << QString();
        QTest::newRow(qPrintable(QStringLiteral("empty-") + name)) << theme << 0 << QStringLiteral("logout");
        QTest::newRow(qPrintable(QStringLiteral("meeting-") + name))
            << theme << 0 << QStringLiteral("meeting");
        QTest::newRow(qPrintable(QStringLiteral("narrow-") + name)) << theme << 0 << QStringLiteral("narrow");
    }
}

void TestContactsWindow::pictures()
{
    QFETCH(int, theme);
    QFETCH(int, tab);
    QFETCH(QString, state);
    const ChosenTheme chosen(theme);
    m_fixture->world->admin.AddConference(
        QStringLiteral("1"),
        QStringLiteral("一个标题非常非常长的会议，长得任何一列都放不下，所以要省略").repeated(2),
        QStringLiteral("100001"), m_fixture->world->nowMsecs + 86400000LL * 3, 1800000, 5, QString(), {});
    if (state == QLatin1String("logout")) {
        m_fixture->world->admin.Logout();
    } else if (state == QLatin1String("meeting")) {
        m_fixture->world->ask(QStringLiteral("Join My Conference"));
    } else if (state == QLatin1String("narrow")) {
        m_fixture->window->resize(m_fixture->window->minimumSizeHint().width(), 480);
    }
    m_fixture->follow();
    m_fixture->tabs()->setCurrentIndex(tab);
    if (state == QLatin1String("selected")) {
        m_fixture->selectNumber("880100005");
    } else if (state == QLatin1String("meeting")) {
        m_fixture->pick("scope", 1);
        m_fixture->child<QAbstractButton>("ended")->click();
        m_fixture->click("copyCurrentNumber");
    }
    keepPicture(m_fixture->window.get(), chosen, QStringLiteral("contacts"));
}

QTEST_MAIN(TestContactsWindow)
#include "tst_contactswindow.moc"
