// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

class ProgramLanguage;

/// How the application was started.
enum class Starter {
    User,  ///< who wants to see the window
    Bus,   ///< for a program that calls
    Login, ///< for the reminders alone
};
enum class Audience { Users, Developers };

/// The command line.
struct Options
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    Starter starter = Starter::User;
    Audience audience = Audience::Users;
    std::optional<QString> exportFile;
    QString conference; ///< to export; empty for the running or the next one
    QString usageError; ///< empty when all is well

    /// Chooses the language first: the one that is asked for, or the user's. Ends the program for --help,
    /// --version and unknown options, in that language.
    static Options read(const QCoreApplication &application, ProgramLanguage &language);
};
