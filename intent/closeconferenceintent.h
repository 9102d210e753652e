// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ireplyableintent.h"

#include <QObject>

/// Leaves the conference in progress.
class CloseConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "CLOSE_CONFERENCE";

    explicit CloseConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleCloseConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleCloseConference(const CloudIntent &intent);
};
