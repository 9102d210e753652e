// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSqlQuery>

/// One prepared statement whose values are bound, never written into the text. Throws DatabaseError.
class Statement
{
public:
    Statement(const QSqlDatabase &database, const QString &sql);

    Statement &bind(const QString &value);
    Statement &bind(qint64 value);
    Statement &bind(int value);
    /// Returns itself, for use in one expression.
    Statement &run();
    bool next();
    QString text(int column) const;
    qint64 number(int column) const;
    int smallNumber(int column) const;
    qint64 lastInsertId() const;
    int affectedRows() const;

private:
    QSqlQuery m_query;
};
