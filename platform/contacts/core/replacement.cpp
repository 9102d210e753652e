// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/replacement.h"

#include "core/databaseerror.h"
#include "core/reminderrepository.h"
#include "core/sessionrepository.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

const char *const Journals[] = {"-wal", "-shm"};

QString wholePrefix(const QString &fileName)
{
    return fileName + QStringLiteral(".replacement-");
}

void renameOver(const QString &from, const QString &to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        throw DatabaseError(QStringLiteral("%1 cannot be renamed to %2: %3")
                                .arg(from, to, QString::fromLocal8Bit(std::strerror(errno))));
    }
}

} // namespace

Replacement::Replacement(const QString &fileName)
    : Replacement(fileName, QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddThhmmsszzz")))
{
    for (const char *suffix : {"", Journals[0], Journals[1]}) {
        const QString former = buildingFile() + QLatin1String(suffix);
        if (QFile::exists(former) && !QFile::remove(former)) {
            throw DatabaseError(QStringLiteral("%1 cannot be removed").arg(former));
        }
    }
}

QString Replacement::buildingFile() const
{
    return m_fileName + QStringLiteral(".new");
}

QString Replacement::setAsideFile() const
{
    return m_fileName + QStringLiteral(".damaged-") + m_stamp;
}

QString Replacement::wholeFile() const
{
    return wholePrefix(m_fileName) + m_stamp;
}

void Replacement::note(const QSqlDatabase &successor, const Salvaged &salvaged) const
{
    const QString kept =
        salvaged.people > 0
            ? QCoreApplication::translate(
                  "Replacement", "People recovered: %1, conferences recovered: %2. The rest may be lost.")
                  .arg(salvaged.people)
                  .arg(salvaged.conferences)
            : QCoreApplication::translate("Replacement",
                                          "Nothing could be recovered; the sample data is shown now.");
    SessionRepository session(successor);
    session.setNotice(QCoreApplication::translate(
                          "Replacement", "The database was damaged; the former file is kept as %1. %2")
                          .arg(setAsideFile(), kept));
    // The session inside a damaged file may have been read although nothing else was.
    session.setSeeded(salvaged.people > 0);
    ReminderRepository(successor).forgetNews(); // copying invites nobody
}

void Replacement::finish() const
{
    // Anything in a journal that could not be written back is missing from the file.
    for (const char *journal : Journals) {
        if (QFile::exists(buildingFile() + QLatin1String(journal))) {
            throw DatabaseError(QStringLiteral("%1 cannot be completed").arg(buildingFile()));
        }
    }
    renameOver(buildingFile(), wholeFile());
    swap();
}

void Replacement::swap() const
{
    // Journals first: once the file itself is set aside, the job is done, and a file of that name is the
    // empty one of a start that was interrupted afterwards. A journal without its file would be deleted by
    // whoever opens that name; a file without its journal is only found here, and set aside after it.
    if (!QFile::exists(setAsideFile())) {
        for (const char *suffix : {Journals[0], Journals[1], ""}) {
            const QString damaged = m_fileName + QLatin1String(suffix);
            if (QFile::exists(damaged)) {
                renameOver(damaged, setAsideFile() + QLatin1String(suffix));
            }
        }
    }
    renameOver(wholeFile(), m_fileName);
}

QString Replacement::resume(const QString &fileName)
{
    const QString prefix = QFileInfo(wholePrefix(fileName)).fileName();
    const QStringList found =
        QFileInfo(fileName).absoluteDir().entryList({prefix + QLatin1Char('*')}, QDir::Files, QDir::Name);
    if (found.isEmpty()) {
        return {};
    }
    const Replacement replacement(fileName, found.constLast().mid(prefix.size()));
    replacement.swap();
    return replacement.setAsideFile();
}
