// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <stdexcept>

/// A statement or the opening failed. Thrown by the repositories, caught at the application's doors; no
/// answer is given and no half of a request stays.
class DatabaseError : public std::runtime_error
{
public:
    explicit DatabaseError(const QString &message) : std::runtime_error(message.toStdString()) {}
};
