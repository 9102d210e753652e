// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

/// One record of the Qt message logger, copied. Source fields are null when the record carried none.
struct LogRecord
{
    QtMsgType level = QtDebugMsg;
    QString text;
    QByteArray category;
    QByteArray file;
    QByteArray function; ///< as the compiler writes it, see signatureOf()
    int line = 0;
};

/**
 * Takes all log records while it lives, from any thread, and makes the test fail on warnings and critical
 * records that were not announced with expect(). Put it on the stack of a test function, or make it in init()
 * and destroy it in cleanup(). Captures nest: the innermost takes the records.
 */
class LogCapture
{
public:
    enum class Unexpected { Fails, Passes };

    explicit LogCapture(Unexpected policy = Unexpected::Fails);
    ~LogCapture();
    Q_DISABLE_COPY(LogCapture)

    /// Announces one warning or critical record with exactly this text.
    void expect(QtMsgType level, const QString &text);

    /// All records so far, in order.
    QVector<LogRecord> records() const;
    /// The texts of one level, in order.
    QStringList texts(QtMsgType level) const;
    /// All records as "debug: text", "warning: text" and so on: convenient to compare with a list.
    QStringList lines() const;
    bool contains(QtMsgType level, const QString &text) const;
    /// The first record with this text; a default record when there is none.
    LogRecord find(const QString &text) const;
    /// What the test would fail with if the capture ended now: surprises, and announced records that did not
    /// come.
    QStringList problems() const;
    void clear();

    /// @p function without the blanks that differ between compilers ("const QString &" and "const QString&").
    static QByteArray signatureOf(const QByteArray &function);
    static QString levelName(QtMsgType level);

private:
    static void handle(QtMsgType level, const QMessageLogContext &context, const QString &text);
    void take(const LogRecord &record);

    struct Expectation
    {
        QtMsgType level;
        QString text;
    };

    const Unexpected m_policy;
    LogCapture *m_outer;
    QtMessageHandler m_previous;
    mutable QMutex m_mutex; ///< guards what follows
    QVector<LogRecord> m_records;
    QVector<Expectation> m_expected;
    QStringList m_surprises;
};
