// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"

#include <QObject>

/// Invites the named people to the conference in progress.
class InviteConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "INVITE_CONFERENCE";

    explicit InviteConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleInviteConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleInviteConference(const CloudIntent &intent);

private:
    ContactInviteMemberDetail m_detail;
};
