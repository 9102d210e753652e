// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

/// What the contacts application answers, for TemplateText.
namespace AnswerTemplate {

#define CONTACT_FUZZ_CONFERENCES                                                                               \
    "[{'confId':'7||8','conferenceDialNumber':'801||4001 234','title':'周会||A much longer title than any'," \
    "'startTime':1772850000000,'duration':3600000,'participantLimit':50,'status':'0|1|2|9|x','isPayingUser'"   \
    ":true,"                                                                                                   \
    "'participants':[{'name':'李雷|王芳|','userId':'u1|u2|','account':'lilei|wf|'}]}]"
#define CONTACT_FUZZ_USERS                                                                                               \
    "[{'name':'李雷|王芳|赵六|','status':'OK|Duplicate|Not "                                                       \
    "Found|ok','remarkName':'老李|','userId':'u1|u2|',"                                                                \
    "'account':'lilei|','duplicate_list':[{'name':'王芳（财务）|王芳（研发）|','userId':'u2|u3|','account':" \
    "'wf1|'}]}]"

constexpr const char *Conferences =
    "{'ret':'OK|Time Overlap|Return|Update Failed|OK?','list':" CONTACT_FUZZ_CONFERENCES "}";
constexpr const char *People =
    "{'ret':'Return|OK','list':" CONTACT_FUZZ_CONFERENCES ",'users':" CONTACT_FUZZ_USERS "}";
constexpr const char *TooMany =
    "{'ret':'Exceed Members Limit|Return','can_invite_num':2,'not_join_list':" CONTACT_FUZZ_USERS "}";
constexpr const char *Outcome =
    "{'ret':'OK|Success|Not Found|No Conference|Conference Not Start|In Other Conference|Conference Create "
    "Too "
    "Frequently|Participant Out Limit|Invalid Passcode|Update Failed|Is Your Friend|Exceed Friend Limit|Is "
    "Yourself|User Not Login|True|False'}";

#undef CONTACT_FUZZ_CONFERENCES
#undef CONTACT_FUZZ_USERS

} // namespace AnswerTemplate
