// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "sampleworld.h"

#include "logcapture.h"

#include "window/conferencemodel.h"
#include "window/contactswindow.h"
#include "window/tablepage.h"

#include <lumo/lstyle.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

#include <memory>

/// The application's window over the sample directory, to be driven as a user would. Create one per test
/// function.
struct WindowFixture
{
    explicit WindowFixture(ContactsWindow::Tools tools = ContactsWindow::Tools::ForDevelopers)
        : isDressed(dress())
        , log(std::make_unique<LogCapture>())
        , world(std::make_unique<SampleWorld>())
        , window(std::make_unique<ContactsWindow>(world->book, world->admin, tools))
    {
        window->show();
        window->activateWindow();
    }
    ~WindowFixture()
    {
        window.reset();
        world.reset();
        log.reset();
    }
    Q_DISABLE_COPY(WindowFixture)

    /// Recreates the window, as after a restart of the application.
    void reopen(ContactsWindow::Tools tools = ContactsWindow::Tools::ForUsers)
    {
        const QSize size = window->size();
        window = std::make_unique<ContactsWindow>(world->book, world->admin, tools);
        window->resize(size);
        window->show();
        window->activateWindow();
    }

    [[nodiscard]] bool waitUntilShown() const { return QTest::qWaitForWindowExposed(window.get()); }

    template <typename T>
    T *child(const char *name) const
    {
        return childOf<T>(window.get(), name);
    }
    /// Returns a child of @p parent, which may be a dialog. Ends the program if there is none.
    template <typename T>
    static T *childOf(const QWidget *parent, const char *name)
    {
        T *found = parent ? parent->findChild<T *>(QString::fromLatin1(name)) : nullptr;
        if (!found) {
            qFatal("There is no %s", name);
        }
        return found;
    }
    QTabWidget *tabs() const { return window->findChild<QTabWidget *>(); }
    TablePage *page(int index) const { return static_cast<TablePage *>(tabs()->widget(index)); }
    HintedTable *conferences() const { return page(0)->table(); }
    QString cell(int row, ConferenceModel::Column column) const
    {
        return conferences()->model()->index(row, column).data().toString();
    }
    void selectNumber(const char *number) const { page(0)->select(QString::fromLatin1(number)); }
    void click(const char *name) const { QTest::mouseClick(child<QPushButton>(name), Qt::LeftButton); }
    void pick(const char *combo, int index) const
    {
        auto *box = child<QComboBox>(combo);
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    }
    /// Waits until the window has followed a change, which it does with a delay.
    void follow() const
    {
        QSignalSpy later(&world->book, &ContactsBook::changedLately);
        QVERIFY(later.wait());
    }
    QString told() const { return child<QLabel>("told")->text(); }

    /// Sets the application's style, once per process.
    static bool dress()
    {
        static const bool done = [] {
            QApplication::setStyle(new LStyle);
            return true;
        }();
        return done;
    }

    const bool isDressed;
    std::unique_ptr<LogCapture> log;
    std::unique_ptr<SampleWorld> world;
    std::unique_ptr<ContactsWindow> window;
};

/// Base class of window tests: each test function gets a new window that shows @p page.
class ContactsWindowTest : public QObject
{
    Q_OBJECT

public:
    explicit ContactsWindowTest(int page = 0) : m_page(page) {}

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<WindowFixture>();
        QVERIFY(m_fixture->waitUntilShown());
        m_fixture->tabs()->setCurrentIndex(m_page);
        prepare();
    }
    void cleanup() { m_fixture.reset(); }

protected:
    /// Runs before each test function.
    virtual void prepare() {}

    std::unique_ptr<WindowFixture> m_fixture;

private:
    const int m_page;
};

/// Base class of tests of one of the window's dialogs.
template <typename Dialog>
class ContactsDialogTest : public ContactsWindowTest
{
protected:
    /// Returns the open dialog; null if there is none.
    Dialog *dialog() const { return m_fixture->window->findChild<Dialog *>(); }
    template <typename T>
    T *field(const char *name) const
    {
        return WindowFixture::childOf<T>(dialog(), name);
    }
};
