// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "logrecord.h"

#include <QMutex>
#include <QStringList>
#include <QVector>

namespace devhost {

/**
 * Records the log messages of the whole process, from any thread, until take() fetches them. While it lives
 * only fatal messages reach the terminal, unless requested otherwise. Only one may exist; create and destroy
 * it on the GUI thread while no call of a plugin is running.
 */
class LogRecorder
{
public:
    enum class Terminal { Quiet, Verbose };

    explicit LogRecorder(Terminal terminal = Terminal::Quiet);
    ~LogRecorder();
    Q_DISABLE_COPY(LogRecorder)

    /// The records since the last call, oldest first. Only the latest of a flood are kept.
    QVector<LogRecord> take();

    /// Texts to mask in every record from here on; replaces the earlier ones.
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
