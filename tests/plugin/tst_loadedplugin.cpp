// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "loadedplugintest.h"

#include "configurationfile.h"
#include "redirectedfile.h"
#include "testcolumns.h"

#include <QJsonObject>
#include <QThread>

namespace {

const char AConference[] =
    "[{'confId':'c1','title':'周会','startTime':1772935200000,'duration':3600000,"
    "'conferenceDialNumber':'4001','participantLimit':10,'status':'0','participants':[]}]";

} // namespace

/// What a host gets from the plugin: metadata, each intent from text to reply, configuration.
class TestLoadedPlugin : public LoadedPluginTest
{
    Q_OBJECT

private Q_SLOTS:
    void metadataNamesInterfaceAndClass();
    void interfaceCastAnswersTheDocumentedNames();
    void thereIsOneInstance();
    void eachIntentEndToEnd_data();
    void eachIntentEndToEnd();
    void openDialogue();
    void unknownIntent();
    void throwingApplicationIsAFailedCall();
    void configurationDecidesTheTimeout();
};

void TestLoadedPlugin::metadataNamesInterfaceAndClass()
{
    const QJsonObject metadata = m_loader.metaData();
    QCOMPARE(metadata.value(QStringLiteral("IID")).toString(),
             QStringLiteral("com.kelvane.sonvaro.speakmate.3"));
    QCOMPARE(metadata.value(QStringLiteral("className")).toString(), QStringLiteral("ContactPlugin"));
    QVERIFY(metadata.value(QStringLiteral("debug")).isBool());
#ifdef QT_NO_DEBUG // set by the build type, which the plugin and this test share
    QVERIFY(!metadata.value(QStringLiteral("debug")).toBool());
#else
    QVERIFY(metadata.value(QStringLiteral("debug")).toBool());
#endif
    QCOMPARE(metadata.value(QStringLiteral("version")).toInt() >> 8, QT_VERSION >> 8);
    QVERIFY(metadata.value(QStringLiteral("MetaData")).toObject().isEmpty());
}

void TestLoadedPlugin::interfaceCastAnswersTheDocumentedNames()
{
    QObject *object = m_loader.instance();
    QCOMPARE(object->metaObject()->className(), "ContactPlugin");
    QCOMPARE(object->qt_metacast("ContactPlugin"), static_cast<void *>(object));
    QCOMPARE(object->qt_metacast("IServicePlugin"), static_cast<void *>(m_plugin));
    QCOMPARE(object->qt_metacast("com.kelvane.sonvaro.speakmate.3"), static_cast<void *>(m_plugin));
    QCOMPARE(object->qt_metacast("QObject"), static_cast<void *>(object));
    QVERIFY(object->qt_metacast("com.kelvane.sonvaro.speakmate.2") == nullptr);
    QVERIFY(object->qt_metacast("IService") == nullptr);
    QVERIFY(object->qt_metacast(nullptr) == nullptr);
}

void TestLoadedPlugin::thereIsOneInstance()
{
    QCOMPARE(m_loader.instance(), m_loader.instance());
    QPluginLoader other(QStringLiteral(CONTACT_PLUGIN_FILE));
    QCOMPARE(other.instance(), m_loader.instance());
}

void TestLoadedPlugin::eachIntentEndToEnd_data()
{
    addColumns<QString, QString, QString, QString, int, int, QString, bool>(
        {"semantic", "action", "parameters", "answer", "ret", "code", "text", "hasCard"});
    const auto row = [](const char *name, const QString &semantic, const char *action, const char *parameters,
                        const QByteArray &answer, int ret, int code, const char *text, bool hasCard) {
        QTest::newRow(name) << semantic << QString::fromUtf8(action) << QString::fromUtf8(parameters)
                            << quoted(answer) << ret << code << QString::fromUtf8(text) << hasCard;
    };
    const QByteArray atTomorrow = QByteArray("[{'name':'name','value':'张三'},") + Tomorrow + "]";
    const QByteArray listed = QByteArray("{'ret':'OK','list':") + AConference + "}";

    row("create at once",
        SemanticText::of("CREATE_CONFERENCE", "[{'name':'name','value':'张三'},{'name':'datetime'}]"),
        "Create Conference", R"({"members":[{"name":"张三","userId":""}]})", "{'ret':'OK'}", 0, 0,
        "好的，现在为您发起视频会议。", false);
    row("create for tomorrow", SemanticText::of("CREATE_CONFERENCE", atTomorrow.constData()),
        "Create Conference", R"({"members":[{"name":"张三","userId":""}],"startTime":1772935200000})", listed,
        0, 0, "好的，为您预约如下。", true);
    row("invite", SemanticText::of("INVITE_CONFERENCE", "[{'name':'name','value':'李四'}]"), "Invite Members",
        R"({"members":[{"name":"李四","userId":""}]})",
        "{'ret':'Return','users':[{'name':'李四','status':'Duplicate','duplicate_list':[{'name':'李四','"
        "userId':'1',"
        "'account':'a'},{'name':'李四','userId':'2','account':'b'}]}]}",
        -21, -16003, "您需要邀请以下哪位好友:", true);
    row("join by number", SemanticText::of("ENETR_ID_CONFERENCE", "[{'name':'id','value':'4001'}]"),
        "Join Conference", R"({"conferenceId":"4001","password":""})", "{'ret':'Invalid Passcode'}", -21,
        -16014, "请输入密码:", false);
    row("join my conference", SemanticText::of("ENTER_MY_CONFERENCE"), "Join My Conference", "",
        "{'ret':'Time Overlap','list':[{'confId':'a'},{'confId':'b'}]}", -21, -16008,
        "以下是您要参与的视频会议:", true);
    row("close", SemanticText::of("CLOSE_CONFERENCE"), "Exit Conference", "", "{'ret':'No Conference'}", -21,
        -16005, "您没有正在开始的视频会议。", false);
    row("add a friend", SemanticText::of("ADD_BUDDY", "[{'name':'account','value':'zhang'}]"), "Add Friends",
        R"({"userId":"zhang"})", "{'ret':'OK'}", 0, 0, "已成功发送好友申请。", false);
    row("query a time", SemanticText::of("QUERY_CONFERENCE", atTomorrow.constData()), "Search Conference",
        R"({"endTime":1772985600000,"startTime":1772935200000})", listed, 0, 0,
        "以下是您查询的视频会议:", true);
}

void TestLoadedPlugin::eachIntentEndToEnd()
{
    QFETCH(const QString, semantic);
    QFETCH(const QString, action);
    QFETCH(const QString, parameters);
    QFETCH(const QString, answer);
    QFETCH(const int, ret);
    QFETCH(const int, code);
    QFETCH(const QString, text);
    QFETCH(const bool, hasCard);

    IService *service = m_plugin->createService(contact());
    QVERIFY(service != nullptr);
    ScriptedAbility::instance().enqueue(0, answer);
    if (ret != 0) {
        m_log->expect(QtCriticalMsg, QStringLiteral("Handle specify intent failed:  %1").arg(code));
    }

    QCOMPARE(ask(service, semantic), ret);
    const AbilityEvent request = ScriptedAbility::instance().onlyRequest();
    QCOMPARE(request.action, action);
    QCOMPARE(request.parameters, parameters);
    QVERIFY(request.thread != QThread::currentThreadId());

    const Reply reply = *service->getServiceReply();
    QCOMPARE(reply.code, QVariant(code));
    QCOMPARE(reply.displayText, QVariant(text));
    QCOMPARE(reply.speechText, QVariant(text));
    QCOMPARE(reply.type, hasCard ? 11 : 3);
    QCOMPARE(reply.widget != nullptr, hasCard);
    QVERIFY(reply.endOfSession);
    if (hasCard) {
        QVERIFY(reply.widget->inherits("ConferenceMsgStaticWidget"));
        QVERIFY(reply.widget->parent() == nullptr);
        QCOMPARE(cardsAlive(), 1);
    }
    m_plugin->releaseService(service);
    // The host owns the card, which outlives the service.
    if (hasCard) {
        reply.widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(reply.widget));
        delete reply.widget;
    }
}

void TestLoadedPlugin::openDialogue()
{
    IService *service = m_plugin->createService(contact());
    QCOMPARE(ask(service, SemanticText::openDialogue("几点？", "请问几点？")), 0);
    const Reply *reply = service->getServiceReply();
    QCOMPARE(reply->code, QVariant(0));
    QCOMPARE(reply->displayText.toString(), QStringLiteral("几点？"));
    QCOMPARE(reply->speechText.toString(), QStringLiteral("请问几点？"));
    QCOMPARE(reply->type, 3);
    QVERIFY(ScriptedAbility::instance().events().isEmpty());
    m_plugin->releaseService(service);
}

void TestLoadedPlugin::unknownIntent()
{
    IService *service = m_plugin->createService(contact());
    m_log->expect(QtCriticalMsg, QStringLiteral("Unsupport this intent:  \"ENTER_ID_CONFERENCE\""));
    m_log->expect(QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -21"));
    QCOMPARE(ask(service, SemanticText::of("ENTER_ID_CONFERENCE", "[{'name':'id','value':'4001'}]")), -21);
    QCOMPARE(service->getServiceReply()->code, QVariant(-21));
    QCOMPARE(service->getServiceReply()->displayText.toString(), QStringLiteral("对不起，暂不支持该功能。"));
    m_plugin->releaseService(service);
}

void TestLoadedPlugin::throwingApplicationIsAFailedCall()
{
    IService *service = m_plugin->createService(contact());
    ScriptedAbility::instance().throwFromNextRequest("the library is unwell");
    m_log->expect(QtWarningMsg,
                  QStringLiteral("The contact ability failed: \"Exit Conference\" the library is unwell"));
    m_log->expect(QtCriticalMsg, QStringLiteral("Handle specify intent failed:  -1"));
    QCOMPARE(ask(service, SemanticText::of("CLOSE_CONFERENCE")), -21);
    const Reply *reply = service->getServiceReply();
    QCOMPARE(reply->code, QVariant(-1));
    QCOMPARE(reply->displayText.toString(), QStringLiteral("已尝试执行，但操作失败，请稍后重试。"));
    QCOMPARE(reply->type, 3);
    QCOMPARE(ScriptedAbility::instance().alive(), 0);
    m_plugin->releaseService(service);
}

void TestLoadedPlugin::configurationDecidesTheTimeout()
{
    // One of the two is the time-out, depending on whether the application runs.
    const ConfigurationFile file(R"({"Contact":{"TimeOut":"600","MaxTimeOut":"700"}})");
    const RedirectedFile redirected("/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json", file.path());
    QCOMPARE(m_plugin->init(), 0);
    QCOMPARE(redirected.opened(), 1);

    IService *service = m_plugin->createService(contact());
    ScriptedAbility::instance().enqueue(0, quoted("{'ret':'OK'}"));
    QCOMPARE(ask(service, SemanticText::of("CLOSE_CONFERENCE")), 0);
    const int timeout = ScriptedAbility::instance().onlyRequest().timeout;
    QVERIFY(timeout == 600 || timeout == 700);
    m_plugin->uninit();
    m_plugin->releaseService(service);
}

QTEST_MAIN(TestLoadedPlugin)
#include "tst_loadedplugin.moc"
