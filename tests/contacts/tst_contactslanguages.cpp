// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowfixture.h"

#include "shownlanguage.h"

#include "core/contactslanguage.h"
#include "core/outcome.h"
#include "core/outcometext.h"

#include <QAction>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QScrollBar>

namespace {

/// Fills @p world with people and conferences whose names are digits, and logs in account 1.
void nameWithDigits(SampleWorld &world)
{
    Administration &admin = world.admin;
    QVERIFY(admin.Reset());
    for (const char *account : {"1", "2", "3", "4"}) {
        QVERIFY(admin.AddPerson(QString::fromLatin1(account), QString(5, QLatin1Char(*account)),
                                *account == '1' ? QStringLiteral("paying") : QStringLiteral("free")));
    }
    const QString user = QStringLiteral("1");
    QVERIFY(admin.AddContact(user, QStringLiteral("2"), QStringLiteral("202"), QStringLiteral("friend")));
    QVERIFY(admin.AddContact(user, QStringLiteral("3"), QString(), QStringLiteral("colleague")));
    QVERIFY(admin.AddContact(user, QStringLiteral("4"), QString(), QStringLiteral("colleague")));
    QVERIFY(admin.AddContact(user, QStringLiteral("4"), QString(), QStringLiteral("requested")));
    QVERIFY(admin.AddContact(QStringLiteral("2"), user, QString(), QStringLiteral("requested")));
    QVERIFY(admin.AddContact(QStringLiteral("3"), user, QString(), QStringLiteral("requested")));
    const auto add = [&admin, &world](const char *number, const char *host, qint64 startsIn) {
        QVERIFY(!admin
                     .AddConference(QString::fromLatin1(number), QString::fromLatin1(number),
                                    QString::fromLatin1(host), world.nowMsecs + startsIn, HourMsecs, 10,
                                    QStringLiteral("1"),
                                    {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")})
                     .isEmpty());
    };
    add("8801", "2", -HourMsecs / 2);
    add("8802", "1", HourMsecs);
    add("8803", "2", 24 * HourMsecs);
    add("8804", "2", 240 * HourMsecs);
    add("8805", "1", -24 * HourMsecs);
    QVERIFY(admin.Login(user));
}

} // namespace

/// The window is in one language, whatever the names in it, and so is the program's terminal output.
class TestContactsLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void pagesAreInOneLanguage_data() { addLanguages(); }
    void pagesAreInOneLanguage();
    void emptyListsSayWhyInOneLanguage_data() { addLanguages(); }
    void emptyListsSayWhyInOneLanguage();
    void dialogsAreInOneLanguage_data() { addLanguages(); }
    void dialogsAreInOneLanguage();
    void outcomesAreToldInOneLanguage_data() { addLanguages(); }
    void outcomesAreToldInOneLanguage();
    void noTextIsCutInTheNarrowestWindow_data() { addLanguages(); }
    void noTextIsCutInTheNarrowestWindow();
    void theEnglishWindow();
    void aConferenceWithoutTitleIsCalledWhatTheFieldShows();
    void theProgramSpeaksTheLanguageItIsTold_data();
    void theProgramSpeaksTheLanguageItIsTold();
    void anUnknownLanguageIsRefused();

private:
    static void addLanguages();
    void open(const QString &code);
    void joinTheRunningConference();
    void verify(QWidget &root, int least);
    QDialog *dialog() const;
    void close(QDialog *dialog) const;

    std::unique_ptr<ProgramLanguage> m_language;
    std::unique_ptr<WindowFixture> m_fixture;
};

void TestContactsLanguages::init()
{
    m_language.reset(new ProgramLanguage(contactsLanguage()));
}

void TestContactsLanguages::cleanup()
{
    m_fixture.reset();
    m_language.reset();
    QLocale::setDefault(QLocale::c());
}

void TestContactsLanguages::addLanguages()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = contactsLanguage().codes();
    QCOMPARE(codes, QStringList({QStringLiteral("en"), QStringLiteral("zh_CN")}));
    for (const QString &code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

/// Opens the window in the language @p code.
void TestContactsLanguages::open(const QString &code)
{
    QVERIFY(m_language->choose(code));
    m_fixture = std::make_unique<WindowFixture>();
    nameWithDigits(*m_fixture->world);
    m_fixture->reopen(ContactsWindow::Tools::ForDevelopers);
    QVERIFY(m_fixture->waitUntilShown());
}

void TestContactsLanguages::joinTheRunningConference()
{
    m_fixture->world->ask(QStringLiteral("Join Conference"),
                          QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("8801")}});
    m_fixture->follow();
}

void TestContactsLanguages::verify(QWidget &root, int least)
{
    QFETCH(QString, code);
    const QRegularExpression strange = ShownLanguage::strangeTo(code);
    QList<QWidget *> widgets = root.findChildren<QWidget *>();
    widgets.prepend(&root);
    int found = 0;
    for (const QWidget *widget : qAsConst(widgets)) {
        // Qt's list of folders in a file dialog: their names are not translated.
        if (widget->inherits("QFileDialogComboBox")) {
            continue;
        }
        const QStringList texts = ShownLanguage::textsOf(*widget);
        for (const QString &text : texts) {
            QVERIFY2(!text.contains(strange),
                     qUtf8Printable(QStringLiteral("%1 %2: %3")
                                        .arg(QLatin1String(widget->metaObject()->className()),
                                             widget->objectName(), text)));
            found += text.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY2(found >= least, qPrintable(QString::number(found)));
}

QDialog *TestContactsLanguages::dialog() const
{
    return m_fixture->window->findChild<QDialog *>();
}

void TestContactsLanguages::close(QDialog *dialog) const
{
    QPointer<QDialog> gone(dialog);
    dialog->close();
    QTRY_VERIFY(gone.isNull());
}

void TestContactsLanguages::pagesAreInOneLanguage()
{
    QFETCH(QString, code);
    open(code);
    joinTheRunningConference();
    m_fixture->pick("scope", 1);
    m_fixture->child<QAbstractButton>("ended")->click();
    QCOMPARE(m_fixture->conferences()->model()->rowCount(), 4);
    QVERIFY(m_fixture->child<QWidget>("current")->isVisible());
    QVERIFY(m_fixture->child<QWidget>("requests")->isVisibleTo(m_fixture->page(1)));
    m_fixture->click("copyCurrentNumber");
    verify(*m_fixture->window, 120);
    m_fixture->click("leave");
    verify(*m_fixture->window, 120);
    verify(*m_fixture->child<QPushButton>("developer")->menu(), 2);
}

void TestContactsLanguages::emptyListsSayWhyInOneLanguage()
{
    QFETCH(QString, code);
    open(code);
    QSet<QString> hints;
    const auto look = [this, &hints] {
        verify(*m_fixture->window, 60);
        for (int page : {0, 1}) {
            hints.insert(m_fixture->page(page)->table()->accessibleDescription());
        }
    };
    look();
    for (int page : {0, 1}) {
        m_fixture->page(page)->filter()->setText(QStringLiteral("77"));
    }
    look();
    m_fixture->page(1)->filter()->clear();
    for (int scope : {1, 2}) {
        m_fixture->pick("peopleScope", scope);
        look();
    }
    QVERIFY(m_fixture->world->admin.Login(QStringLiteral("4")));
    m_fixture->page(0)->filter()->clear();
    m_fixture->follow();
    for (int scope : {0, 1, 2}) {
        m_fixture->pick("peopleScope", scope);
        look();
    }
    m_fixture->world->admin.Logout();
    m_fixture->follow();
    look();
    QVERIFY2(hints.size() >= 8, qPrintable(QString::number(hints.size())));
}

void TestContactsLanguages::dialogsAreInOneLanguage()
{
    QFETCH(QString, code);
    open(code);
    for (const char *number : {"8802", "8803"}) {
        m_fixture->selectNumber(number); // as host and as guest
        m_fixture->child<QAction>("open")->trigger();
        verify(*dialog(), 25);
        close(dialog());
    }
    m_fixture->selectNumber("8802");
    m_fixture->click("delete");
    verify(*dialog(), 3);
    close(dialog());
    m_fixture->click("create");
    auto *invitee = dialog()->findChild<QLineEdit *>(QStringLiteral("invitee"));
    for (const char *typed : {"9", "2"}) {
        invitee->setText(QString::fromLatin1(typed)); // matches nobody, then somebody
        QTest::keyClick(invitee, Qt::Key_Return);
        QLineEdit *title = dialog()->findChild<QLineEdit *>(QStringLiteral("title"));
        // It contains the user's own name.
        QVERIFY(title->placeholderText().contains(QStringLiteral("11111")));
        verify(*dialog(), 18);
    }
    close(dialog());
    m_fixture->tabs()->setCurrentIndex(1);
    m_fixture->click("addFriend");
    for (const char *typed : {"9", "1"}) {
        m_fixture->child<QLineEdit>("friendAccount")->setText(QString::fromLatin1(typed));
        m_fixture->click("sendRequest");
        verify(*dialog(), 6);
    }
    close(dialog());
    m_fixture->child<QAction>("sample")->trigger();
    verify(*dialog(), 3);
    close(dialog());
    m_fixture->tabs()->setCurrentIndex(0);
    m_fixture->selectNumber("8802");
    m_fixture->child<QAction>("export")->trigger();
    QVERIFY(qobject_cast<QFileDialog *>(dialog()) != nullptr);
    verify(*dialog(), 15);
    close(dialog());
}

void TestContactsLanguages::outcomesAreToldInOneLanguage()
{
    QFETCH(QString, code);
    QVERIFY(m_language->choose(code));
    const QRegularExpression strange = ShownLanguage::strangeTo(code);
    QSet<QString> texts;
    for (const QLatin1String &word :
         {Outcome::Ok, Outcome::Return, Outcome::NotFound, Outcome::NoConference,
          Outcome::ConferenceNotStarted, Outcome::TimeOverlap, Outcome::IsYourFriend,
          Outcome::ExceedFriendLimit, Outcome::IsYourself, Outcome::InOtherConference,
          Outcome::InvalidPasscode, Outcome::NotLoggedIn, Outcome::TooFrequent, Outcome::ParticipantsFull,
          Outcome::UpdateFailed, Outcome::InternalError}) {
        const QString text = outcomeText(word);
        QVERIFY2(!text.isEmpty() && !text.contains(strange), qUtf8Printable(text));
        texts.insert(text);
    }
    QCOMPARE(texts.size(), 16);
}

void TestContactsLanguages::noTextIsCutInTheNarrowestWindow()
{
    QFETCH(QString, code);
    open(code);
    joinTheRunningConference();
    m_fixture->window->resize(m_fixture->window->minimumSizeHint());
    for (int page = 0; page < m_fixture->tabs()->count(); ++page) {
        m_fixture->tabs()->setCurrentIndex(page);
        QCoreApplication::processEvents();
        const auto buttons = m_fixture->window->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            QVERIFY2(!button->isVisible() || button->width() >= button->sizeHint().width(),
                     qUtf8Printable(button->text()));
        }
    }
    QVERIFY2(m_fixture->window->width() <= 800, qPrintable(QString::number(m_fixture->window->width())));
}

void TestContactsLanguages::theEnglishWindow()
{
    open(QStringLiteral("en"));
    QCOMPARE(m_fixture->window->windowTitle(),
             QStringLiteral("Conferences – 11111 – Contacts and Conferences"));
    QCOMPARE(m_fixture->child<QPushButton>("create")->text(), QStringLiteral("&New Conference…"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::State), QStringLiteral("Running"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Start), QStringLiteral("Today 09:50"));
    QCOMPARE(m_fixture->cell(0, ConferenceModel::Duration), QStringLiteral("60 min"));
    QCOMPARE(m_fixture->cell(2, ConferenceModel::Start), QStringLiteral("Tomorrow 10:20"));
    // All columns fit into the window's initial size.
    QCOMPARE(m_fixture->conferences()->horizontalScrollBar()->maximum(), 0);
    QTest::keyClick(m_fixture->window.get(), Qt::Key_E, Qt::AltModifier);
    QCOMPARE(m_fixture->tabs()->currentIndex(), 1);
    QCOMPARE(m_fixture->child<QLabel>("requestText")->text(),
             QStringLiteral("202 (2) wants to be your friend. Further requests: 1."));
    const QDir folder(QStringLiteral(CONTACT_BINARY_DIR "/screenshots"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    for (int page = 0; page < m_fixture->tabs()->count(); ++page) {
        m_fixture->tabs()->setCurrentIndex(page);
        QCoreApplication::processEvents();
        QVERIFY(m_fixture->window->grab().save(
            folder.filePath(QStringLiteral("contacts-english-%1.png").arg(page))));
    }
}

void TestContactsLanguages::aConferenceWithoutTitleIsCalledWhatTheFieldShows()
{
    open(QStringLiteral("en"));
    m_fixture->click("create");
    dialog()->findChild<QPushButton *>(QStringLiteral("make"))->click();
    QTRY_COMPARE(m_fixture->page(0)->selected(ConferenceModel::ConferenceRole).value<Conference>().title,
                 QStringLiteral("11111's video conference"));
}

void TestContactsLanguages::theProgramSpeaksTheLanguageItIsTold_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("isChinese");
    const QStringList none;
    const QStringList chinese{QStringLiteral("--language"), QStringLiteral("zh")};
    const QStringList english{QStringLiteral("--language"), QStringLiteral("en")};
    QTest::newRow("Chinese locale") << none << QStringLiteral("zh_CN.UTF-8") << true;
    QTest::newRow("English locale") << none << QStringLiteral("en_GB.UTF-8") << false;
    QTest::newRow("no locale") << none << QStringLiteral("C.UTF-8") << false;
    QTest::newRow("Chinese despite the locale") << chinese << QStringLiteral("en_GB.UTF-8") << true;
    QTest::newRow("English despite the locale") << english << QStringLiteral("zh_CN.UTF-8") << false;
}

void TestContactsLanguages::theProgramSpeaksTheLanguageItIsTold()
{
    QFETCH(QStringList, options);
    QFETCH(QString, locale);
    QFETCH(bool, isChinese);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), locale);
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(APPLICATION), options + QStringList{QStringLiteral("--help")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString help = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(help.contains(QStringLiteral("--language <code>")), qUtf8Printable(help));
    const QRegularExpression strange(isChinese ? QStringLiteral("[A-Za-z]{2,} [A-Za-z]{2,} [A-Za-z]{2,}")
                                               : QStringLiteral("\\p{Han}"));
    QVERIFY2(!help.contains(strange), qUtf8Printable(help));
}

void TestContactsLanguages::anUnknownLanguageIsRefused()
{
    QProcess program;
    program.start(QStringLiteral(APPLICATION), {QStringLiteral("--language"), QStringLiteral("fr")});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 1);
    const QByteArray errors = program.readAllStandardError();
    QVERIFY2(errors.endsWith("There is no translation to 'fr'; --language takes one of: en, zh_CN.\n"),
             errors.constData());
}

QTEST_MAIN(TestContactsLanguages)
#include "tst_contactslanguages.moc"
