// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logrecorder.h"

#include "secrets.h"

#include <QDateTime>
#include <QReadWriteLock>

namespace devhost {

namespace {

constexpr int MostRecords = 4000;
constexpr int LongestText = 65536;

LogRecorder *current = nullptr;

/// Guards @ref current against a record written on another thread while the recorder is destroyed.
QReadWriteLock &currentLock()
{
    static QReadWriteLock lock;
    return lock;
}

} // namespace

LogRecorder::LogRecorder(Terminal terminal) : m_terminal(terminal)
{
    const QWriteLocker locker(&currentLock());
    Q_ASSERT(current == nullptr);
    current = this;
    m_previous = qInstallMessageHandler(&LogRecorder::handle);
}

LogRecorder::~LogRecorder()
{
    const QWriteLocker locker(&currentLock());
    qInstallMessageHandler(m_previous);
    current = nullptr;
}

QVector<LogRecord> LogRecorder::take()
{
    const QMutexLocker locker(&m_mutex);
    return std::exchange(m_records, {});
}

void LogRecorder::setSecrets(const QStringList &secrets)
{
    const QMutexLocker locker(&m_mutex);
    m_secrets = secrets;
}

void LogRecorder::handle(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    const QReadLocker locker(&currentLock());
    if (current != nullptr) {
        current->add(level, context, text);
    }
}

void LogRecorder::add(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    LogRecord record;
    record.level = level;
    record.category = context.category;
    record.file = context.file;
    record.function = context.function;
    record.line = context.line;
    record.atMsecs = QDateTime::currentMSecsSinceEpoch();
    {
        const QMutexLocker locker(&m_mutex);
        record.text = withoutSecrets(text.left(LongestText), m_secrets);
        if (m_records.size() >= MostRecords) {
            m_records.removeFirst();
        }
        m_records.append(record);
    }
    const bool isForTerminal = m_terminal == Terminal::Verbose || level == QtFatalMsg;
    if (isForTerminal && m_previous != nullptr) {
        m_previous(level, context, record.text);
    }
}

} // namespace devhost
