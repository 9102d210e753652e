// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "handlerrun.h"

#include "conferencecardinterface.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

Expected withCard(int code, const char *text, Expected::CardOrder order, int card, const char *conferences)
{
    Expected expected = texts(code, text);
    expected.type = 11;
    expected.order = order;
    expected.card = card;
    expected.conferences = QString::fromLatin1(conferences);
    return expected;
}

/// Records the cards announced while it lives, and attaches them as the dispatcher does.
class Announcements : public QObject
{
public:
    Announcements()
    {
        connect(ConferenceCardInterface::instance(), &ConferenceCardInterface::sentActionSignals, this,
                [this](const int &action, const QVariant &payload, Reply *reply) {
                    list.append({action, payload, reply, reply->displayText.toString(), reply->type});
                    reply->type |= Reply::Card;
                    reply->widget = cardOf();
                });
    }

    QVector<Announcement> list;
};

QString conferencesOf(const QVariant &payload)
{
    const QVector<ContactDetailMsg> conferences =
        payload.userType() == qMetaTypeId<ContactCreatedConferenceDetail>()
            ? payload.value<ContactCreatedConferenceDetail>().conferences
            : payload.value<ContactQueryConferenceDetail>().conferences;
    QStringList ids;
    for (const ContactDetailMsg &conference : conferences) {
        ids.append(conference.confId);
    }
    return ids.join(QLatin1Char(' '));
}

void reply(HandlerRun &run, const CloudIntent &intent)
{
    const Announcements announcements;
    ScriptedAbility &ability = ScriptedAbility::instance();
    ability.setAnswer(QStringLiteral("Open Conference List"), 0, QStringLiteral("{\"ret\":\"OK\"}"));
    run.codeOfReply = run.handler->handleReply(run.code, intent);
    run.actionsOfReply = ability.actions().mid(run.requests.size());
    run.reply = *run.handler->getReply();
    run.cards = announcements.list;
}

} // namespace

QString quoted(const char *json)
{
    return QString::fromUtf8(json).replace(QLatin1Char('\''), QLatin1Char('"'));
}

CloudIntent intentWith(const char *slotArray)
{
    const QJsonDocument slotValues = QJsonDocument::fromJson(quoted(slotArray).toUtf8());
    CloudIntent intent;
    const bool readable =
        slotValues.isArray() && intent.parse(QJsonObject{{QStringLiteral("intent"), QStringLiteral("ANY")},
                                                         {QStringLiteral("slots"), slotValues.array()}});
    if (!readable) {
        QTest::qFail(slotArray, __FILE__, __LINE__);
    }
    return intent;
}

Script answers(const char *json, const char *second)
{
    Script script{0, {quoted(json)}};
    if (second != nullptr) {
        script.answers.append(quoted(second));
    }
    return script;
}

Script callFails(int code)
{
    return {code, {QString()}};
}

HandlerRun runHandler(IReplyableIntent *handler, const CloudIntent &intent, const Script &script)
{
    ScriptedAbility &ability = ScriptedAbility::instance();
    ability.reset();
    for (const QString &answer : script.answers) {
        ability.enqueue(script.callCode, answer);
    }

    HandlerRun run;
    run.handler.reset(handler);
    run.code = handler->action(intent);
    run.requests = ability.requests();
    reply(run, intent);
    return run;
}

HandlerRun replyOf(IReplyableIntent *handler, int code, const CloudIntent &intent)
{
    ScriptedAbility::instance().reset();
    HandlerRun run;
    run.handler.reset(handler);
    run.code = code;
    reply(run, intent);
    return run;
}

QWidget *cardOf()
{
    static char card = 0;
    // Never dereferenced: a handler only passes the pointer on.
    return reinterpret_cast<QWidget *>(&card);
}

Expected texts(int code, const char *text)
{
    Expected expected;
    expected.code = code;
    expected.text = QString::fromUtf8(text);
    expected.type = 3;
    return expected;
}

Expected textsThenList(int code, const char *text)
{
    Expected expected = texts(code, text);
    expected.opensList = true;
    return expected;
}

Expected cardBefore(int code, const char *text, int card, const char *conferences)
{
    return withCard(code, text, Expected::CardBeforeText, card, conferences);
}

Expected cardAfter(int code, const char *text, int card, const char *conferences)
{
    return withCard(code, text, Expected::CardAfterText, card, conferences);
}

Expected cardAddedToTexts(int code, const char *text, int card, const char *conferences)
{
    return withCard(code, text, Expected::CardAddedToTexts, card, conferences);
}

Expected untouched()
{
    Expected expected;
    expected.code = -1;
    return expected;
}

void compareRun(const HandlerRun &run, const Expected &expected)
{
    QCOMPARE(run.codeOfReply, run.code);
    QCOMPARE(run.reply.code, QVariant(expected.code));
    QCOMPARE(run.reply.displayText.toString(), expected.text);
    QCOMPARE(run.reply.speechText, run.reply.displayText);
    QCOMPARE(run.reply.type, expected.type);
    QVERIFY(run.reply.endOfSession);
    QCOMPARE(run.actionsOfReply,
             expected.opensList ? QStringList{QStringLiteral("Open Conference List")} : QStringList());

    if (expected.order == Expected::NoCard) {
        QVERIFY(run.cards.isEmpty());
        QVERIFY(run.reply.widget == nullptr);
        return;
    }
    QCOMPARE(run.cards.size(), 1);
    const Announcement &card = run.cards.first();
    QCOMPARE(card.action, expected.card);
    QCOMPARE(card.reply, run.handler->getReply());
    QCOMPARE(conferencesOf(card.payload), expected.conferences);
    const bool textCameFirst = card.textThen == expected.text;
    QCOMPARE(textCameFirst, expected.order != Expected::CardBeforeText);
    const int typeThen = expected.order == Expected::CardAfterText      ? 11
                         : expected.order == Expected::CardAddedToTexts ? 3
                                                                        : 0;
    QCOMPARE(card.typeThen, typeThen);
    QCOMPARE(run.reply.widget, cardOf());
}

void setSlotText(CloudIntent &intent, int slot, const QString &text)
{
    intent.slotList[slot].map.insert(QStringLiteral("value"), text);
}
