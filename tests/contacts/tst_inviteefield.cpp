// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sampleworld.h"

#include "window/inviteefield.h"
#include "window/passcodefield.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

/// The fields for a new conference's people and passcode.
class TestInviteeField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contactsAreFoundByNameRemarkAndAccount();
    void onlyContactsAreFound();
    void whatIsTypedIsCompleted();
    void returnPicksTheOnlyOne();
    void returnPicksWhileSomebodyIsOffered();
    void anExactMatchWins();
    void whoIsPickedCanBeRemoved();
    void noMoreThanFitCanBePicked();
    void passcodesAreDotsUntilAskedFor();
};

namespace {

struct Field
{
    explicit Field(int most = 5) : field(world.book, most)
    {
        field.show();
        field.activateWindow();
        edit = field.findChild<QLineEdit *>(QStringLiteral("invitee"));
        list = field.findChild<QListWidget *>(QStringLiteral("invitees"));
        completer = field.findChild<QCompleter *>();
    }
    void type(const QString &text) const
    {
        edit->clear();
        // The way an input method commits text.
        QInputMethodEvent typed;
        typed.setCommitString(text);
        QCoreApplication::sendEvent(edit, &typed);
    }
    QStringList offered() const
    {
        QStringList texts;
        for (int row = 0; row < completer->completionCount(); ++row) {
            texts.append(completer->completionModel()->index(row, 0).data().toString());
        }
        return texts;
    }
    QStringList accounts() const
    {
        QStringList accounts;
        for (const Person &person : field.people()) {
            accounts.append(person.account);
        }
        return accounts;
    }

    SampleWorld world;
    InviteeField field;
    QLineEdit *edit;
    QListWidget *list;
    QCompleter *completer;
};

QStringList found(SampleWorld &world, const QString &text, int limit = 20)
{
    QStringList accounts;
    const QVector<Person> people =
        world.book.people().contactsStartingWith(QStringLiteral("u100001"), text, limit);
    for (const Person &person : people) {
        accounts.append(person.account);
    }
    return accounts;
}

} // namespace

void TestInviteeField::contactsAreFoundByNameRemarkAndAccount()
{
    SampleWorld world;
    QCOMPARE(found(world, QStringLiteral("刘")), QStringList(QStringLiteral("100005")));
    QCOMPARE(found(world, QStringLiteral("小刘")), QStringList(QStringLiteral("100005")));
    QCOMPARE(found(world, QStringLiteral("10001")),
             (QStringList{QStringLiteral("100011"), QStringLiteral("100012"), QStringLiteral("100013")}));
    QCOMPARE(found(world, QStringLiteral("张伟")).size(), 3);
    QCOMPARE(found(world, QStringLiteral("张伟"), 2).size(), 2);
    QVERIFY(found(world, QStringLiteral("%")).isEmpty());
    QVERIFY(found(world, QStringLiteral("伟")).isEmpty());
    QVERIFY(world.admin.AddPerson(QStringLiteral("300001"), QStringLiteral("Anna"), QStringLiteral("free")));
    QVERIFY(world.admin.AddContact(QStringLiteral("100001"), QStringLiteral("300001"), QString(),
                                   QStringLiteral("friend")));
    QCOMPARE(found(world, QStringLiteral("aN")), QStringList(QStringLiteral("300001")));
}

void TestInviteeField::onlyContactsAreFound()
{
    SampleWorld world;
    QVERIFY(found(world, QStringLiteral("孟欣")).isEmpty());
    QVERIFY(found(world, QStringLiteral("王小明")).isEmpty());
}

void TestInviteeField::whatIsTypedIsCompleted()
{
    Field field;
    QVERIFY(QTest::qWaitForWindowExposed(&field.field));
    field.type(QStringLiteral("李"));
    QVERIFY(field.completer->popup()->isVisible());
    QCOMPARE(field.offered().size(), 4); // 李静, 李娜 and two 李明
    field.type(QStringLiteral("李娜"));
    QCOMPARE(field.offered(), QStringList(QStringLiteral("李娜  100003")));
    QTest::keyClick(field.completer->popup(), Qt::Key_Down);
    QTest::keyClick(field.completer->popup(), Qt::Key_Return);
    QCOMPARE(field.accounts(), QStringList(QStringLiteral("100003")));
    QVERIFY(field.edit->text().isEmpty());
    QCOMPARE(field.list->count(), 1);
    // Picked people are not offered again.
    field.type(QStringLiteral("李娜"));
    QVERIFY(!field.completer->popup()->isVisible());
}

void TestInviteeField::returnPicksTheOnlyOne()
{
    Field field;
    QSignalSpy told(&field.field, &InviteeField::told);
    field.edit->setText(QStringLiteral("张伟"));
    QTest::keyClick(field.edit, Qt::Key_Return);
    QCOMPARE(told.takeFirst().at(0).toString(), QStringLiteral("有多位联系人符合，请从列表中选择。"));
    field.edit->setText(QStringLiteral("无名"));
    QTest::keyClick(field.edit, Qt::Key_Return);
    QCOMPARE(told.takeFirst().at(0).toString(), QStringLiteral("联系人中没有“无名”。"));
    QVERIFY(field.field.people().isEmpty());
    field.edit->setText(QStringLiteral("赵磊"));
    QTest::keyClick(field.edit, Qt::Key_Return);
    QCOMPARE(field.field.people().value(0).name, QStringLiteral("赵磊"));
    QVERIFY(told.isEmpty());
}

void TestInviteeField::returnPicksWhileSomebodyIsOffered()
{
    Field field;
    QVERIFY(QTest::qWaitForWindowExposed(&field.field));
    field.type(QStringLiteral("李娜"));
    QVERIFY(field.completer->popup()->isVisible());
    QVERIFY(!field.completer->popup()->selectionModel()->hasSelection());
    // The open popup gets the keys.
    QTest::keyClick(field.completer->popup(), Qt::Key_Return);
    QCOMPARE(field.accounts(), QStringList(QStringLiteral("100003")));
    QVERIFY(!field.completer->popup()->isVisible());
    QSignalSpy told(&field.field, &InviteeField::told);
    field.type(QStringLiteral("李"));
    QTest::keyClick(field.completer->popup(), Qt::Key_Enter);
    QCOMPARE(told.size(), 1);
    QCOMPARE(field.accounts().size(), 1);
    QVERIFY(field.completer->popup()->isVisible());
}

void TestInviteeField::anExactMatchWins()
{
    Field field;
    const auto add = [&field](const QString &account, const QString &name) {
        return field.world.admin.AddPerson(account, name, QStringLiteral("free")) &&
               field.world.admin.AddContact(QStringLiteral("100001"), account, QString(),
                                            QStringLiteral("friend"));
    };
    QVERIFY(add(QStringLiteral("300001"), QStringLiteral("程昱")));
    QVERIFY(add(QStringLiteral("300002"), QStringLiteral("程昱文")));
    field.edit->setText(QStringLiteral("程昱"));
    QTest::keyClick(field.edit, Qt::Key_Return);
    QCOMPARE(field.accounts(), QStringList(QStringLiteral("300001")));
    // Two people of the same name are ambiguous.
    QVERIFY(add(QStringLiteral("300003"), QStringLiteral("程昱文")));
    QVERIFY(add(QStringLiteral("300004"), QStringLiteral("程昱文静")));
    QSignalSpy told(&field.field, &InviteeField::told);
    field.edit->setText(QStringLiteral("程昱文"));
    QTest::keyClick(field.edit, Qt::Key_Return);
    QCOMPARE(told.size(), 1);
    QCOMPARE(field.accounts().size(), 1);
}

void TestInviteeField::whoIsPickedCanBeRemoved()
{
    Field field;
    auto *remove = field.field.findChild<QPushButton *>(QStringLiteral("removeInvitee"));
    for (const auto &name : {QStringLiteral("赵磊"), QStringLiteral("孙丽"), QStringLiteral("吴敏")}) {
        field.edit->setText(name);
        QTest::keyClick(field.edit, Qt::Key_Return);
    }
    const QStringList all = field.accounts();
    QCOMPARE(all.size(), 3);
    QVERIFY(!remove->isEnabled());
    field.list->setCurrentRow(1);
    QTest::keyClick(field.list, Qt::Key_Delete);
    QCOMPARE(field.accounts(), (QStringList{all.at(0), all.at(2)}));
    field.list->setCurrentRow(0);
    QTest::mouseClick(remove, Qt::LeftButton);
    QCOMPARE(field.accounts(), QStringList(all.at(2)));
    QCOMPARE(field.list->count(), 1);
}

void TestInviteeField::noMoreThanFitCanBePicked()
{
    Field field(1);
    QSignalSpy told(&field.field, &InviteeField::told);
    for (const auto &name : {QStringLiteral("赵磊"), QStringLiteral("孙丽")}) {
        field.edit->setText(name);
        QTest::keyClick(field.edit, Qt::Key_Return);
    }
    QCOMPARE(field.field.people().size(), 1);
    QCOMPARE(told.takeFirst().at(0).toString(), QStringLiteral("最多可以邀请 1 人。"));
}

void TestInviteeField::passcodesAreDotsUntilAskedFor()
{
    PasscodeField field;
    field.setText(QStringLiteral("246810"));
    auto *edit = field.findChild<QLineEdit *>(QStringLiteral("passcodeText"));
    auto *reveal = field.findChild<QPushButton *>(QStringLiteral("reveal"));
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
    QVERIFY(!edit->displayText().contains(QLatin1Char('2')));
    QTest::keyClick(reveal, Qt::Key_Space);
    QCOMPARE(edit->displayText(), QStringLiteral("246810"));
    QTest::keyClick(reveal, Qt::Key_Space);
    QVERIFY(!edit->displayText().contains(QLatin1Char('2')));
    QCOMPARE(field.text(), QStringLiteral("246810"));
}

QTEST_MAIN(TestInviteeField)
#include "tst_inviteefield.moc"
