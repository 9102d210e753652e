// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintentfactory.h"

#include "addbuddyintent.h"
#include "closeconferenceintent.h"
#include "createconferenceintent.h"
#include "inviteconferenceintent.h"
#include "joinconferenceintent.h"
#include "joinmyconferenceintent.h"
#include "queryconferenceintent.h"

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
