// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardgateway.h"

#include "cardrequests.h"
#include "conferencecardinterface.h"
#include "resultcodes.h"

#include <QtCore/QDebug>

namespace {

template <typename Request>
int guarded(const Request &request) noexcept
{
    try {
        return request(*ConferenceCardInterface::instance());
    } catch (...) {
        qWarning() << "A request from a card ended with an exception.";
        return ResultCode::CallFailedLast;
    }
}

} // namespace

int CardGateway::update(const ContactDetailMsg &conference) noexcept
{
    return guarded([&](ConferenceCardInterface &gateway) {
        return gateway.UpdateVideoConference(CardRequests::update(conference));
    });
}

int CardGateway::cancel(const QString &conferenceId) noexcept
{
    return guarded(
        [&](ConferenceCardInterface &gateway) { return gateway.deleteVideoConference(conferenceId); });
}

int CardGateway::create(const QVector<UserInfo> &members, qint64 startTime) noexcept
{
    return guarded([&](ConferenceCardInterface &gateway) {
        return gateway.createVideoConference(CardRequests::create(members, startTime), startTime);
    });
}

int CardGateway::invite(const QVector<UserInfo> &members) noexcept
{
    return guarded([&](ConferenceCardInterface &gateway) {
        return gateway.inviteVideoConference(CardRequests::invite(members));
    });
}

int CardGateway::openConferenceList() noexcept
{
    return guarded([](ConferenceCardInterface &gateway) { return gateway.openConferenceList(); });
}
