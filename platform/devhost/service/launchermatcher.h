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

/// One line of a launcher, and what stands behind it.
struct LauncherAct
{
    QString id; ///< tells nothing about the sentence: launchers count and keep ids
    QString line;
    QString sentence;
    QDateTime when; ///< what the sentence's times are set against

    bool isEmpty() const { return id.isEmpty(); }
};

/**
 * Decides whether a text typed into a launcher orders something, and what. Works from the names it was given:
 * asks no application, waits for nothing and logs nothing. Sentences stand alone. GUI thread.
 */
class LauncherMatcher
{
public:
    LauncherMatcher();

    void setContactNames(const QStringList &names);

    /// Empty unless @p text is understood beyond doubt.
    LauncherAct match(const QString &text, const QDateTime &now);
    /// A recent match; empty for one that is unknown or was dropped.
    LauncherAct find(const QString &id) const;
    /// Like find(), and forgets it: an act is carried out once. Empty also where the names have changed so
    /// that the sentence would do something else than its line says.
    LauncherAct take(const QString &id);

    /// Longer texts are not looked at.
    static constexpr int LongestText = 200;

private:
    QString understand(const QString &text, const QDateTime &now);

    understanding::Dialogue m_dialogue;
    QSet<QString> m_names;
    QVector<LauncherAct> m_recent; ///< the latest last
    const QByteArray m_salt;
};

} // namespace devhost
