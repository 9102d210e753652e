// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintentfactory.h"

#include "contactintents.h"

ContactIntentFactory *ContactIntentFactory::instance()
{
    static ContactIntentFactory factory;
    return &factory;
}

ContactIntentFactory::ContactIntentFactory()
{
    registerIntent<CreateConferenceIntent>();
    registerIntent<InviteConferenceIntent>();
    registerIntent<JoinConferenceIntent>();
    registerIntent<JoinMyConferenceIntent>();
    registerIntent<CloseConferenceIntent>();
    registerIntent<AddBuddyIntent>();
    registerIntent<QueryConferenceIntent>();
}
