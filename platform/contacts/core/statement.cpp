// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/statement.h"

#include "core/databaseerror.h"

#include <QSqlError>
#include <QVariant>

Statement::Statement(const QSqlDatabase &database, const QString &sql) : m_query(database)
{
    m_query.setForwardOnly(true);
    if (!m_query.prepare(sql)) {
        throw DatabaseError(m_query.lastError(), QStringLiteral("in ") + sql);
    }
}

Statement &Statement::bind(const QString &value)
{
    // A null string would be stored as NULL.
    m_query.addBindValue(value.isNull() ? QLatin1String("") : value);
    return *this;
}

Statement &Statement::bind(qint64 value)
{
    m_query.addBindValue(value);
    return *this;
}

Statement &Statement::bind(int value)
{
    m_query.addBindValue(value);
    return *this;
}

Statement &Statement::run()
{
    if (!m_query.exec()) {
        throw DatabaseError(m_query.lastError(), QStringLiteral("in ") + m_query.lastQuery());
    }
    return *this;
}

bool Statement::next()
{
    const bool isRow = m_query.next();
    // Either the end of the rows or a page that cannot be read.
    if (!isRow && m_query.lastError().isValid()) {
        throw DatabaseError(m_query.lastError(), QStringLiteral("in ") + m_query.lastQuery());
    }
    return isRow;
}

QString Statement::text(int column) const
{
    return m_query.value(column).toString();
}

qint64 Statement::number(int column) const
{
    return m_query.value(column).toLongLong();
}

int Statement::smallNumber(int column) const
{
    return m_query.value(column).toInt();
}

qint64 Statement::lastInsertId() const
{
    return m_query.lastInsertId().toLongLong();
}

int Statement::affectedRows() const
{
    return m_query.numRowsAffected();
}
