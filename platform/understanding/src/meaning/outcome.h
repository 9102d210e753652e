// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

namespace understanding {

// The intents, as the handlers are registered.
constexpr char createConference[] = "CREATE_CONFERENCE";
constexpr char inviteConference[] = "INVITE_CONFERENCE";
constexpr char enterConferenceById[] = "ENETR_ID_CONFERENCE"; // its spelling is the interface
constexpr char enterMyConference[] = "ENTER_MY_CONFERENCE";
constexpr char closeConference[] = "CLOSE_CONFERENCE";
constexpr char queryConference[] = "QUERY_CONFERENCE";
constexpr char addBuddy[] = "ADD_BUDDY";

// The slots that the handlers read.
constexpr char nameSlot[] = "name";
constexpr char datetimeSlot[] = "datetime";
constexpr char openSlot[] = "open";
constexpr char idSlot[] = "id";
constexpr char passwordSlot[] = "password";
constexpr char accountSlot[] = "account";

/// One thing said with an intent.
struct Slot
{
    QString name;
    QString value;     ///< as it was said
    QString normValue; ///< as the handlers need it
};

/// What a sentence comes to: an intent to carry out, or an answer (a row of answers.tsv) that asks or
/// refuses.
struct Outcome
{
    QString intent; ///< also set for a question: what it is asked for
    QVector<Slot> slotList;
    QString answer; ///< empty for an intent that can be carried out

    bool isCommand() const { return answer.isEmpty(); }
    bool hasSlot(const char *name) const;
    void addSlot(const char *name, const QString &value, const QString &normValue);
};

} // namespace understanding
