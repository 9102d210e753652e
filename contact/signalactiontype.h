// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// What a card shows, and the record that travels with it in a QVariant. Sent as int.
enum SignalActionType {
    Create_Success = 0,     ///< ContactCreatedConferenceDetail
    Create_Duplicate = 1,   ///< ContactCreatedConferenceDetail
    Create_TimeOverlap = 2, ///< ContactCreatedConferenceDetail
    Invite_Duplicate = 3,   ///< ContactInviteMemberDetail
    Invite_ExceedLimit = 4, ///< ContactInviteMemberDetail
    JoinMy_List = 5,        ///< ContactQueryConferenceDetail
    Query_List = 6,         ///< ContactQueryConferenceDetail
};
