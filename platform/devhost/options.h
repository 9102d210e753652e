// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class ProgramLanguage;

namespace devhost {

/// The parsed command line.
struct Options
{
    Q_DECLARE_TR_FUNCTIONS(devhost::Options)

public:
    enum class Mode { Window, Batch, Converse, Service, Help, Version };
    enum class Theme { Remembered, System, Light, Dark };

    Mode mode = Mode::Window;
    QString plugin;      ///< a file, or a name in the installed folder
    QString input;       ///< what Batch and Converse read and Window plays; "-" is standard input
    QString screenshots; ///< a folder, or empty
    QString contacts;    ///< a file of known names, or empty
    Theme theme = Theme::Remembered;
    bool isVerbose = false;

    QString usageError; ///< not empty: the line makes no sense

    /// @p arguments start with the program's name.
    static Options read(const QStringList &arguments);
    /// Chooses the language first (the requested one, or the user's), so that usage errors are in it.
    static Options read(const QStringList &arguments, ProgramLanguage &language);
    /// Needs an application object.
    static QString helpText();
    /// Whether a window may be shown. Works without an application object, whose type depends on it.
    static bool wantsWindow(const QStringList &arguments);
};

} // namespace devhost
