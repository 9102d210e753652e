// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QtGlobal>

/// A copied record of Qt's message logger. Source fields are null if the record had none.
struct LogRecord
{
    QtMsgType level = QtDebugMsg;
    QString text;
    QByteArray category;
    QByteArray file;
    QByteArray function; ///< as the compiler spells it, see signatureOf()
    int line = 0;
};

/**
 * Captures all log records while it lives, from any thread. With Unexpected::Fails, its destruction fails the
 * test if there were warnings or critical records not announced with expect(), or if announced ones did not
 * come. Create it on the stack of a test function, or in init(), and then destroy it in cleanup(). Captures
 * nest: the innermost one takes the records.
 */
class LogCapture
{
public:
    enum class Unexpected { Fails, Passes };

    explicit LogCapture(Unexpected policy = Unexpected::Fails);
    ~LogCapture();
    Q_DISABLE_COPY(LogCapture)

    /// Announces one warning or critical record with exactly the text @p text.
    void expect(QtMsgType level, const QString &text);

    /// All records so far, in order.
    QVector<LogRecord> records() const;
    /// The texts of one level, in order.
    QStringList texts(QtMsgType level) const;
    /// All records as "debug: text", "warning: text" and so on, for comparing with a list.
    QStringList lines() const;
    bool contains(QtMsgType level, const QString &text) const;
    /// The first record with the text @p text; a default record if there is none.
    LogRecord find(const QString &text) const;
    /// The failures if the capture ended now: unexpected records, and announced ones that did not come.
    QStringList problems() const;
    void clear();

    /// @p function without the blanks that compilers place differently ("const QString &", "const QString&").
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
    mutable QMutex m_mutex; ///< guards the members below
    QVector<LogRecord> m_records;
    QVector<Expectation> m_expected;
    QStringList m_surprises;
};
