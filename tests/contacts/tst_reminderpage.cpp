// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "core/statement.h"

#include <QCheckBox>

/// The page with the reminder settings.
class TestReminderPage : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void remindersAreSetWithTheKeyboard();
};

void TestReminderPage::remindersAreSetWithTheKeyboard()
{
    const auto settings = [this] {
        return m_fixture->world->book.reminders().settings();
    };
    QTest::keyClick(m_fixture->window.get(), Qt::Key_3, Qt::AltModifier);
    auto *tabs = m_fixture->window->findChild<QTabWidget *>();
    QCOMPARE(tabs->currentIndex(), 2);
    QTest::keyClick(m_fixture->window.get(), Qt::Key_F, Qt::ControlModifier); // nothing to search here
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
    m_fixture->follow();
    QVERIFY(!m_fixture->child<QWidget>("leadMinutes")->isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(settings().isOn);

    // A setting that cannot be saved reverts.
    m_fixture->log.reset();
    const LogCapture log(LogCapture::Unexpected::Passes);
    Statement(m_fixture->world->book.database().handle(),
              QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON reminder_settings BEGIN"
                             " SELECT RAISE(ABORT, 'no'); END"))
        .run();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QVERIFY(m_fixture->child<QCheckBox>("remind")->isChecked());
    QVERIFY(settings().isOn);
}

QTEST_MAIN(TestReminderPage)
#include "tst_reminderpage.moc"
