// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ireplyableintent.h"

#include <QObject>

/// Sends a friend request to an account.
class AddBuddyIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "ADD_BUDDY";

    explicit AddBuddyIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleAddBuddy(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleAddBuddy(const CloudIntent &intent);
};
