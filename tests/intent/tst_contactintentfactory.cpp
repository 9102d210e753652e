// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintentfactory.h"
#include "contactintents.h"
#include "semantic/semantic.h"
#include "testcolumns.h"

#include <QFile>
#include <QTest>

#include <memory>

namespace {

class Handler : public IBusinessIntent
{
public:
    explicit Handler(int number) : m_number(number) {}
    int action(const CloudIntent & /*intent*/) override { return m_number; }

private:
    int m_number;
};

template <typename T>
bool isA(const IBusinessIntent *intent)
{
    return dynamic_cast<const T *>(intent) != nullptr;
}

using Check = bool (*)(const IBusinessIntent *);

} // namespace

Q_DECLARE_METATYPE(Check)

class TestContactIntentFactory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachNameHasItsHandler_data();
    void eachNameHasItsHandler();
    void eachHandlerHasATableOfOutcomes_data();
    void eachHandlerHasATableOfOutcomes();
    void otherNamesHaveNone_data();
    void otherNamesHaveNone();
    void eachCallMakesAnObject();
    void thereIsOneFactory();
    void theFirstRegistrationWins();
    void templateRegistersUnderTheClassesName();
    void emptyFactoryKnowsNothing();
};

void TestContactIntentFactory::eachNameHasItsHandler_data()
{
    addColumns<QString, Check>({"name", "isExpected"});
    const auto row = [](const char *name, Check check) {
        QTest::newRow(name) << QString::fromLatin1(name) << check;
    };
    row("CREATE_CONFERENCE", isA<CreateConferenceIntent>);
    row("INVITE_CONFERENCE", isA<InviteConferenceIntent>);
    row("ENETR_ID_CONFERENCE", isA<JoinConferenceIntent>);
    row("ENTER_MY_CONFERENCE", isA<JoinMyConferenceIntent>);
    row("CLOSE_CONFERENCE", isA<CloseConferenceIntent>);
    row("ADD_BUDDY", isA<AddBuddyIntent>);
    row("QUERY_CONFERENCE", isA<QueryConferenceIntent>);
}

void TestContactIntentFactory::eachNameHasItsHandler()
{
    QFETCH(const QString, name);
    QFETCH(const Check, isExpected);
    const std::unique_ptr<IBusinessIntent> handler(ContactIntentFactory::instance()->createIntent(name));
    QVERIFY(handler != nullptr);
    QVERIFY(isExpected(handler.get()));

    auto *replyable = dynamic_cast<IReplyableIntent *>(handler.get());
    QVERIFY(replyable != nullptr);
    QCOMPARE(replyable->getReply()->code, QVariant(-1));
    QVERIFY(!replyable->getReply()->displayText.isValid());
    QVERIFY(!replyable->getReply()->speechText.isValid());
    QVERIFY(replyable->getReply()->widget == nullptr);
    QCOMPARE(replyable->getReply()->type, 0);
    QVERIFY(replyable->getReply()->endOfSession);

    auto *object = dynamic_cast<QObject *>(handler.get());
    QVERIFY(object != nullptr);
    QVERIFY(object->parent() == nullptr);
}

void TestContactIntentFactory::eachHandlerHasATableOfOutcomes_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = ContactIntentFactory::instance()->intentNames();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

/// HandlerTest fails without a table of outcomes, and CMake builds and runs every handler's test.
void TestContactIntentFactory::eachHandlerHasATableOfOutcomes()
{
    QFETCH(const QString, name);
    const std::unique_ptr<IBusinessIntent> handler(ContactIntentFactory::instance()->createIntent(name));
    const auto *object = dynamic_cast<QObject *>(handler.get());
    QVERIFY(object != nullptr);
    const QString className = QString::fromLatin1(object->metaObject()->className());
    QFile test(QStringLiteral(CONTACT_SOURCE_DIR "/tests/intent/tst_%1.cpp").arg(className.toLower()));
    QVERIFY2(test.open(QIODevice::ReadOnly), qPrintable(test.fileName()));
    const QString source = QString::fromUtf8(test.readAll());
    QVERIFY(source.contains(QStringLiteral("HandlerTest::subjectOf<%1, ").arg(className)));
    // Passed to the test's main function, or to the base class of a test that adds to it.
    QVERIFY(source.contains(QStringLiteral("(subject())")) ||
            source.contains(QStringLiteral("public HandlerTestOf<subject>")));
}

void TestContactIntentFactory::otherNamesHaveNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << QString();
    QTest::newRow("lower case") << QStringLiteral("create_conference");
    QTest::newRow("the spelling that the understanding service does not send")
        << QStringLiteral("ENTER_ID_CONFERENCE");
    QTest::newRow("the other one misspelt") << QStringLiteral("ENETR_MY_CONFERENCE");
    QTest::newRow("a blank behind it") << QStringLiteral("ADD_BUDDY ");
}

void TestContactIntentFactory::otherNamesHaveNone()
{
    QFETCH(const QString, name);
    QVERIFY(ContactIntentFactory::instance()->createIntent(name) == nullptr);
}

void TestContactIntentFactory::eachCallMakesAnObject()
{
    ContactIntentFactory *factory = ContactIntentFactory::instance();
    const std::unique_ptr<IBusinessIntent> first(factory->createIntent(QStringLiteral("ADD_BUDDY")));
    const std::unique_ptr<IBusinessIntent> second(factory->createIntent(QStringLiteral("ADD_BUDDY")));
    QVERIFY(first.get() != second.get());
}

void TestContactIntentFactory::thereIsOneFactory()
{
    QCOMPARE(ContactIntentFactory::instance(), ContactIntentFactory::instance());
    QCOMPARE(ContactIntentFactory::instance()->metaObject()->className(), "ContactIntentFactory");
    QCOMPARE(ContactIntentFactory::instance()->metaObject()->superClass()->className(),
             "DynamicRegisterIntentFactory");
}

void TestContactIntentFactory::theFirstRegistrationWins()
{
    DynamicRegisterIntentFactory factory;
    const QString name = QStringLiteral("NEW");
    QVERIFY(factory.registerIntent(name, [] { return new Handler(1); }));
    QVERIFY(!factory.registerIntent(name, [] { return new Handler(2); }));
    QVERIFY(factory.registerIntent(QStringLiteral("new"), [] { return new Handler(3); }));
    const std::unique_ptr<IBusinessIntent> handler(factory.createIntent(name));
    QVERIFY(handler != nullptr);
    QCOMPARE(handler->action(CloudIntent()), 1);
}

void TestContactIntentFactory::templateRegistersUnderTheClassesName()
{
    DynamicRegisterIntentFactory factory;
    QCOMPARE(factory.registerIntent<AddBuddyIntent>(), 1);
    QCOMPARE(factory.registerIntent<AddBuddyIntent>(), 0);
    const std::unique_ptr<IBusinessIntent> handler(factory.createIntent(QStringLiteral("ADD_BUDDY")));
    QVERIFY(isA<AddBuddyIntent>(handler.get()));
}

void TestContactIntentFactory::emptyFactoryKnowsNothing()
{
    DynamicRegisterIntentFactory factory;
    QVERIFY(static_cast<IIntentFactory &>(factory).createIntent(QStringLiteral("ADD_BUDDY")) == nullptr);
}

QTEST_GUILESS_MAIN(TestContactIntentFactory)

#include "tst_contactintentfactory.moc"
