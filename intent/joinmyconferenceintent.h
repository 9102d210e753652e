// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"

#include <QObject>

/// Joins the user's own conference, or offers a choice of several.
class JoinMyConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "ENTER_MY_CONFERENCE";

    explicit JoinMyConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleJoinMyConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleJoinMyConference(const CloudIntent &intent);

private:
    ContactQueryConferenceDetail m_detail;
};
