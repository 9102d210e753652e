// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logrecord.h"

#include <QMutex>
#include <QStringList>
#include <QVector>

namespace devhost {

/**
 * Keeps the log records of the whole process, from any thread, until they are fetched with take(). While it
 * lives nothing but fatal records reaches the terminal, unless asked for. One at a time; made and destroyed
 * on the GUI thread while no plugin's call is under way.
 */
class LogRecorder
{
public:
    enum class Terminal { Quiet, Verbose };

    explicit LogRecorder(Terminal terminal = Terminal::Quiet);
    ~LogRecorder();
    Q_DISABLE_COPY(LogRecorder)

    /// The records since the last call, oldest first. Of a flood only the latest are kept.
    QVector<LogRecord> take();

    /// What must not be seen in any record from here on; replaces what was set before.
    void setSecrets(const QStringList &secrets);

private:
    static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text);
    void add(QtMsgType level, const QMessageLogContext &context, const QString &text);

    const Terminal m_terminal;
    QtMessageHandler m_previous;
    QMutex m_mutex; ///< guards what follows
    QVector<LogRecord> m_records;
    QStringList m_secrets;
};

} // namespace devhost
