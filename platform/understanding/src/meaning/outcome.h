// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

namespace understanding {

// The intents, by the names their handlers are registered under.
constexpr char CreateConference[] = "CREATE_CONFERENCE";
constexpr char InviteConference[] = "INVITE_CONFERENCE";
constexpr char EnterConferenceById[] = "ENETR_ID_CONFERENCE"; // misspelt in the interface
constexpr char EnterMyConference[] = "ENTER_MY_CONFERENCE";
constexpr char CloseConference[] = "CLOSE_CONFERENCE";
constexpr char QueryConference[] = "QUERY_CONFERENCE";
constexpr char AddBuddy[] = "ADD_BUDDY";

// The slots that the handlers read.
constexpr char NameSlot[] = "name";
constexpr char DatetimeSlot[] = "datetime";
constexpr char OpenSlot[] = "open";
constexpr char IdSlot[] = "id";
constexpr char PasswordSlot[] = "password";
constexpr char AccountSlot[] = "account";

/// One thing said with an intent.
struct Slot
{
    QString name;
    QString value;     ///< as it was said
    QString normValue; ///< as the handlers need it
};

/// The result of interpreting a sentence: an intent to carry out, or an answer (a row of answers.tsv) that
/// asks or refuses.
struct Outcome
{
    QString intent; ///< also set for a question: what it is about
    QVector<Slot> slotList;
    bool needsName = false; ///< somebody was called, but without a name
    QString answer;         ///< empty for an intent that can be carried out

    bool isCommand() const { return answer.isEmpty(); }
    bool hasSlot(const char *name) const;
    QVector<Slot> slotsNamed(const char *name) const;
    void addSlot(const char *name, const QString &value, const QString &normValue);
    /// Removes the slots called @p name, or only those said as @p value if it is given.
    void removeSlots(const char *name, const QString &value = QString());
    /// Adds the slots of @p other that are not there yet.
    void addSlotsOf(const Outcome &other);
};

} // namespace understanding
