// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ireplyableintent.h"

#include <QObject>

/// Joins a conference by its number. When a password is asked for, it arrives in a new intent that repeats
/// the number.
class JoinConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    /// The understanding service's spelling.
    static constexpr const char *IntentName = "ENETR_ID_CONFERENCE";

    explicit JoinConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleJoinVideoMeeting(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleJoinVideoMeeting(const CloudIntent &intent);
};
