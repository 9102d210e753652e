// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "book/administration.h"
#include "book/contactsbook.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

/// The sample directory in a temporary database, at 10:20 on 7 March 2026 unless the test moves the clock.
class SampleWorld
{
public:
    SampleWorld();

    QJsonObject ask(const QString &action, const QString &parameters = {});
    QJsonObject ask(const QString &action, const QJsonObject &parameters);
    QJsonObject snapshot();
    QJsonArray conferences();
    /// Returns a conference from the snapshot; empty for an unknown number.
    QJsonObject conference(const QString &number);
    QString conferenceId(const QString &number);

    QTemporaryDir folder;
    qint64 nowMsecs;
    ContactsBook book;
    Administration admin;
};

/// Converts a local time "yyyy-MM-ddThh:mm" to milliseconds since the epoch.
qint64 at(const char *localTime);
/// Returns {"members": [{"name": ..., "userId": ""}]}.
QJsonObject membersNamed(const QStringList &names);
