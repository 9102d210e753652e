// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/salvage.h"

#include <QSqlDatabase>
#include <QString>

/**
 * Replaces a damaged database so that a start that is killed on the way, or runs out of room, loses nothing
 * and keeps nothing from the user. The successor is built beside the damaged file, which stays where it is
 * until the successor is whole and holds the notice to the user. Then the successor gets a name that says so
 * ("contacts.db.replacement-STAMP"), the damaged file is set aside ("contacts.db.damaged-STAMP"), and the
 * successor takes its place. The next start finishes what was interrupted among these. Use it under the
 * OpeningLock. Throws DatabaseError.
 */
class Replacement
{
public:
    /// Clears what an interrupted attempt to build a successor of @p fileName has left.
    explicit Replacement(const QString &fileName);

    /// Where the successor is built.
    QString buildingFile() const;
    /// Where the damaged file will be.
    QString setAsideFile() const;
    /// Writes into the successor what its user has to know; without people it will get the sample.
    void note(const QSqlDatabase &successor, const Salvaged &salvaged) const;
    /// Sets the damaged file aside and puts the successor, which nobody has open, in its place.
    void finish() const;

    /// Finishes what a killed start has left of it. @return the damaged file's new name; empty when there was
    /// nothing to finish.
    static QString resume(const QString &fileName);

private:
    Replacement(const QString &fileName, const QString &stamp) : m_fileName(fileName), m_stamp(stamp) {}

    QString wholeFile() const;
    void swap() const;

    QString m_fileName;
    QString m_stamp;
};
