// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "defaultlog.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <cstring>

namespace {

const char LateOption[] = "--log-late";

/// Logs when it is destroyed.
struct LateLogger
{
    LateLogger() = default;
    ~LateLogger()
    {
        const bool isLate = QLoggingCategory::defaultCategory() == nullptr;
        qCDebug(defaultLog, isLate ? "last" : "too early");
    }
    Q_DISABLE_COPY(LateLogger)
};

/// Ends with a record after Qt has destroyed its default category.
int logLate()
{
    // Destroyed in the reverse order: Qt makes its category on first use.
    static const LateLogger late;
    qCDebug(defaultLog, "first");
    return 0;
}

} // namespace

class TestDefaultLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRecordAtTheEndIsWritten();
};

/// A thread of the plugin may still log while the host exits.
void TestDefaultLog::aRecordAtTheEndIsWritten()
{
    QProcess program;
    program.start(QCoreApplication::applicationFilePath(), {QLatin1String(LateOption)});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.readAllStandardError(), QByteArray("first\nlast\n"));
}

int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], LateOption) == 0) {
        return logLate();
    }
    QCoreApplication application(argc, argv);
    TestDefaultLog test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_defaultlog.moc"
