// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "names/elsewhere.h"
#include "names/namefinder.h"
#include "text/sentence.h"
#include "time/timeresolver.h"
#include "words/contactindex.h"
#include "words/token.h"

namespace understanding {

/// A piece of a sentence that a slot may hold.
struct Said
{
    int position = 0;
    int length = 0;
    QString value;     ///< as typed
    QString normValue; ///< as it is meant

    bool isEmpty() const { return normValue.isEmpty(); }
};

/// Everything found in one sentence, before its intent is decided.
class Reading final
{
public:
    Reading(const QString &sentence, const ContactIndex &contacts);

    const Sentence &sentence() const { return m_sentence; }
    const Tokens &tokens() const { return m_tokens; }
    const std::vector<FoundName> &names() const { return m_names; }
    const Said &conferenceNumber() const { return m_number; }
    /// True if the number may be incomplete: it touches something that was not read, or digits stand
    /// elsewhere.
    bool isNumberCutOff() const { return m_numberCutOff; }
    /// How many characters no rule knows.
    int strangeLength() const;
    const Said &password() const { return m_password; }
    /// A string of digits, letters or a mail address, whatever it is for.
    const Said &account() const { return m_account; }
    /// The word that opens the conference, as it was said.
    const Said &openVerb() const { return m_openVerb; }
    /// The times of the sentence as typed, joined; empty if there are none.
    const QString &timeSaid() const { return m_timeSaid; }
    const TimeExpression &time() const { return m_time; }
    int timeCount() const { return m_timeCount; }
    /// How many of the times name an hour.
    int clockCount() const { return m_clockCount; }

    /// 明天开会到五点: it is said when the conference ends, but not when it begins.
    bool tellsOnlyEnd() const { return m_endsOnly; }
    /// 今天 and 明天 in one sentence.
    bool namesTwoDays() const { return m_daysDiffer; }
    bool hasDoubtfulName() const;
    /// Where the clause begins that only says who is meant by a later 她 (沈佳掉线了，拉一下她); -1 for none.
    int introduction() const { return m_introduction; }
    /// 来我办公室: somebody is called, but not to a conference.
    bool isElsewhere() const { return !m_elsewhere.isEmpty(); }
    /// 薛宝钗那边也叫上: somebody is called, but nobody was found.
    bool callsNobodyKnown() const;
    /// 下周的今天: a day beside a week or a month that was not read with it.
    bool namesOtherWeek() const;
    enum class Occasions { All, Daily };
    /// 饭后一点, 下班前五点: the hour tells when. The day is known, too, where the occasion comes every day.
    bool namesOnlyOccasion(Occasions which) const;
    /// True if the name at @p position is called (叫上), not only mentioned.
    bool isCalledAt(int position) const;

    /// True if a word of @p wordClass stands outside topics and people's descriptions.
    bool has(WordClass wordClass) const { return m_classes.has(wordClass); }
    bool hasAny(WordClasses classes) const { return m_classes.intersects(classes); }
    /// True for a sentence that ends with a question mark.
    bool isAsked() const { return m_sentence.text().endsWith(QLatin1Char('?')); }

private:
    Said part(int position, int length, const QString &normValue) const;
    Said digitsOf(const Token &token) const;
    void markNames();
    void collectClasses();
    void dropTalkBesideConference();
    bool isEnd(const Token &token) const;
    void collectTimes();
    void collectSpan();
    void collectNumbers();
    bool isLabelled(std::size_t number) const;
    bool isCutOff(std::size_t number) const;
    bool hasStrayDigits() const;
    bool takePassword(std::size_t label);
    void collectOpenVerb();

    Sentence m_sentence;
    Tokens m_tokens;
    std::vector<FoundName> m_names;
    Elsewhere m_elsewhere;
    WordClasses m_classes;
    Said m_number;
    Said m_password;
    Said m_account;
    Said m_openVerb;
    QString m_timeSaid;
    TimeExpression m_time;
    int m_timeCount = 0;
    int m_clockCount = 0;
    int m_introduction = -1;
    bool m_numberCutOff = false;
    bool m_daysDiffer = false;
    bool m_endsOnly = false;
};

inline QString textOf(const Reading &reading, const Token &token)
{
    return reading.sentence().text().mid(token.position, token.length);
}

} // namespace understanding
