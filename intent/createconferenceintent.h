// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"

#include <QObject>

/// Starts or books a video conference with the named people.
class CreateConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "CREATE_CONFERENCE";

    explicit CreateConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleCreateVideoMeeting(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleCreateVideoMeeting(const CloudIntent &intent);

private:
    ContactCreatedConferenceDetail m_detail;
};
