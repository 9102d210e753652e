// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "askedactions.h"
#include "sampleworld.h"

#include <QJsonObject>
#include <QMetaType>
#include <QTest>

#include <functional>

/// Brings the sample into the state a row needs.
using Arrange = std::function<void(SampleWorld &)>;
/// Returns the parameters of a row, which may refer to the sample's contents.
using Parameters = std::function<QJsonObject(SampleWorld &)>;
Q_DECLARE_METATYPE(Arrange)
Q_DECLARE_METATYPE(Parameters)

inline void nothing(SampleWorld &) {}

inline QJsonObject none(SampleWorld &)
{
    return {};
}

inline Parameters fixed(const QJsonObject &parameters)
{
    return [parameters](SampleWorld &) {
        return parameters;
    };
}

inline Parameters number(const char *dialNumber, const char *passcode = "")
{
    return fixed({{QStringLiteral("conferenceId"), QString::fromLatin1(dialNumber)},
                  {QStringLiteral("password"), QString::fromLatin1(passcode)}});
}

inline Parameters userId(const char *said)
{
    return fixed({{QStringLiteral("userId"), QString::fromUtf8(said)}});
}

inline Parameters names(const QStringList &asked, qint64 startMsecs = 0)
{
    QJsonObject parameters = membersNamed(asked);
    if (startMsecs != 0) {
        parameters.insert(QStringLiteral("startTime"), startMsecs);
    }
    return fixed(parameters);
}

/// Returns {"conferenceId": id of the conference with that number, ...}.
inline Parameters conference(const char *dialNumber, const QJsonObject &more = {})
{
    return [dialNumber, more](SampleWorld &world) {
        QJsonObject parameters = more;
        parameters.insert(QStringLiteral("conferenceId"),
                          world.conferenceId(QString::fromLatin1(dialNumber)));
        return parameters;
    };
}

/// The same, for a single @p key beside the id.
inline Parameters conference(const char *dialNumber, const char *key, const QJsonValue &value)
{
    return conference(dialNumber, QJsonObject{{QString::fromLatin1(key), value}});
}

inline void logOut(SampleWorld &world)
{
    world.admin.Logout();
}

inline void engageElsewhere(SampleWorld &world)
{
    world.admin.SetEngagedElsewhere(true);
}

inline void startOne(SampleWorld &world)
{
    QCOMPARE(ret(world.ask(Create)), QStringLiteral("OK"));
}

inline void joinDutyRoom(SampleWorld &world)
{
    QCOMPARE(ret(world.ask(Join, QJsonObject{{QStringLiteral("conferenceId"), QStringLiteral("880100004")}})),
             QStringLiteral("OK"));
}
