// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logcapture.h"

#include <QMutexLocker>
#include <QTest>

#include <algorithm>
#include <cstdio>

namespace {

// Guards active: another thread may log a record while the capture ends.
QMutex &activeMutex()
{
    static QMutex mutex;
    return mutex;
}

LogCapture *active = nullptr;

QString lineOf(QtMsgType level, const QString &text)
{
    return LogCapture::levelName(level) + QStringLiteral(": ") + text;
}

} // namespace

LogCapture::LogCapture(Unexpected policy) : m_policy(policy)
{
    const QMutexLocker locker(&activeMutex());
    m_outer = active;
    active = this;
    m_previous = qInstallMessageHandler(&LogCapture::handle);
}

LogCapture::~LogCapture()
{
    {
        const QMutexLocker locker(&activeMutex());
        active = m_outer;
        qInstallMessageHandler(m_previous);
    }
    if (m_policy == Unexpected::Fails) {
        const auto all = problems();
        for (const QString &problem : all) {
            QTest::qFail(qPrintable(problem), __FILE__, __LINE__);
        }
    }
}

void LogCapture::expect(QtMsgType level, const QString &text)
{
    const QMutexLocker locker(&m_mutex);
    m_expected.append({level, text});
}

QVector<LogRecord> LogCapture::records() const
{
    const QMutexLocker locker(&m_mutex);
    return m_records;
}

QStringList LogCapture::texts(QtMsgType level) const
{
    QStringList result;
    const auto all = records();
    for (const LogRecord &record : all) {
        if (record.level == level) {
            result.append(record.text);
        }
    }
    return result;
}

QStringList LogCapture::lines() const
{
    QStringList result;
    const auto all = records();
    for (const LogRecord &record : all) {
        result.append(lineOf(record.level, record.text));
    }
    return result;
}

bool LogCapture::contains(QtMsgType level, const QString &text) const
{
    return texts(level).contains(text);
}

LogRecord LogCapture::find(const QString &text) const
{
    const auto all = records();
    for (const LogRecord &record : all) {
        if (record.text == text) {
            return record;
        }
    }
    return {};
}

QStringList LogCapture::problems() const
{
    const QMutexLocker locker(&m_mutex);
    QStringList result;
    for (const QString &surprise : m_surprises) {
        result.append(QStringLiteral("unexpected log record: ") + surprise);
    }
    for (const Expectation &missing : m_expected) {
        result.append(QStringLiteral("log record did not come: ") + lineOf(missing.level, missing.text));
    }
    return result;
}

void LogCapture::clear()
{
    const QMutexLocker locker(&m_mutex);
    m_records.clear();
}

QByteArray LogCapture::signatureOf(const QByteArray &function)
{
    QByteArray signature = function;
    for (const char *blank : {" &", " *"}) {
        signature.replace(blank, blank + 1);
    }
    return signature;
}

QString LogCapture::levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("fatal");
}

void LogCapture::handle(QtMsgType level, const QMessageLogContext &context, const QString &text)
{
    if (level == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text)); // the program aborts after this and should say why
    }
    const QMutexLocker locker(&activeMutex());
    if (active != nullptr) {
        active->take({level, text, context.category, context.file, context.function, context.line});
    }
}

void LogCapture::take(const LogRecord &record)
{
    // The offscreen platform complains about size hints, raised windows and popups that grab the keyboard.
    if (record.text.startsWith(QLatin1String("This plugin does not support "))) {
        return;
    }
    const QMutexLocker locker(&m_mutex);
    m_records.append(record);
    if (record.level != QtWarningMsg && record.level != QtCriticalMsg) {
        return;
    }
    const auto expected =
        std::find_if(m_expected.begin(), m_expected.end(), [&record](const Expectation &expectation) {
            return expectation.level == record.level && expectation.text == record.text;
        });
    if (expected == m_expected.end()) {
        m_surprises.append(lineOf(record.level, record.text));
    } else {
        m_expected.erase(expected);
    }
}
