// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

namespace understanding {

/// What a word is, one bit each; a word may be several things. The rule files spell these names in lower case
/// with spaces; lexicon.cpp has the table.
enum class WordClass : quint8 {
    Conference,    ///< 会议
    Video,         ///< 视频, 聊一下: a conference when people are named
    Talk,          ///< 评审, 讨论: people do it together, in a conference or in a room
    StrongOpen,    ///< 发起: opens one by itself
    GoverningOpen, ///< 打开: only right before the conference
    WeakOpen,      ///< 开: needs 会 or 个 behind it
    Measure,       ///< 一个, 一下
    OpenParticle,
    Join,
    WeakJoin,
    Mine,
    Ongoing,
    Back,
    Close,
    CloseAlone,
    Invite,
    InviteNoun,
    Arrive,   ///< 进来: an invitation whatever the verb
    ComeMeet, ///< 来开会: an invitation unless a time is said
    Query,
    Question,
    QuestionParticle,
    AskedTime,
    Have,
    Schedule,
    Next,
    Add,
    Buddy,
    BuddyNoun,
    AccountLabel,
    IdLabel,
    PasswordLabel,
    NoPassword,
    LabelLink,
    Trigger,     ///< names follow
    Pull,        ///< calls somebody in
    WeakTrigger, ///< names may follow; they must look like names
    NameLabel,
    Separator,
    Nobody,
    NameTail,
    Title,
    Filler,
    Punctuation,
    Plain,
    Negation,
    Recurring,
    EitherOr,
    Zone,
    Lunar,
    Festival,
    UnclearDay,
    UnclearSoon,
    HowTo,
    Unsupported,
    Cancel,
    Change,
    Topic,    ///< what follows is what the conference is about
    GiveUp,   ///< ends a question
    Request,  ///< 帮我: the speaker wants it done
    Actor,    ///< 他, 谁: before a verb, somebody else does it
    Reported, ///< 已经, 刚刚: it has happened, or has not
    Framed,   ///< 听说, 如果: told, wished or supposed, not ordered
    Repair,   ///< 不对: what follows replaces what was said
    Address,  ///< 兄弟, 管家: a form of address, no name
    Count
};

class WordClasses final
{
public:
    constexpr WordClasses() = default;
    constexpr WordClasses(WordClass one) // NOLINT(google-explicit-constructor)
        : m_low(bit(static_cast<quint8>(one)))
        , m_high(bit(static_cast<quint8>(one) - BitsPerWord))
    {
    }
    constexpr bool has(WordClass one) const { return intersects(one); }
    constexpr bool isEmpty() const { return (m_low | m_high) == 0; }
    constexpr bool intersects(WordClasses other) const
    {
        return ((m_low & other.m_low) | (m_high & other.m_high)) != 0;
    }
    constexpr void add(WordClasses other)
    {
        m_low |= other.m_low;
        m_high |= other.m_high;
    }
    constexpr void remove(WordClasses other)
    {
        m_low &= ~other.m_low;
        m_high &= ~other.m_high;
    }
    constexpr WordClasses operator|(WordClasses other) const
    {
        other.add(*this);
        return other;
    }

private:
    static constexpr int BitsPerWord = 64;
    static constexpr quint64 bit(int place)
    {
        return place >= 0 && place < BitsPerWord ? quint64(1) << place : 0;
    }
    quint64 m_low = 0;
    quint64 m_high = 0;
};
static_assert(static_cast<quint8>(WordClass::Count) <= 128, "one bit each");

constexpr WordClasses operator|(WordClass a, WordClass b)
{
    return WordClasses(a) | WordClasses(b);
}

/// Words that ask what there is: 查一下, 什么, 吗.
constexpr WordClasses AskingWords = WordClass::Query | WordClass::Question | WordClass::QuestionParticle;

} // namespace understanding
