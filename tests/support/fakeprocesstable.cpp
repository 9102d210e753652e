// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakeprocesstable.h"

#include <QFile>
#include <QStandardPaths>

namespace {

constexpr char PathVariable[] = "PATH";

QByteArray tableWith(int matches)
{
    QByteArray table = "UID PID PPID C STIME TTY TIME CMD\n"
                       "root 1 0 0 09:00 ? 00:00:01 /sbin/init\n"
                       // Not counted: grep -w matches whole words only.
                       "user 70 1 0 09:00 ? 00:00:00 /usr/bin/meetlynxhelper\n";
    for (int index = 0; index < matches; ++index) {
        table += "user 8" + QByteArray::number(index) + " 1 0 09:00 ? 00:00:02 /usr/bin/meetlynx\n";
    }
    // The pipeline's own grep, which the pipeline filters out.
    return table + "user 99 1 0 09:00 ? 00:00:00 grep -w meetlynx\n";
}

} // namespace

FakeProcessTable::FakeProcessTable(int matches) : FakeProcessTable(tableWith(matches)) {}

FakeProcessTable::FakeProcessTable(const QByteArray &table) : m_path(qgetenv(PathVariable))
{
    writePs(table);
    qputenv(PathVariable, QFile::encodeName(m_folder.path()) + ':' + m_path);
}

FakeProcessTable::FakeProcessTable(NoPs) : m_path(qgetenv(PathVariable))
{
    for (const QString &tool : {QStringLiteral("grep"), QStringLiteral("wc")}) {
        if (!QFile::link(QStandardPaths::findExecutable(tool), m_folder.filePath(tool))) {
            qFatal("cannot link %s", qPrintable(tool));
        }
    }
    qputenv(PathVariable, QFile::encodeName(m_folder.path()));
}

FakeProcessTable::~FakeProcessTable()
{
    if (!qgetenv(PathVariable).startsWith(QFile::encodeName(m_folder.path()))) {
        qFatal("Process tables must go in the reverse order of their coming.");
    }
    qputenv(PathVariable, m_path);
}

int FakeProcessTable::runs() const
{
    QFile runs(m_folder.filePath(QStringLiteral("runs")));
    return runs.open(QIODevice::ReadOnly) ? runs.readAll().count('\n') : 0;
}

void FakeProcessTable::writePs(const QByteArray &table)
{
    QFile ps(m_folder.filePath(QStringLiteral("ps")));
    // Shell built-ins only: the command line of another process would show up in the real process table.
    const QByteArray script = "#!/bin/sh\n"
                              "echo \"$*\" >>\"${0%/*}/runs\"\n"
                              "[ \"$*\" = -ef ] || exit 1\n" // other options print another table
                              "while IFS= read -r line; do printf '%s\\n' \"$line\"; done <<'END'\n" +
                              table + "END\n";
    if (!ps.open(QIODevice::WriteOnly) || ps.write(script) != script.size() ||
        !ps.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) {
        qFatal("cannot write %s", qPrintable(ps.fileName()));
    }
}
