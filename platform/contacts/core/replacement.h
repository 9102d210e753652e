// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/salvage.h"

#include <QSqlDatabase>
#include <QString>

/**
 * Replaces a damaged database so that a start that is killed meanwhile, or runs out of disk space, loses
 * nothing and hides nothing from the user. The successor is built beside the damaged file, which stays in
 * place until the successor is complete and holds the notice to the user. Then the successor gets a name that
 * says so ("contacts.db.replacement-STAMP"), the damaged file is set aside ("contacts.db.damaged-STAMP"), and
 * the successor takes its place. The next start finishes what was interrupted. Use under the OpeningLock.
 * Throws DatabaseError.
 */
class Replacement
{
public:
    /// Removes the remains of an interrupted attempt to build a successor of @p fileName.
    explicit Replacement(const QString &fileName);

    /// The successor's path while it is built.
    QString buildingFile() const;
    /// The future path of the damaged file.
    QString setAsideFile() const;
    /// Writes the notice to the user into the successor; without people in it, it will get the sample.
    void note(const QSqlDatabase &successor, const Salvaged &salvaged) const;
    /// Sets the damaged file aside and moves the successor, which must be closed, into its place.
    void finish() const;

    /// Finishes what a killed start has left. @return the damaged file's new name; empty when there was
    /// nothing to finish.
    static QString resume(const QString &fileName);

private:
    Replacement(const QString &fileName, const QString &stamp) : m_fileName(fileName), m_stamp(stamp) {}

    QString wholeFile() const;
    void swap() const;

    QString m_fileName;
    QString m_stamp;
};
