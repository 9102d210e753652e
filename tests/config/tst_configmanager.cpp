// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configfolder.h"
#include "logcapture.h"
#include "testcolumns.h"
#include "virtualplace.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <type_traits>

static_assert(std::is_abstract_v<IConfig>);
static_assert(std::is_base_of_v<QObject, ConfigManager> && std::is_base_of_v<IConfig, ConfigManager>);

namespace {

const QString StringsOnly = QStringLiteral("This config can only contain string&dict");

QJsonObject objectOf(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

/// Records calls of the virtual steps.
class WatchedConfig : public ConfigManager
{
public:
    bool query(const QString &key, QString &value) override
    {
        ++stringQueries;
        return ConfigManager::query(key, value);
    }
    bool query(const QString &key, QStringList &values) override { return ConfigManager::query(key, values); }
    bool fromJson(const QJsonValue &root) override
    {
        ++trees;
        return ConfigManager::fromJson(root);
    }
    bool createMap(const QString &prefix, const QJsonValue &value) override
    {
        prefixes.append(prefix);
        return ConfigManager::createMap(prefix, value);
    }

    int stringQueries = 0;
    int trees = 0;
    QStringList prefixes;
};

} // namespace

/// The values of a configuration, the virtual steps, and the layout of the classes.
class TestConfigManager : public QObject
{
    Q_OBJECT

private:
    ConfigFolder m_folder;

private Q_SLOTS:
    void objectsBecomePaths()
    {
        const LogCapture log;
        ConfigManager config;
        QVERIFY(config.fromJson(
            objectOf(R"({"Contact": {"TimeOut": "5000", "Deep": {"er": "x"}}, "top": "y", "empty": {}})")));
        QCOMPARE(valueOf(config, "/Contact/TimeOut"), QStringLiteral("5000"));
        QCOMPARE(valueOf(config, "/Contact/Deep/er"), QStringLiteral("x"));
        QCOMPARE(valueOf(config, "/top"), QStringLiteral("y"));
        QVERIFY(config.contains(QStringLiteral("/top")));
        QVERIFY(!config.contains(QStringLiteral("/empty")));
        QVERIFY(!config.contains(QStringLiteral("/Contact")));
        QCOMPARE(log.lines(), QStringList());
    }

    void otherKeysMiss_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("a slash at the end") << QStringLiteral("/Contact/TimeOut/");
        QTest::newRow("other case") << QStringLiteral("/contact/timeout");
        QTest::newRow("no slash in front") << QStringLiteral("Contact/TimeOut");
        QTest::newRow("an object") << QStringLiteral("/Contact");
        QTest::newRow("nothing") << QString();
    }
    void otherKeysMiss()
    {
        QFETCH(QString, key);
        ConfigManager config;
        QVERIFY(config.fromJson(objectOf(R"({"Contact": {"TimeOut": "5000"}})")));
        const LogCapture log;
        QString value = QStringLiteral("before");
        QStringList values{QStringLiteral("before")};
        QVERIFY(!config.query(key, value));
        QVERIFY(!config.query(key, values));
        QVERIFY(!config.contains(key));
        QCOMPARE(value, QStringLiteral("before"));
        QCOMPARE(values, QStringList{QStringLiteral("before")});
        const QString line = QStringLiteral("debug: Cannot find config:  \"%1\"").arg(key);
        QCOMPARE(log.lines(), QStringList({line, line}));
    }

    void listsAreSplitAtBars_data()
    {
        addColumns<QString, QStringList>({"text", "parts"});
        QTest::newRow("two") << QStringLiteral("a|b")
                             << QStringList({QStringLiteral("a"), QStringLiteral("b")});
        QTest::newRow("one") << QStringLiteral("a b,c") << QStringList{QStringLiteral("a b,c")};
        QTest::newRow("two bars in a row")
            << QStringLiteral("a||b") << QStringList({QStringLiteral("a"), QString(), QStringLiteral("b")});
        QTest::newRow("bars at the ends")
            << QStringLiteral("|a|") << QStringList({QString(), QStringLiteral("a"), QString()});
        QTest::newRow("empty text") << QString() << QStringList{QString()};
    }
    void listsAreSplitAtBars()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, parts);
        WatchedConfig config;
        QVERIFY(config.fromJson(QJsonObject{{QStringLiteral("list"), text}}));
        QStringList values{QStringLiteral("before")};
        QVERIFY(config.query(QStringLiteral("/list"), values));
        QCOMPARE(values, parts);
        QCOMPARE(config.stringQueries, 1);
    }

    void onlyStringsAndObjectsAreTaken_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("number") << QByteArray(R"({"A": "kept", "Contact": {"TimeOut": 30}, "Z": "lost"})");
        QTest::newRow("bool") << QByteArray(R"({"A": "kept", "B": true, "Z": "lost"})");
        QTest::newRow("array") << QByteArray(R"({"A": "kept", "B": ["x"], "Z": "lost"})");
        QTest::newRow("null") << QByteArray(R"({"A": "kept", "B": null, "Z": "lost"})");
    }
    void onlyStringsAndObjectsAreTaken()
    {
        QFETCH(QByteArray, json);
        const QString path = m_folder.fileWith(json);
        ConfigManager config;
        LogCapture log;
        const QString failed = QStringLiteral("Parse Config failed:  \"%1\"").arg(path);
        log.expect(QtCriticalMsg, StringsOnly);
        log.expect(QtCriticalMsg, failed);
        QVERIFY(!config.init(path));
        QCOMPARE(log.texts(QtCriticalMsg), QStringList({StringsOnly, failed}));
        QVERIFY(config.contains(QStringLiteral("/A")));
        QVERIFY(!config.contains(QStringLiteral("/Z")));
    }

    void valueThatIsNoObjectHoldsNothing()
    {
        const LogCapture log;
        ConfigManager config;
        QVERIFY(config.createMap(QStringLiteral("/"), QStringLiteral("text")));
        QCOMPARE(log.lines(), QStringList());
    }

    void stepsGoThroughTheVirtualFunctions()
    {
        WatchedConfig config;
        QVERIFY(config.init(m_folder.fileWith(R"({"a": {"b": {"c": "x"}}})")));
        QCOMPARE(config.trees, 1);
        QCOMPARE(config.prefixes,
                 QStringList({QStringLiteral("/"), QStringLiteral("/a/"), QStringLiteral("/a/b/")}));
    }

    void dumpWritesEveryEntryInKeyOrder()
    {
        ConfigManager config;
        QVERIFY(config.fromJson(objectOf(R"({"b": "2", "a": {"z": "1"}})")));
        LogCapture log(LogCapture::Unexpected::Passes);
        config.dump();
        QCOMPARE(log.lines(), QStringList({QStringLiteral("critical: { \"/a/z\" ,  \"1\" }"),
                                           QStringLiteral("critical: { \"/b\" ,  \"2\" }")}));
    }

    void recordsCarryNoSource()
    {
        LogCapture log(LogCapture::Unexpected::Passes);
        ConfigManager config;
        config.init(m_folder.fileWith("{}"));
        config.init(m_folder.fileWith("{\"a\": 1}"));
        config.init(QStringLiteral("/nowhere"));
        config.dump();
        JsonConfigLoader().unload();
        const QVector<LogRecord> records = log.records();
        QVERIFY(records.size() >= 6);
        for (const LogRecord &record : records) {
            QCOMPARE(record.category, QByteArray("default"));
            QVERIFY2(record.file.isNull() && record.function.isNull() && record.line == 0,
                     qPrintable(record.text));
        }
    }

    void virtualFunctionsStandInTheFixedOrder()
    {
        using StringQuery = bool (IConfig::*)(const QString &, QString &);
        using ListQuery = bool (IConfig::*)(const QString &, QStringList &);
        QCOMPARE(virtualPlaceOf(StringQuery(&IConfig::query)), 2);
        QCOMPARE(virtualPlaceOf(ListQuery(&IConfig::query)), 3);
        QCOMPARE(virtualPlaceOf(&IConfig::fromJson), 4);
        QCOMPARE(virtualPlaceOf(&IConfig::contains), 5);

        using OwnStringQuery = bool (ConfigManager::*)(const QString &, QString &);
        using OwnListQuery = bool (ConfigManager::*)(const QString &, QStringList &);
        const auto first = FirstPlaceAfterQObject;
        QCOMPARE(virtualPlaceOf(&ConfigManager::contains), first);
        QCOMPARE(virtualPlaceOf(OwnStringQuery(&ConfigManager::query)), first + 1);
        QCOMPARE(virtualPlaceOf(OwnListQuery(&ConfigManager::query)), first + 2);
        QCOMPARE(virtualPlaceOf(&ConfigManager::fromJson), first + 3);
        QCOMPARE(virtualPlaceOf(&ConfigManager::createMap), first + 4);
        QCOMPARE(virtualPlaceOf(&ConfigManager::init), first + 5);
        QCOMPARE(virtualPlaceOf(&ConfigManager::dump), first + 6);

        QCOMPARE(virtualPlaceOf(&JsonConfigLoader::load), first);
        QCOMPARE(virtualPlaceOf(&JsonConfigLoader::unload), first + 1);
    }

    void objectsHoldNothingElse()
    {
        QCOMPARE(sizeof(JsonConfigLoader), sizeof(QObject) + sizeof(void *));
        QCOMPARE(sizeof(ConfigManager), sizeof(QObject) + sizeof(IConfig) + sizeof(JsonConfigLoader) +
                                            sizeof(QMap<QString, QString>));
    }

    void oneInstanceForTheProcess()
    {
        QVERIFY(ConfigManager::instance() != nullptr);
        QCOMPARE(ConfigManager::instance(), ConfigManager::instance());
        QCOMPARE(ConfigManager::instance()->metaObject()->className(), "ConfigManager");
        QCOMPARE(JsonConfigLoader().metaObject()->className(), "JsonConfigLoader");
    }
};

QTEST_GUILESS_MAIN(TestConfigManager)
#include "tst_configmanager.moc"
