// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QTemporaryDir>

/**
 * Puts a fake `ps` first in this process's PATH while it lives, so that a test decides what the process table
 * shows. The fake is a script that prints a fixed table; nothing runs under the application's name.
 */
class FakeProcessTable
{
public:
    enum NoPs { WithoutPs };

    /// A table with @p matches processes of the contacts application among others.
    explicit FakeProcessTable(int matches);
    /// A PATH with grep and wc, but without ps.
    explicit FakeProcessTable(NoPs);
    /// A table with exactly the text @p table.
    explicit FakeProcessTable(const QByteArray &table);
    ~FakeProcessTable();
    Q_DISABLE_COPY(FakeProcessTable)

    /// How often ps has run so far.
    int runs() const;

private:
    void writePs(const QByteArray &table);

    QTemporaryDir m_folder;
    const QByteArray m_path;
};
