// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "configfolder.h"
#include "logcapture.h"
#include "testcolumns.h"
#include "testswitch.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace {

const QString RootMustBeObject = QStringLiteral("config root must be a object.");

/// Drops root's privileges while it lives, so that file permissions apply. No effect for other users.
class NobodysRights
{
public:
    explicit NobodysRights(const QString &folder)
    {
        if (::geteuid() != 0) {
            m_taken = true;
            return;
        }
        // The folder belongs to root and is closed to others.
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

} // namespace

/// Which files are read, and how the others are reported.
class TestConfigFiles : public QObject
{
    Q_OBJECT

private:
    /// A valid file of exactly @p size bytes.
    QString padded(const char *name, int size) const
    {
        return m_folder.fileWith(QByteArray(R"({"a": "1"})").leftJustified(size), QString::fromLatin1(name));
    }

    QString selfLink()
    {
        const QString path = m_folder.filePath(QStringLiteral("self"));
        QFile::link(path, path);
        return path;
    }

    ConfigFolder m_folder;

private Q_SLOTS:
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
        QVERIFY(!config.init(m_folder.fileWith(content)));
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
        QCOMPARE(log.lines().constFirst(),
                 QStringLiteral("debug: Load config failed, can not open file: \"%1\"").arg(path));
        QCOMPARE(log.texts(QtWarningMsg).size(), 1);
        QVERIFY2(log.texts(QtWarningMsg)
                     .constFirst()
                     .startsWith(QStringLiteral("The configuration is not read: ") + reason),
                 qPrintable(log.texts(QtWarningMsg).constFirst()));
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
        QVERIFY(QFile::link(m_folder.fileWith(R"({"a": "1"})"), link));
        ConfigManager config;
        QVERIFY(config.init(link));
        QCOMPARE(valueOf(config, "/a"), QStringLiteral("1"));
    }

    void unreadableFileIsReported_data() { addSwitch("linked", "itself", "through a link"); }
    void unreadableFileIsReported()
    {
        QFETCH(const bool, linked);
        const QString path = m_folder.fileWith(R"({"a": "1"})");
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
                // Not QSKIP: clang warns about its empty variadic argument.
                QTest::qSkip("root can read every file and cannot drop its privileges here", __FILE__,
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
        const QString path = m_folder.fileWith("{\"\xe5\x90\x8d\": \"\xe5\x80\xbc\"}");
        const LogCapture log;
        QVERIFY(config.init(path));
        QCOMPARE(log.lines(),
                 QStringList{QStringLiteral("info: Load config successfully:  \"%1\"").arg(path)});
        QCOMPARE(valueOf(config, "/\xe5\x90\x8d"), QString::fromUtf8("\xe5\x80\xbc"));
    }

    void laterFileAddsAndReplaces()
    {
        ConfigManager config;
        QVERIFY(config.init(m_folder.fileWith(R"({"a": "1", "b": "1"})")));
        QVERIFY(config.init(m_folder.fileWith(R"({"b": "2", "c": "2"})")));
        QCOMPARE(valueOf(config, "/a"), QStringLiteral("1"));
        QCOMPARE(valueOf(config, "/b"), QStringLiteral("2"));
        QCOMPARE(valueOf(config, "/c"), QStringLiteral("2"));
    }

    void unloadDoesNothing()
    {
        JsonConfigLoader loader;
        const QJsonDocument *document = loader.load(m_folder.fileWith(R"({"a": "1"})"));
        const LogCapture log;
        loader.unload();
        QCOMPARE(log.lines(), QStringList{QStringLiteral("debug: Unload json config, do nothing")});
        QVERIFY(document->isObject());
    }

    void earlierDocumentStaysReadable()
    {
        JsonConfigLoader loader;
        const QJsonDocument *first = loader.load(m_folder.fileWith(R"({"a": "1"})"));
        const QJsonDocument *second = loader.load(m_folder.fileWith(R"(["b"])"));
        QVERIFY(first != second);
        QVERIFY(first->isObject());
        QVERIFY(second->isArray());
        delete first; // the loader no longer owns it
    }
};

QTEST_GUILESS_MAIN(TestConfigFiles)
#include "tst_configfiles.moc"
