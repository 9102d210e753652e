// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"

#include <QObject>

/// Shows the user's conferences on a day, or from now on.
class QueryConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "QUERY_CONFERENCE";

    explicit QueryConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleQueryConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleQueryConference(const CloudIntent &intent);

private:
    ContactQueryConferenceDetail m_detail;
};
