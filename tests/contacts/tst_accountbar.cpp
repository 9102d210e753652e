// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "core/statement.h"

/// The bar that shows and changes the user.
class TestAccountBar : public ContactsWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void loggingInAndOutChangesWhatIsShown();
    void choosingNobodyLogsOut();
    void whoCannotLogInIsNotShown();
    void theAccountsKindIsChanged();
};

void TestAccountBar::loggingInAndOutChangesWhatIsShown()
{
    m_fixture->click("logout");
    m_fixture->follow();
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 0);
    // An empty table shows a hint.
    const QImage hinted = m_fixture->conferences()->viewport()->grab().toImage();
    m_fixture->conferences()->setHint(QString());
    QVERIFY(m_fixture->conferences()->viewport()->grab().toImage() != hinted);
    QCOMPARE(m_fixture->page(1)->table()->model()->rowCount(), 0);
    QCOMPARE(m_fixture->child<QComboBox>("account")->currentText(), QStringLiteral("未登录"));
    QVERIFY(!m_fixture->child<QPushButton>("logout")->isEnabled());
    QVERIFY(!m_fixture->child<QPushButton>("create")->isEnabled());
    auto *account = m_fixture->child<QComboBox>("account");
    m_fixture->pick("account", account->findData(QStringLiteral("100002")));
    QCOMPARE(m_fixture->world->snapshot().value(QLatin1String("user")).toString(), QStringLiteral("100002"));
    m_fixture->follow();
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 2);
    QCOMPARE(m_fixture->child<QComboBox>("kind")->currentText(), QStringLiteral("免费"));
}

void TestAccountBar::choosingNobodyLogsOut()
{
    m_fixture->pick("account", 0);
    QVERIFY(!m_fixture->world->book.session().user());
    m_fixture->follow();
    QCOMPARE(m_fixture->child<QComboBox>("account")->currentText(), QStringLiteral("未登录"));
    QVERIFY(!m_fixture->child<QPushButton>("logout")->isEnabled());
}

void TestAccountBar::whoCannotLogInIsNotShown()
{
    auto *account = m_fixture->child<QComboBox>("account");
    const QString before = account->currentText();
    // The person is gone since the list was read.
    Statement(m_fixture->world->book.database().handle(),
              QStringLiteral("DELETE FROM person WHERE user_id = 'u200002'"))
        .run();
    m_fixture->pick("account", account->findData(QStringLiteral("200002")));
    QCOMPARE(account->currentText(), before);
    QCOMPARE(account->findData(QStringLiteral("200002")), -1);
}

void TestAccountBar::theAccountsKindIsChanged()
{
    m_fixture->pick("kind", 1);
    const QJsonObject me =
        m_fixture->world->snapshot().value(QLatin1String("people")).toArray().at(0).toObject();
    QCOMPARE(me.value(QLatin1String("kind")).toString(), QStringLiteral("free"));
}

QTEST_MAIN(TestAccountBar)
#include "tst_accountbar.moc"
