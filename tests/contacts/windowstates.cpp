// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowstates.h"

#include "windowfixture.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QRadioButton>

namespace {

/// Returns the open dialog, centred over the window: the test's screen is too small for both.
QDialog *dialogOf(const WindowFixture &fixture)
{
    auto *dialog = fixture.window->findChild<QDialog *>();
    if (dialog == nullptr) {
        qFatal("There is no dialog");
    }
    dialog->resize(dialog->sizeHint());
    dialog->move(fixture.window->geometry().center() - dialog->rect().center());
    return dialog;
}

void conferences(WindowFixture &fixture)
{
    fixture.world->ask(QStringLiteral("Join Conference"),
                       QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("880100001")}});
    fixture.follow();
    fixture.selectNumber("880100005");
}

void empty(WindowFixture &fixture)
{
    fixture.world->admin.Login(QStringLiteral("200002"));
    fixture.follow();
}

void foundNothing(WindowFixture &fixture)
{
    fixture.page(0)->filter()->setText(QStringLiteral("没有这样的会议"));
}

void loggedOut(WindowFixture &fixture)
{
    fixture.world->admin.Logout();
    fixture.follow();
}

/// Shows everybody's conferences, with one selected that needs a passcode, and the ended ones.
void everything(WindowFixture &fixture)
{
    fixture.pick("scope", 1);
    fixture.child<QAbstractButton>("ended")->click();
    fixture.selectNumber("880100002");
}

void detail(WindowFixture &fixture)
{
    fixture.selectNumber("880100005");
    fixture.child<QAction>("open")->trigger();
    dialogOf(fixture);
}

void newConference(WindowFixture &fixture)
{
    fixture.click("create");
    QDialog *dialog = dialogOf(fixture);
    dialog->findChild<QRadioButton *>(QStringLiteral("later"))->click();
    auto *invitee = dialog->findChild<QLineEdit *>(QStringLiteral("invitee"));
    QTest::keyClicks(invitee, QStringLiteral("100003"));
    QTest::keyClick(invitee, Qt::Key_Return);
    QTest::keyClicks(invitee, QStringLiteral("10001"));
    QAbstractItemView *popup = dialog->findChild<QCompleter *>()->popup();
    popup->resize(popup->width(), popup->model()->rowCount() * popup->sizeHintForRow(0) + 4);
    popup->move(invitee->mapToGlobal(QPoint(0, invitee->height())));
}

void requests(WindowFixture &fixture)
{
    // Friend requests of 孟欣 and 白露.
    for (const char *account : {"200001", "200002"}) {
        fixture.world->admin.AddContact(QString::fromLatin1(account), QStringLiteral("100001"), QString(),
                                        QStringLiteral("requested"));
    }
    fixture.follow();
    fixture.tabs()->setCurrentIndex(1);
    fixture.page(1)->select(QStringLiteral("100031"));
}

void reminders(WindowFixture &fixture)
{
    fixture.tabs()->setCurrentIndex(2);
}

void damaged(WindowFixture &fixture)
{
    ContactsBook &book = fixture.world->book;
    book.change([&book] {
        book.session().setNotice(QStringLiteral(
            "数据库已损坏，原文件保存为 /home/wang/.local/share/kelvane-contacts/"
            "contacts.db.damaged-20260307T102000。已找回 24 位联系人和 8 个会议，其余内容可能已丢失。"));
        return true;
    });
    fixture.reopen();
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
}

} // namespace

QVector<WindowState> windowStates()
{
    return {{"conferences", conferences},      {"empty", empty},
            {"found-nothing", foundNothing},   {"logged-out", loggedOut},
            {"everything", everything},        {"detail", detail},
            {"new-conference", newConference}, {"requests", requests},
            {"reminders", reminders},          {"damaged", damaged}};
}
