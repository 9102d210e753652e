// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactservicetest.h"

#include "untouchedreply.h"

#include <QTest>

/// The service's own answers: its name, unreadable texts, open dialogues, unknown intents.
class TestContactService : public ContactServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void knowsItsNameAndPriority();
    void startsWithoutAnAnswer();
    void withoutAFactoryItCannotDoAnything();
    void unreadableTextLeavesTheReply_data();
    void unreadableTextLeavesTheReply();
    void unreadableTextIsLogged();
    void openDialogueGivesTheVoiceAnswer();
    void openDialogueAnswersFromThenOn();
    void anOwnAnswerGoesBeforeTheOpenDialogue();
    void unknownIntentIsAnsweredByTheService();
    void noIntentIsAnsweredAsAnUnknownOne();
    void subclassReplacesHandleIntent();

private:
    /// Fails unless @p semantic is answered, and logged, as the unknown intent @p loggedName.
    void compareUnknownIntent(const QString &semantic, const QString &loggedName) const;
};

void TestContactService::knowsItsNameAndPriority()
{
    QCOMPARE(m_service->serviceName(), QStringLiteral("contact"));
    QCOMPARE(m_service->servicePriority(), 10);
    QVERIFY(m_service->canHandle(QStringLiteral("contact")));
    QVERIFY(!m_service->canHandle(QStringLiteral("Contact")));
    QVERIFY(!m_service->canHandle(QString()));
    ContactService other(QStringLiteral("else"), nullptr, -3);
    QCOMPARE(other.serviceName(), QStringLiteral("else"));
    QCOMPARE(other.servicePriority(), -3);
}

void TestContactService::startsWithoutAnAnswer()
{
    const Reply *reply = m_service->getServiceReply();
    compareUntouched(*reply);
    QCOMPARE(m_service->getServiceReply(), reply);
}

void TestContactService::withoutAFactoryItCannotDoAnything()
{
    ContactService service(QStringLiteral("contact"), nullptr, 10);
    QCOMPARE(service.service(SemanticText::of("SCRIPTED")), -20);
    QCOMPARE(service.service(QStringLiteral("nonsense")), -20);
    QCOMPARE(service.service(SemanticText::openDialogue("a", "b")), -20);
    const SourceRecord record{QtCriticalMsg, QStringLiteral("This service cannot do anything."),
                              serviceSignature()};
    compareRecords(*m_log, SourceName, {record, record, record});
    QVERIFY(service.getServiceReply() != nullptr);
}

void TestContactService::unreadableTextLeavesTheReply_data()
{
    QTest::addColumn<QString>("semantic");
    QTest::newRow("nothing") << QString();
    QTest::newRow("not JSON") << QStringLiteral("你好");
    QTest::newRow("cut off") << QStringLiteral("{\"intent\":{\"semantic\":[");
    QTest::newRow("no intent object") << QStringLiteral("{\"semantic\":[]}");
    QTest::newRow("an empty intent object") << QStringLiteral("{\"intent\":{}}");
    QTest::newRow("no semantic array") << QStringLiteral("{\"intent\":{\"shouldEndSession\":false}}");
    QTest::newRow("a broken intent") << QStringLiteral("{\"intent\":{\"semantic\":[{\"intent\":1}]}}");
}

void TestContactService::unreadableTextLeavesTheReply()
{
    QFETCH(const QString, semantic);
    QCOMPARE(m_service->service(semantic), -100);
    const Reply *reply = m_service->getServiceReply();
    QCOMPARE(reply->code, QVariant(-1));
    QVERIFY(!reply->displayText.isValid());
    QCOMPARE(reply->type, 0);

    QVERIFY(m_service->service(SemanticText::of("UNKNOWN")) == -21);
    QCOMPARE(m_service->service(semantic), -100);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
}

void TestContactService::unreadableTextIsLogged()
{
    QCOMPARE(m_service->service(QStringLiteral("你好")), -100);
    compareRecords(
        *m_log, SourceName,
        {{QtDebugMsg, QStringLiteral("Parse the semantic json error: \"你好\""), serviceSignature()}});
}

void TestContactService::openDialogueGivesTheVoiceAnswer()
{
    const QString semantic = SemanticText::openDialogue("几点？", "请问几点？");
    QCOMPARE(m_service->service(semantic), 0);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
    const QString text = streamed("Parse the semantic json analyzeIsShouldEndSession is false", semantic);
    compareRecords(*m_log, SourceName, {{QtDebugMsg, text, serviceSignature()}});
}

void TestContactService::openDialogueAnswersFromThenOn()
{
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    const ScriptedHandler *handler = prepareHandler();
    QCOMPARE(m_service->service(SemanticText::of("SCRIPTED")), 0);
    QCOMPARE(handler->actions, 1);
    compareReply(m_service->getServiceReply(), 0, "几点？", "请问几点？", 3);
    QCOMPARE(handler->replies, 0);

    QCOMPARE(m_service->service(SemanticText::openDialogue("跟谁？", "跟谁？")), 0);
    compareReply(m_service->getServiceReply(), 0, "跟谁？", "跟谁？", 3);
}

void TestContactService::anOwnAnswerGoesBeforeTheOpenDialogue()
{
    QCOMPARE(m_service->service(SemanticText::openDialogue("几点？", "请问几点？")), 0);
    QCOMPARE(m_service->service(SemanticText::of("UNKNOWN")), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
}

void TestContactService::compareUnknownIntent(const QString &semantic, const QString &loggedName) const
{
    QCOMPARE(m_service->service(semantic), -21);
    compareReply(m_service->getServiceReply(), -21, "对不起，暂不支持该功能。", "对不起，暂不支持该功能。",
                 3);
    compareRecords(
        *m_log, SourceName,
        {{QtCriticalMsg, QStringLiteral("Unsupport this intent:  ") + loggedName, handleIntentSignature()},
         {QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -21"), serviceSignature()}});
}

void TestContactService::unknownIntentIsAnsweredByTheService()
{
    compareUnknownIntent(SemanticText::of("scripted"), QStringLiteral("\"scripted\""));
}

void TestContactService::noIntentIsAnsweredAsAnUnknownOne()
{
    compareUnknownIntent(SemanticText::withoutIntents(), QStringLiteral("\"\""));
}

void TestContactService::subclassReplacesHandleIntent()
{
    class Replaced : public ContactService
    {
    public:
        using ContactService::ContactService;
        int handleIntent(const CloudIntent &intent) override
        {
            seen = intent.name;
            return -24;
        }
        QString seen;
    };
    Replaced service(QStringLiteral("contact"), m_factory.get(), 10);
    QCOMPARE(service.service(SemanticText::of("WHATEVER")), -21);
    QCOMPARE(service.seen, QStringLiteral("WHATEVER"));
    QCOMPARE(service.getServiceReply()->code, QVariant(-24));
    QCOMPARE(service.getServiceReply()->type, 3);
}

QTEST_GUILESS_MAIN(TestContactService)
#include "tst_contactservice.moc"
