// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"
#include "windowpictures.h"

#include "testcolumns.h"

#include "window/conferencedialog.h"
#include "window/conferencemodel.h"

#include <QAccessible>
#include <QDateTimeEdit>
#include <QRadioButton>

/// The dialog for a new conference.
class TestConferenceDialog : public ContactsDialogTest<ConferenceDialog>
{
    Q_OBJECT

private Q_SLOTS:
    void itMakesWhatItSaysAndSelectsIt();
    void withoutWordsItIsOneForNow();
    void whoCouldNotBeInvitedIsNamed_data();
    void whoCouldNotBeInvitedIsNamed();
    void aRefusalKeepsItOpen();
    void nobodyStartsASecondOneNow();
    void whatIsFarAwayIsSelectedToo();
    void closingMakesNothing();
    void everyFieldHasAName();
    void pictures_data();
    void pictures();

private:
    /// Opens the dialog.
    void prepare() override;
    void invite(const QString &name) const
    {
        field<QLineEdit>("invitee")->setText(name);
        QTest::keyClick(field<QLineEdit>("invitee"), Qt::Key_Return);
    }
    QString selectedNumber() const
    {
        return m_fixture->page(0)->selected(ConferenceModel::NumberRole).toString();
    }
    void clickMake() const { QTest::mouseClick(field<QPushButton>("make"), Qt::LeftButton); }
    /// Waits for the dialog to close and returns the new conference.
    std::optional<Conference> made() const
    {
        const auto isGone = [this] {
            return dialog() == nullptr;
        };
        if (!QTest::qWaitFor(isGone)) {
            return std::nullopt;
        }
        return m_fixture->world->book.conferences().byDialNumber(selectedNumber(), QStringLiteral("u100001"));
    }
};

void TestConferenceDialog::prepare()
{
    m_fixture->page(0)->filter()->setText(QStringLiteral("产品")); // must not hide the new conference
    m_fixture->click("create");
    QVERIFY(dialog() && dialog()->isVisible());
}

void TestConferenceDialog::itMakesWhatItSaysAndSelectsIt()
{
    field<QLineEdit>("title")->setText(QStringLiteral("立项讨论"));
    QTest::mouseClick(field<QRadioButton>("later"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 12));
    const QDateTime start(QDate(2026, 3, 20), QTime(15, 45));
    field<QDateTimeEdit>("start")->setDateTime(start);
    invite(QStringLiteral("小刘"));
    invite(QStringLiteral("赵磊"));
    QTest::keyClicks(field<QLineEdit>("passcodeText"), QStringLiteral("4711"));
    QCOMPARE(field<QLineEdit>("passcodeText")->echoMode(), QLineEdit::Password);
    clickMake();

    const std::optional<Conference> conference = made();
    QVERIFY(conference);
    QCOMPARE(conference->title, QStringLiteral("立项讨论"));
    QCOMPARE(conference->startMsecs, start.toMSecsSinceEpoch());
    QCOMPARE(conference->passcode, QStringLiteral("4711"));
    QCOMPARE(conference->hostId, QStringLiteral("u100001"));
    QCOMPARE(conference->participants.size(), 3);
    QCOMPARE(conference->participants.at(1).account, QStringLiteral("100005"));
    QCOMPARE(conference->participants.at(2).account, QStringLiteral("100031"));
    QCOMPARE(m_fixture->told(), QStringLiteral("会议 %1 已发起。").arg(selectedNumber()));
    m_fixture->world->admin.SetFriendLimit(7);
    m_fixture->follow();
    QCOMPARE(selectedNumber(), conference->dialNumber);
}

void TestConferenceDialog::withoutWordsItIsOneForNow()
{
    QVERIFY(field<QRadioButton>("now")->isChecked());
    QVERIFY(!field<QDateTimeEdit>("start")->isEnabled());
    QTest::keyClick(field<QLineEdit>("title"), Qt::Key_Return);
    const std::optional<Conference> conference = made();
    QVERIFY(conference);
    QCOMPARE(conference->title, QStringLiteral("王小明的视频会议"));
    QCOMPARE(conference->startMsecs, m_fixture->world->nowMsecs);
    QVERIFY(conference->passcode.isEmpty());
    QTRY_VERIFY(m_fixture->child<QWidget>("current")->isVisible());
}

void TestConferenceDialog::whoCouldNotBeInvitedIsNamed_data()
{
    addColumns<bool, int>({"isMuchSmaller", "invited"});
    QTest::newRow("the account has become one for fewer people") << true << 9;
    QTest::newRow("somebody is no contact any more") << false << 1;
}

void TestConferenceDialog::whoCouldNotBeInvitedIsNamed()
{
    QFETCH(bool, isMuchSmaller);
    QFETCH(int, invited);
    ContactsBook &book = m_fixture->world->book;
    const QString userId = QStringLiteral("u100001");
    const QVector<Person> people = book.people().contacts(userId).mid(0, invited + 1);
    for (const Person &person : people) {
        invite(person.account);
    }
    if (isMuchSmaller) {
        QVERIFY(m_fixture->world->admin.SetAccountKind(QStringLiteral("100001"), QStringLiteral("free")));
    } else {
        const std::optional<Person> user = book.people().byUserId(userId);
        QVERIFY(user);
        QVERIFY(book.change([&] {
            book.conferences().removeAll();
            book.people().removeAll();
            book.people().addPerson(*user);
            book.people().addPerson(people.constFirst());
            book.people().setContact(userId, people.constFirst().userId, QString(), true);
            return true;
        }));
        QVERIFY(m_fixture->world->admin.Login(QStringLiteral("100001"))); // logged out by the removal
    }
    clickMake();
    const std::optional<Conference> conference = made();
    QVERIFY(conference);
    QCOMPARE(conference->participants.size(), invited + 1);
    QCOMPARE(m_fixture->told(), QStringLiteral("会议 %1 已发起，但未能邀请：%2。")
                                    .arg(selectedNumber(), people.constLast().shownName()));
}

void TestConferenceDialog::aRefusalKeepsItOpen()
{
    const int before = m_fixture->world->conferences().size();
    field<QLineEdit>("title")->setText(QStringLiteral("重复"));
    field<QRadioButton>("later")->setChecked(true);
    // During 产品周会.
    field<QDateTimeEdit>("start")->setDateTime(QDateTime(QDate(2026, 3, 8), QTime(10, 30)));
    clickMake();
    QVERIFY(dialog() && dialog()->isVisible());
    QCOMPARE(field<QLabel>("newResult")->text(), QStringLiteral("与其他会议时间重复。"));
    QCOMPARE(field<QLineEdit>("title")->text(), QStringLiteral("重复"));
    QCOMPARE(m_fixture->world->conferences().size(), before);
    QVERIFY(!m_fixture->page(0)->filter()->text().isEmpty());
    field<QDateTimeEdit>("start")->setDateTime(QDateTime(QDate(2026, 3, 8), QTime(11, 0)));
    clickMake();
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_fixture->world->conferences().size(), before + 1);
}

void TestConferenceDialog::nobodyStartsASecondOneNow()
{
    QTest::keyClick(dialog(), Qt::Key_Escape);
    QTRY_VERIFY(!dialog());
    m_fixture->world->ask(QStringLiteral("Join My Conference"));
    m_fixture->click("create");
    QVERIFY(!field<QRadioButton>("now")->isEnabled());
    QVERIFY(field<QRadioButton>("later")->isChecked());
    QVERIFY(field<QDateTimeEdit>("start")->isEnabled());
    QCOMPARE(field<QDateTimeEdit>("start")->dateTime(), QDateTime(QDate(2026, 3, 7), QTime(10, 30)));
    QCOMPARE(field<QDateTimeEdit>("start")->minimumDateTime(), QDateTime(QDate(2026, 3, 7), QTime(10, 20)));
}

void TestConferenceDialog::whatIsFarAwayIsSelectedToo()
{
    for (int day = 0; day < 120; ++day) {
        m_fixture->world->admin.AddConference(
            QString::number(1000 + day), QStringLiteral("例会"), QStringLiteral("100001"),
            m_fixture->world->nowMsecs + (20 + day) * 24LL * 60 * MinuteMsecs, 600000, 5, QString(), {});
    }
    field<QRadioButton>("later")->setChecked(true);
    field<QDateTimeEdit>("start")->setDateTime(QDateTime(QDate(2027, 3, 8), QTime(10, 30)));
    clickMake();
    const std::optional<Conference> conference = made();
    QVERIFY(conference);
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(conference->startMsecs).date(), QDate(2027, 3, 8));
}

void TestConferenceDialog::closingMakesNothing()
{
    const QJsonObject before = m_fixture->world->snapshot();
    field<QLineEdit>("title")->setText(QStringLiteral("不要"));
    QTest::mouseClick(field<QPushButton>("close"), Qt::LeftButton);
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_fixture->world->snapshot(), before);
    QVERIFY(m_fixture->told().isEmpty());
}

void TestConferenceDialog::everyFieldHasAName()
{
    const QList<QWidget *> widgets = dialog()->findChildren<QWidget *>();
    int seen = 0;
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible() ||
            widget->objectName().startsWith(QLatin1String("qt_"))) {
            continue;
        }
        ++seen;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                 qPrintable(widget->objectName()));
    }
    QVERIFY(seen >= 8);
}

void TestConferenceDialog::pictures_data()
{
    addColumns<int>({"theme"});
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1"));
    QTest::newRow(qPrintable(QStringLiteral("light-") + scale)) << int(LGuiApplicationHelper::LightType);
    QTest::newRow(qPrintable(QStringLiteral("dark-") + scale)) << int(LGuiApplicationHelper::DarkType);
}

void TestConferenceDialog::pictures()
{
    QFETCH(int, theme);
    const ChosenTheme chosen(theme);
    invite(QStringLiteral("李娜"));
    invite(QStringLiteral("小刘"));
    field<QLineEdit>("passcodeText")->setText(QStringLiteral("4711"));
    keepPicture(dialog(), chosen, QStringLiteral("contacts-new"));
}

QTEST_MAIN(TestConferenceDialog)
#include "tst_conferencedialog.moc"
