// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <understanding/dialogue.h>

#include <QByteArray>
#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace devhost {

/// One result line for a launcher and the request behind it.
struct LauncherAct
{
    QString id; ///< tells nothing about the sentence: launchers count and keep ids
    QString line;
    QString sentence;
    QDateTime when; ///< what the sentence's times are set against

    bool isEmpty() const { return id.isEmpty(); }
};

/**
 * Decides whether a text typed into a launcher is a command, and which. Works from the names it was given:
 * asks no application, never blocks, and logs nothing. Every sentence stands alone. GUI thread.
 */
class LauncherMatcher
{
public:
    LauncherMatcher();

    void setContactNames(const QStringList &names);

    /// Empty unless @p text is understood beyond doubt.
    LauncherAct match(const QString &text, const QDateTime &now);
    /// A recent match; empty when it is unknown or was dropped.
    LauncherAct find(const QString &id) const;
    /// Like find(), but forgets the match: a command is carried out once. Also empty when the names have
    /// changed so that the sentence would no longer do what its line says.
    LauncherAct take(const QString &id);

    /// Longer texts are ignored.
    static constexpr int LongestText = 200;

private:
    QString understand(const QString &text, const QDateTime &now);

    understanding::Dialogue m_dialogue;
    QSet<QString> m_names;
    QVector<LauncherAct> m_recent; ///< the latest last
    const QByteArray m_salt;
};

} // namespace devhost
