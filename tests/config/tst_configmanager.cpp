// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configmanager.h"
#include "logcapture.h"
#include "testcolumns.h"
#include "virtualplace.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <type_traits>

static_assert(std::is_abstract_v<IConfig>);
static_assert(std::is_base_of_v<QObject, ConfigManager> && std::is_base_of_v<IConfig, ConfigManager>);

namespace {

const QString StringsOnly = QStringLiteral("This config can only contain string&dict");
const QString RootMustBeObject = QStringLiteral("config root must be a object.");

QJsonObject objectOf(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

QString valueOf(ConfigManager &config, const char *key)
{
    QString value = QStringLiteral("(untouched)");
    config.query(QString::fromUtf8(key), value);
    return value;
}

/// Takes root's right to read everything from this process while it lives; the others have no such right.
class NobodysRights
{
public:
    explicit NobodysRights(const QString &folder)
    {
        if (::geteuid() != 0) {
            m_taken = true;
            return;
        }
        // The folder is root's and closed to others.
        m_taken = ::chmod(QFile::encodeName(folder).constData(), 0755) == 0 && ::seteuid(Nobody) == 0;
        m_changed = m_taken;
    }
    ~NobodysRights()
    {
        if (m_changed && ::seteuid(0) != 0) {
            qFatal("cannot become root again");
        }
    }
    Q_DISABLE_COPY(NobodysRights)

    bool taken() const { return m_taken; }

private:
    static constexpr uid_t Nobody = 65534;

    bool m_taken = false;
    bool m_changed = false;
};

/// Sees the steps that derived classes may replace.
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

class TestConfigManager : public QObject
{
    Q_OBJECT

private:
    QString fileWith(const QByteArray &content)
    {
        QFile file(m_folder.filePath(QStringLiteral("config.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write the file");
        }
        return file.fileName();
    }

    /// A valid file of exactly @p size bytes.
    QString padded(const char *name, int size)
    {
        const QByteArray json(R"({"a": "1"})");
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(json.leftJustified(size)) != size) {
            qFatal("cannot write the file");
        }
        return file.fileName();
    }

    QString selfLink()
    {
        const QString path = m_folder.filePath(QStringLiteral("self"));
        QFile::link(path, path);
        return path;
    }

    QTemporaryDir m_folder;

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
        const QString path = fileWith(json);
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

    void unusableFilesAreRejected_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("not JSON") << QByteArray("TimeOut=5000");
        QTest::newRow("array") << QByteArray(R"(["Contact"])");
        QTest::newRow("broken off") << QByteArray("{\"Contact\": {\"TimeOut\": \"50");
        QTest::newRow("two thousand levels deep")
            << QByteArray("{\"a\":").repeated(2000) + "{}" + QByteArray("}").repeated(2000);
    }
    void unusableFilesAreRejected()
    {
        QFETCH(QByteArray, content);
        ConfigManager config;
        LogCapture log;
        log.expect(QtCriticalMsg, RootMustBeObject);
        QVERIFY(!config.init(fileWith(content)));
        QCOMPARE(log.lines(), QStringList{QStringLiteral("critical: ") + RootMustBeObject});
    }

    void missingFileIsReported()
    {
        ConfigManager config;
        LogCapture log;
        log.expect(QtCriticalMsg, RootMustBeObject);
        QVERIFY(!config.init(QStringLiteral("/nowhere/config.json")));
        QCOMPARE(log.lines(),
                 QStringList({QStringLiteral(
                                  "debug: Load config failed, can not open file: \"/nowhere/config.json\""),
                              QStringLiteral("critical: ") + RootMustBeObject}));
    }

    void onlyRegularFilesAreRead_data()
    {
        addColumns<QString, QString>({"path", "reason"});
        const QString fifo = m_folder.filePath(QStringLiteral("fifo"));
        QVERIFY(::mkfifo(QFile::encodeName(fifo).constData(), 0600) == 0 || errno == EEXIST);
        const QString notRegular = QStringLiteral("it is not a regular file");
        const auto add = [this](const char *name, const QString &path, const QString &reason) {
            const QString link = m_folder.filePath(QStringLiteral("link to ") + QLatin1String(name));
            QFile::link(path, link);
            QTest::newRow(name) << path << reason;
            QTest::addRow("a link to %s", name) << link << reason;
        };
        add("a FIFO", fifo, notRegular);
        add("a device that never ends", QStringLiteral("/dev/zero"), notRegular);
        add("a device that is empty", QStringLiteral("/dev/null"), notRegular);
        add("a file of 2 MB", padded("large.json", 2 * 1024 * 1024),
            QStringLiteral("it is larger than 1 MB"));
        add("one byte too many", padded("over.json", 1024 * 1024 + 1),
            QStringLiteral("it is larger than 1 MB"));
        // Qt refuses to open a folder, which is reason enough.
        add("a folder", m_folder.path(), QString());
        add("a link to itself", selfLink(), qt_error_string(ELOOP));
    }
    void onlyRegularFilesAreRead()
    {
        QFETCH(const QString, path);
        QFETCH(const QString, reason);
        ConfigManager config;
        LogCapture log(LogCapture::Unexpected::Passes);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!config.init(path));
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(log.lines().first(),
                 QStringLiteral("debug: Load config failed, can not open file: \"%1\"").arg(path));
        QCOMPARE(log.texts(QtWarningMsg).size(), 1);
        QVERIFY2(log.texts(QtWarningMsg)
                     .first()
                     .startsWith(QStringLiteral("The configuration is not read: ") + reason),
                 qPrintable(log.texts(QtWarningMsg).first()));
        QCOMPARE(log.texts(QtCriticalMsg), QStringList{RootMustBeObject});
    }

    void theLargestFileIsRead()
    {
        ConfigManager config;
        QVERIFY(config.init(padded("largest.json", 1024 * 1024)));
        QCOMPARE(valueOf(config, "/a"), QStringLiteral("1"));
    }

    void linkToAFileIsFollowed()
    {
        const QString link = m_folder.filePath(QStringLiteral("link.json"));
        QVERIFY(QFile::link(fileWith(R"({"a": "1"})"), link));
        ConfigManager config;
        QVERIFY(config.init(link));
        QCOMPARE(valueOf(config, "/a"), QStringLiteral("1"));
    }

    void unreadableFileIsReported_data()
    {
        QTest::addColumn<bool>("linked");
        QTest::newRow("itself") << false;
        QTest::newRow("through a link") << true;
    }
    void unreadableFileIsReported()
    {
        QFETCH(const bool, linked);
        const QString path = fileWith(R"({"a": "1"})");
        QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
        const QString link = m_folder.filePath(QStringLiteral("unreadable.json"));
        QFile::remove(link);
        QVERIFY(QFile::link(path, link));
        const QString asked = linked ? link : path;
        ConfigManager config;
        LogCapture log(LogCapture::Unexpected::Passes);
        bool loaded = true;
        {
            const NobodysRights rights(m_folder.path());
            if (!rights.taken()) {
                QFile::remove(path);
                // Not the macro, whose dots clang wants an argument for.
                QTest::qSkip("root reads every file, and its rights cannot be given up here", __FILE__,
                             __LINE__);
                return;
            }
            loaded = config.init(asked);
        }
        QFile::remove(path);
        QVERIFY(!loaded);
        QCOMPARE(
            log.lines(),
            QStringList({QStringLiteral("debug: Load config failed, can not open file: \"%1\"").arg(asked),
                         QStringLiteral("warning: The configuration is not read: ") + qt_error_string(EACCES),
                         QStringLiteral("critical: ") + RootMustBeObject}));
    }

    void fileIsReadAsUtf8()
    {
        ConfigManager config;
        const QString path = fileWith("{\"\xe5\x90\x8d\": \"\xe5\x80\xbc\"}");
        const LogCapture log;
        QVERIFY(config.init(path));
        QCOMPARE(log.lines(),
                 QStringList{QStringLiteral("info: Load config successfully:  \"%1\"").arg(path)});
        QCOMPARE(valueOf(config, "/\xe5\x90\x8d"), QString::fromUtf8("\xe5\x80\xbc"));
    }

    void laterFileAddsAndReplaces()
    {
        ConfigManager config;
        QVERIFY(config.init(fileWith(R"({"a": "1", "b": "1"})")));
        QVERIFY(config.init(fileWith(R"({"b": "2", "c": "2"})")));
        QCOMPARE(valueOf(config, "/a"), QStringLiteral("1"));
        QCOMPARE(valueOf(config, "/b"), QStringLiteral("2"));
        QCOMPARE(valueOf(config, "/c"), QStringLiteral("2"));
    }

    void stepsGoThroughTheVirtualFunctions()
    {
        WatchedConfig config;
        QVERIFY(config.init(fileWith(R"({"a": {"b": {"c": "x"}}})")));
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
        config.init(fileWith("{}"));
        config.init(fileWith("{\"a\": 1}"));
        config.init(QStringLiteral("/nowhere"));
        config.dump();
        JsonConfigLoader().unload();
        QVERIFY(log.records().size() >= 6);
        for (const LogRecord &record : log.records()) {
            QCOMPARE(record.category, QByteArray("default"));
            QVERIFY2(record.file.isNull() && record.function.isNull() && record.line == 0,
                     qPrintable(record.text));
        }
    }

    void unloadDoesNothing()
    {
        JsonConfigLoader loader;
        const QJsonDocument *document = loader.load(fileWith(R"({"a": "1"})"));
        const LogCapture log;
        loader.unload();
        QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: Unload json config, do nothing")});
        QVERIFY(document->isObject());
    }

    void earlierDocumentStaysReadable()
    {
        JsonConfigLoader loader;
        const QJsonDocument *first = loader.load(fileWith(R"({"a": "1"})"));
        const QJsonDocument *second = loader.load(fileWith(R"(["b"])"));
        QVERIFY(first != second);
        QVERIFY(first->isObject());
        QVERIFY(second->isArray());
        delete first; // nobody else's any more
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
