// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ireplyableintent.h"

int IReplyableIntent::handleReply(int code, const CloudIntent & /*intent*/)
{
    return code;
}

Reply *IReplyableIntent::getReply()
{
    return &m_reply;
}

void IReplyableIntent::updateReply(const Reply &reply)
{
    m_reply = reply;
}
