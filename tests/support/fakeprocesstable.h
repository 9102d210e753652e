// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QTemporaryDir>

/**
 * A `ps` of our own, first in this process's PATH for as long as it lives, so that a test decides what the
 * process table shows. Nothing is started under the application's name; the table is a file that the script
 * prints.
 */
class FakeProcessTable
{
public:
    enum NoPs { WithoutPs };

    /// A table with @p matches processes of the contacts application among others.
    explicit FakeProcessTable(int matches);
    /// A PATH in which there is no ps at all, but grep and wc.
    explicit FakeProcessTable(NoPs);
    /// A table with exactly this text.
    explicit FakeProcessTable(const QByteArray &table);
    ~FakeProcessTable();
    Q_DISABLE_COPY(FakeProcessTable)

    /// How often ps was run so far.
    int runs() const;

private:
    void writePs(const QByteArray &table);

    QTemporaryDir m_folder;
    const QByteArray m_path;
};
