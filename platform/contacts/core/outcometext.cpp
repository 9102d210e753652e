// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/outcometext.h"

#include "core/outcome.h"

#include <QCoreApplication>
#include <QHash>

QString outcomeText(const QString &word)
{
    static const QHash<QString, const char *> texts{
        {Outcome::Ok, QT_TRANSLATE_NOOP("OutcomeText", "Done.")},
        {Outcome::Return, QT_TRANSLATE_NOOP("OutcomeText", "Not found, or several contacts have that name.")},
        {Outcome::NotFound, QT_TRANSLATE_NOOP("OutcomeText", "Not found.")},
        {Outcome::NoConference, QT_TRANSLATE_NOOP("OutcomeText", "There is no conference going on.")},
        {Outcome::ConferenceNotStarted, QT_TRANSLATE_NOOP("OutcomeText", "The conference has not started.")},
        {Outcome::TimeOverlap, QT_TRANSLATE_NOOP("OutcomeText", "The time is taken by another conference.")},
        {Outcome::IsYourFriend,
         QT_TRANSLATE_NOOP("OutcomeText", "They are your friend already, or have been asked.")},
        {Outcome::ExceedFriendLimit,
         QT_TRANSLATE_NOOP("OutcomeText", "You have as many friends as you can have.")},
        {Outcome::IsYourself, QT_TRANSLATE_NOOP("OutcomeText", "You cannot be your own friend.")},
        {Outcome::InOtherConference, QT_TRANSLATE_NOOP("OutcomeText", "You are in another conference.")},
        {Outcome::InvalidPasscode,
         QT_TRANSLATE_NOOP("OutcomeText", "The passcode is wrong. Please type it and join again.")},
        {Outcome::NotLoggedIn, QT_TRANSLATE_NOOP("OutcomeText", "Please log in first.")},
        {Outcome::TooFrequent,
         QT_TRANSLATE_NOOP("OutcomeText", "Too many at once. Please try again in a while.")},
        {Outcome::ParticipantsFull, QT_TRANSLATE_NOOP("OutcomeText", "The conference is full.")},
        {Outcome::UpdateFailed, QT_TRANSLATE_NOOP("OutcomeText", "It could not be changed.")},
    };
    return QCoreApplication::translate("OutcomeText",
                                       texts.value(word, QT_TRANSLATE_NOOP("OutcomeText", "That failed.")));
}
