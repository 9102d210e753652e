// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launcherprogram.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>

namespace {

constexpr int LongestMsecs = 20000;

QString service()
{
    return QStringLiteral("com.kelvane.speakmate.devhost");
}

} // namespace

LauncherProgram::LauncherProgram(const QStringList &arguments)
{
    devhost::registerLauncherTypes();
    m_process.start(
        QStringLiteral(DEVHOST),
        QStringList{QStringLiteral("--service"), QStringLiteral("--plugin"), QStringLiteral(TEST_PLUGIN)} +
            arguments);
}

LauncherProgram::~LauncherProgram()
{
    m_process.terminate();
    m_process.waitForFinished(LongestMsecs);
}

bool LauncherProgram::isThere()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(service());
}

QDBusMessage LauncherProgram::call(const QString &path, const QString &interface, const QString &method,
                                   const QVariantList &arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(service(), path, interface, method);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().call(call, QDBus::Block, LongestMsecs);
}

QDBusMessage LauncherProgram::krunner(const QString &method, const QVariantList &arguments)
{
    return call(QStringLiteral("/krunner"), QStringLiteral("org.kde.krunner1"), method, arguments);
}

QDBusMessage LauncherProgram::shell(const QString &method, const QVariantList &arguments)
{
    return call(QStringLiteral("/com/kelvane/speakmate/devhost/SearchProvider"),
                QStringLiteral("org.gnome.Shell.SearchProvider2"), method, arguments);
}

devhost::KRunnerMatches LauncherProgram::match(const QString &query)
{
    const QDBusReply<devhost::KRunnerMatches> reply = krunner(QStringLiteral("Match"), {query});
    return reply.value();
}

QStringList LauncherProgram::search(const QStringList &terms)
{
    const QDBusReply<QStringList> reply = shell(QStringLiteral("GetInitialResultSet"), {terms});
    return reply.value();
}

devhost::SearchMetas LauncherProgram::metas(const QStringList &results)
{
    const QDBusReply<devhost::SearchMetas> reply = shell(QStringLiteral("GetResultMetas"), {results});
    return reply.value();
}
