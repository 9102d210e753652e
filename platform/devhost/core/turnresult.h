// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/reply.h>

#include <QString>

namespace devhost {

/// The outcome of one call of a service.
struct TurnResult
{
    int status = 0;  ///< of service(): 0 handled, -100 the semantic could not be read, ...
    Reply reply;     ///< its widget is the receiver's
    QString failure; ///< why there is no reply; empty when there is one
    double serviceMsecs = 0;
    double replyMsecs = 0;

    bool isUnread() const { return status == -100; }
};

} // namespace devhost
