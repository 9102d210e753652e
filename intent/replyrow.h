// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "signalactiontype.h"

#include <QMetaType>
#include <QString>
#include <QStringView>

#include <initializer_list>

class CloudIntent;

/// The record of a handler that has none.
struct NoRecord
{
};
Q_DECLARE_METATYPE(NoRecord)

/// What accompanies a reply's texts.
struct Companion
{
    enum Kind {
        Nothing,
        CardBeforeText, ///< the card is attached first, then the text sets code, texts and type
        CardAfterText,
        UnannouncedCard, ///< follows a reply of texts only; the card adds its own bit
        ConferenceList,  ///< the contacts application shows its own list
    };

    [[nodiscard]] constexpr bool isCard() const { return kind != Nothing && kind != ConferenceList; }

    Kind kind = Nothing;
    SignalActionType card = Create_Success; ///< of the kinds with a card
};

/**
 * What the user is told about one outcome of a request. @p Record is the handler's record of the request.
 *
 * A handler's outcomes are a constexpr table that reads as prose:
 * @code
 * using Say = ReplyRow<Detail>;
 * constexpr ReplyTable<Detail> Outcomes = {
 *     Say(ResultCode::Success, u"好的，现在为您%1视频会议。").with(verb).when(isImmediate),
 *     Say(ResultCode::TimeOverlap, u"您已有重复时间会议。").when(isListed).thenCard(Create_TimeOverlap),
 * };
 * @endcode
 */
template <typename Record = NoRecord>
class ReplyRow
{
public:
    using Condition = bool (*)(const Record &record);
    using Argument = QString (*)(const Record &record, const CloudIntent &intent);

    /// @p text is shown and spoken.
    constexpr ReplyRow(int code, QStringView text) : m_code(code), m_text(text) {}

    /// Restricts the row to records for which @p condition holds.
    [[nodiscard]] constexpr ReplyRow when(Condition condition) const
    {
        ReplyRow row = *this;
        row.m_condition = condition;
        return row;
    }

    /// Replaces the text's %1 by what @p first returns, and %2 by what @p second does.
    [[nodiscard]] constexpr ReplyRow with(Argument first, Argument second = nullptr) const
    {
        ReplyRow row = *this;
        row.m_first = first;
        row.m_second = second;
        return row;
    }

    [[nodiscard]] constexpr ReplyRow afterCard(SignalActionType card) const
    {
        return withCompanion({Companion::CardBeforeText, card});
    }

    [[nodiscard]] constexpr ReplyRow thenCard(SignalActionType card) const
    {
        return withCompanion({Companion::CardAfterText, card});
    }

    [[nodiscard]] constexpr ReplyRow thenUnannouncedCard(SignalActionType card) const
    {
        return withCompanion({Companion::UnannouncedCard, card});
    }

    [[nodiscard]] constexpr ReplyRow thenConferenceList() const
    {
        return withCompanion({Companion::ConferenceList});
    }

    [[nodiscard]] bool matches(int code, const Record &record) const
    {
        return m_code == code && (m_condition == nullptr || m_condition(record));
    }

    [[nodiscard]] constexpr const Companion &companion() const { return m_companion; }

    /// The text with its arguments, replaced in one go so that a name containing "%2" is left alone.
    [[nodiscard]] QString text(const Record &record, const CloudIntent &intent) const
    {
        QString text = m_text.toString();
        if (m_first == nullptr) {
            return text;
        }
        const QString first = m_first(record, intent);
        return m_second == nullptr ? text.arg(first) : text.arg(first, m_second(record, intent));
    }

private:
    [[nodiscard]] constexpr ReplyRow withCompanion(Companion companion) const
    {
        ReplyRow row = *this;
        row.m_companion = companion;
        return row;
    }

    int m_code;
    QStringView m_text;
    Condition m_condition = nullptr;
    Argument m_first = nullptr;
    Argument m_second = nullptr;
    Companion m_companion;
};

/// The outcomes of one handler; the first row that matches wins.
template <typename Record = NoRecord>
using ReplyTable = std::initializer_list<ReplyRow<Record>>;
