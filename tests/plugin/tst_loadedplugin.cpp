// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configurationfile.h"
#include "logcapture.h"
#include "redirectedfile.h"
#include "scriptedability.h"
#include "semantictext.h"
#include "testcolumns.h"

#include <speakmate/iserviceplugin.h>

#include <QApplication>
#include <QJsonObject>
#include <QPluginLoader>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QWidget>

#include <atomic>
#include <memory>
#include <thread>

/**
 * A host as it would be written elsewhere: it knows the public headers only, loads the plugin like any other,
 * asks on a worker thread and takes the reply on the GUI thread. The contacts application is scripted, the
 * clock stands at 2026-03-07 10:20.
 */
class TestLoadedPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void metadataNamesInterfaceAndClass();
    void interfaceCastAnswersTheDocumentedNames();
    void thereIsOneInstance();
    void eachIntentEndToEnd_data();
    void eachIntentEndToEnd();
    void openDialogue();
    void unknownIntent();
    void throwingApplicationIsAFailedCall();
    void lateRepliesOfACardReachTheHost();
    void replyOfACardBeforeTheHandleIsDropped();
    void aReplyFromAnotherThreadIsQueued();
    void servicesComeAndGoOnManyThreads();
    void configurationDecidesTheTimeout();
    void loadsAndUnloadsAHundredTimes();

private:
    /// service() on a thread of its own.
    IRet ask(IService *service, const QString &semantic) const;

    QPluginLoader m_loader{QStringLiteral(CONTACT_PLUGIN_FILE)};
    IServicePlugin *m_plugin = nullptr;
    std::unique_ptr<LogCapture> m_log;
};

namespace {

const char Tomorrow[] = "{'name':'datetime','value':'{\\\"suggestDatetime\\\":\\\"2026-03-08T10:00:00\\\"}'}";
const char AConference[] =
    "[{'confId':'c1','title':'周会','startTime':1772935200000,'duration':3600000,"
    "'conferenceDialNumber':'4001','participantLimit':10,'status':'0','participants':[]}]";

QString contact()
{
    return QStringLiteral("contact");
}

QString quoted(const QByteArray &json)
{
    return QString::fromUtf8(json).replace(QLatin1Char('\''), QLatin1Char('"'));
}

int cardsAlive()
{
    int count = 0;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (const QWidget *widget : widgets) {
        count += widget->inherits("ConferenceMsgStaticWidget") ? 1 : 0;
    }
    return count;
}

/// Two conferences found, which the reply shows.
Reply *askForTwoConferences(IService *service)
{
    ScriptedAbility::instance().enqueue(
        0, quoted("{'ret':'OK','list':[{'confId':'a','title':'甲'},{'confId':'b','title':'乙'}]}"));
    service->service(
        SemanticText::of("QUERY_CONFERENCE", QByteArray("[").append(Tomorrow).append("]").constData()));
    return service->getServiceReply();
}

bool emitFromCard(QObject *card, const Reply &reply)
{
    return QMetaObject::invokeMethod(card, "signalSendShowMessgae", Qt::DirectConnection,
                                     Q_ARG(Reply, reply));
}

} // namespace

void TestLoadedPlugin::initTestCase()
{
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    m_plugin = qobject_cast<IServicePlugin *>(m_loader.instance());
    QVERIFY(m_plugin != nullptr);
}

void TestLoadedPlugin::init()
{
    ScriptedAbility::instance().reset();
    m_log.reset(new LogCapture);
}

void TestLoadedPlugin::cleanup()
{
    QCOMPARE(ScriptedAbility::instance().alive(), 0);
    m_log.reset();
}

IRet TestLoadedPlugin::ask(IService *service, const QString &semantic) const
{
    IRet result = 1;
    std::thread worker([&result, service, &semantic] { result = service->service(semantic); });
    worker.join();
    return result;
}

void TestLoadedPlugin::metadataNamesInterfaceAndClass()
{
    const QJsonObject metadata = m_loader.metaData();
    QCOMPARE(metadata.value(QStringLiteral("IID")).toString(),
             QStringLiteral("com.kelvane.sonvaro.speakmate.3"));
    QCOMPARE(metadata.value(QStringLiteral("className")).toString(), QStringLiteral("ContactPlugin"));
    QVERIFY(metadata.value(QStringLiteral("debug")).isBool());
#ifdef QT_NO_DEBUG // by the build type; the plugin and this test are built alike
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
    // The card is the host's and outlives the service.
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

void TestLoadedPlugin::lateRepliesOfACardReachTheHost()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    IServicePlugin *sender = nullptr;
    QStringList texts;
    m_plugin->setMessageHandle([&](IServicePlugin *plugin, const Reply &reply) {
        sender = plugin;
        texts.append(reply.displayText.toString());
    });
    m_plugin->releaseService(service);
    QVERIFY(emitFromCard(card.get(), Reply(0, QStringLiteral("改好了。"), 3)));
    QCOMPARE(texts, QStringList{QStringLiteral("改好了。")});
    QCOMPARE(sender, m_plugin);
    m_plugin->setMessageHandle({});
}

void TestLoadedPlugin::replyOfACardBeforeTheHandleIsDropped()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    QVERIFY(emitFromCard(card.get(), Reply(0, QStringLiteral("nobody hears it"), 3)));
    int calls = 0;
    m_plugin->setMessageHandle([&calls](IServicePlugin *, const Reply &) { ++calls; });
    QCoreApplication::processEvents();
    QCOMPARE(calls, 0);
    m_plugin->setMessageHandle({});
    m_plugin->releaseService(service);
}

void TestLoadedPlugin::aReplyFromAnotherThreadIsQueued()
{
    IService *service = m_plugin->createService(contact());
    const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
    QVERIFY(card != nullptr);
    QVector<Qt::HANDLE> threads;
    m_plugin->setMessageHandle(
        [&threads](IServicePlugin *, const Reply &) { threads.append(QThread::currentThreadId()); });
    std::thread worker([&card] { emitFromCard(card.get(), Reply(0, QStringLiteral("from afar"), 3)); });
    worker.join();
    QVERIFY(threads.isEmpty());
    QTRY_COMPARE(threads, QVector<Qt::HANDLE>{QThread::currentThreadId()});
    m_plugin->setMessageHandle({});
    m_plugin->releaseService(service);
}

void TestLoadedPlugin::servicesComeAndGoOnManyThreads()
{
    constexpr int threadCount = 4;
    constexpr int rounds = 500;
    std::atomic<int> made{0};
    std::atomic<int> started{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([this, &made, &started] {
            // All at once: a thread alone would be done before the next one has started.
            ++started;
            while (started.load() < threadCount) {
                std::this_thread::yield();
            }
            for (int round = 0; round < rounds; ++round) {
                IService *first = m_plugin->createService(contact());
                IService *second = m_plugin->createService(contact());
                m_plugin->releaseService(nullptr);
                if (first != nullptr && second != nullptr && first != second &&
                    first->serviceName() == contact()) {
                    ++made;
                }
                m_plugin->releaseService(first);
                m_plugin->releaseService(second);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(made.load(), threadCount * rounds);
}

void TestLoadedPlugin::configurationDecidesTheTimeout()
{
    // Whether the application runs or not, one of the two is the time-out.
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

/// Last, because it takes the plugin that the others use.
void TestLoadedPlugin::loadsAndUnloadsAHundredTimes()
{
    for (int round = 0; round < 100; ++round) {
        const QPointer<QObject> instance(m_loader.instance());
        m_plugin = qobject_cast<IServicePlugin *>(instance.data());
        QVERIFY(m_plugin != nullptr);
        IService *service = m_plugin->createService(contact());
        const std::unique_ptr<QWidget> card(askForTwoConferences(service)->widget);
        QVERIFY(card != nullptr);
        // Plugins that are gone build no cards any more.
        QCOMPARE(cardsAlive(), 1);
        m_plugin->releaseService(service);
        m_plugin->uninit();
        QVERIFY(m_loader.unload());
        QVERIFY(instance.isNull());
        // Its plugin is unloaded, but the host may still show it.
        card->show();
        QVERIFY(emitFromCard(card.get(), Reply(0, QString(), 3)));
        ScriptedAbility::instance().reset();
    }
}

QTEST_MAIN(TestLoadedPlugin)

#include "tst_loadedplugin.moc"
