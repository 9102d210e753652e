// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "ibusinessintent.h"

#include <speakmate/reply.h>

/// A handler that also answers.
class IReplyableIntent : public IBusinessIntent
{
public:
    /// Turns @p code, the result of action(), into the reply and returns it. Runs on the GUI thread, because
    /// it may build a card.
    virtual int handleReply(int code, const CloudIntent &intent);
    /// Owned by the handler.
    virtual Reply *getReply();
    virtual void updateReply(const Reply &reply);

protected:
    Reply m_reply;
};
