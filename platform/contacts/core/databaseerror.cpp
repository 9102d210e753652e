// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/databaseerror.h"

namespace {

// SQLite's primary result codes; an extended code adds detail in its upper bits.
enum ResultCode { Busy = 5, Locked = 6, Corrupt = 11, Constraint = 19, NotADatabase = 26 };
constexpr int PrimaryCode = 0xff;

} // namespace

DatabaseError::DatabaseError(const QSqlError &error, const QString &where)
    : std::runtime_error((error.text() + QLatin1Char(' ') + where).toStdString())
    , m_code(error.nativeErrorCode().toInt() & PrimaryCode)
{
}

bool DatabaseError::isDamage() const
{
    return m_code == Corrupt || m_code == NotADatabase;
}

bool DatabaseError::isBusy() const
{
    return m_code == Busy || m_code == Locked;
}

bool DatabaseError::isConstraint() const
{
    return m_code == Constraint;
}
