// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationpage.h"

#include "conversationaccessible.h"
#include "conversationview.h"

namespace devhost {

ConversationPage::ConversationPage(ConversationView &view) : m_view(view)
{
    ConversationAccessible::registerFactory();
}

} // namespace devhost
