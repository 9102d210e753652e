// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ibusinessintent.h"

#include <speakmate/reply.h>

/// A handler that also answers.
class IReplyableIntent : public IBusinessIntent
{
public:
    /// Turns the result of action() into the reply, on the GUI thread because a card may be built. Returns @p
    /// code.
    virtual int handleReply(int code, const CloudIntent &intent);
    /// Owned by the handler.
    virtual Reply *getReply();
    virtual void updateReply(const Reply &reply);

protected:
    Reply m_reply;
};
