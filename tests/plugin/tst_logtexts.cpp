// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "contactintentfactory.h"
#include "contactservice.h"
#include "fakeprocesstable.h"
#include "logcapture.h"
#include "scriptedability.h"
#include "semantictext.h"
#include "testcolumns.h"

#include <QLoggingCategory>
#include <QPushButton>
#include <QtTest>

#include <functional>

using Turn = std::function<void()>;
Q_DECLARE_METATYPE(Turn)

namespace {

int endedStreams = 0;

} // namespace

// The linker's names for QDebug's destructor when wrapped, see CMakeLists.txt: a record's text is put
// together in one QDebug.
extern "C" {

void __real__ZN6QDebugD1Ev(QDebug *self);

void __wrap__ZN6QDebugD1Ev(QDebug *self)
{
    ++endedStreams;
    __real__ZN6QDebugD1Ev(self);
}
}

/// A record whose level is off costs nothing: its text is not even put together.
class TestLogTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noTextIsPutTogetherForNobody_data();
    void noTextIsPutTogetherForNobody();
};

namespace {

const char NamesAndTime[] =
    "[{'name':'name','value':'张三'},"
    "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2126-03-08T10:00:00\\\"}'}]";
const char DayBefore[] =
    "[{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}]";
const char SomeNotFound[] =
    R"({"ret":"Return","users":[{"name":"张三","status":"OK"},{"name":"甲","status":"Not Found"}]})";

/// The streams in which texts were put together while @p turn ran.
int streamsDuring(const Turn &turn)
{
    endedStreams = 0;
    turn();
    return endedStreams;
}

} // namespace

void TestLogTexts::init()
{
    ScriptedAbility::instance().reset();
}

void TestLogTexts::cleanup()
{
    QLoggingCategory::setFilterRules(QString());
}

void TestLogTexts::noTextIsPutTogetherForNobody_data()
{
    addColumns<QString, Turn>({"level", "turn"});
    const auto says = [](const char *level, const char *name, const QString &semantic,
                         const QString &answer = QStringLiteral(R"({"ret":"OK"})")) {
        QTest::newRow(name) << QString::fromLatin1(level) << Turn([semantic, answer] {
            ScriptedAbility::instance().enqueue(0, answer);
            ContactService service(QStringLiteral("contact"), ContactIntentFactory::instance(), 10);
            service.service(semantic);
            service.getServiceReply();
        });
    };
    const auto presses = [](const char *name, const QString &text) {
        QTest::newRow(name) << QStringLiteral("debug") << Turn([text] {
            ScriptedAbility::instance().enqueue(0, QStringLiteral(R"({"ret":"OK"})"));
            ConferenceMsgStaticWidget card;
            buildEdited(card);
            Q_EMIT CardSamples::button(card, text)->clicked();
        });
    };
    says("debug", "invite", SemanticText::of("INVITE_CONFERENCE", "[{'name':'name','value':'张三'}]"));
    says("debug", "create for a time", SemanticText::of("CREATE_CONFERENCE", NamesAndTime));
    says("info", "create for a time, what is told", SemanticText::of("CREATE_CONFERENCE", NamesAndTime));
    says("info", "create, some not found", SemanticText::of("CREATE_CONFERENCE", NamesAndTime),
         QString::fromUtf8(SomeNotFound));
    says("warning", "create without people and time", SemanticText::of("CREATE_CONFERENCE"));
    says("debug", "query a time", SemanticText::of("QUERY_CONFERENCE", NamesAndTime));
    says("debug", "query a day that is over", SemanticText::of("QUERY_CONFERENCE", DayBefore));
    says("warning", "query without a time", SemanticText::of("QUERY_CONFERENCE"));
    says("debug", "add a friend", SemanticText::of("ADD_BUDDY", "[{'name':'account','value':'zhang'}]"));
    says("critical", "join without a number", SemanticText::of("ENETR_ID_CONFERENCE"));
    says("critical", "an unknown intent", SemanticText::of("UNKNOWN"));
    says("debug", "an open dialogue", SemanticText::openDialogue("几点？", "请问几点？"));
    says("debug", "an unreadable sentence", QStringLiteral("你好"));
    presses("modify on a card", QStringLiteral("修 改"));
    presses("cancel on a card", QStringLiteral("取 消"));
}

void TestLogTexts::noTextIsPutTogetherForNobody()
{
    QFETCH(const QString, level);
    QFETCH(const Turn, turn);
    const FakeProcessTable oneInstance(1);
    const LogCapture log(LogCapture::Unexpected::Passes);
    const QString only = QStringLiteral("default=false\ndefault.%1=true").arg(level);
    QLoggingCategory::setFilterRules(only);
    const int written = streamsDuring(turn);
    const int records = log.records().size();
    QVERIFY2(records > 0, "nothing is logged here at all");
    QVERIFY2(written >= records, "the linker has not wrapped the destructor");
    QLoggingCategory::setFilterRules(QStringLiteral("default=false"));
    QCOMPARE(streamsDuring(turn), 0);
    QCOMPARE(log.records().size(), records);
}

QTEST_MAIN(TestLogTexts)
#include "tst_logtexts.moc"
