// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/remarksapplied.h"

#include "meaning/interpreter.h"
#include "time/timeresolver.h"

#include <algorithm>

namespace understanding {

namespace {

/// True if a conference at @p meeting may fall into @p engagement, of which @p said is the order's time.
bool mayFallInto(const Remarks::Engagement &engagement, const TimeExpression &said,
                 const ResolvedTime &meeting, const QDateTime &now)
{
    TimeExpression rest = said; // of 明天九点开会，她九点没空
    rest.hasClock = false;
    rest.hasOffset = false;
    rest.part = engagement.from.hasClock ? rest.part : -1;
    TimeExpression from = engagement.from;
    from.complete(rest);
    const ResolvedTime busy = resolveTime(from, now);
    if (busy.date != meeting.date || !busy.time.isValid() || !meeting.time.isValid()) {
        return busy.date == meeting.date;
    }
    if (engagement.bound == QChar(u'前')) {
        return meeting.time < busy.time;
    }
    if (engagement.bound == QChar(u'后')) {
        return meeting.time >= busy.time;
    }
    if (!engagement.to.isEmpty()) {
        TimeExpression to = engagement.to;
        to.complete(from);
        return meeting.time >= busy.time && meeting.time < resolveTime(to, now).time;
    }
    if (engagement.from.hasClock || engagement.from.hasOffset) {
        return meeting.time == busy.time;
    }
    constexpr int noon = 12;
    constexpr int evening = 18;
    const auto part = [](const QTime &time) {
        return time.hour() < noon ? 0 : time.hour() < evening ? 1 : 2;
    };
    return engagement.from.part < 0 || part(meeting.time) == part(busy.time);
}

/// Moves @p outcome to the day of the engagement that stands before it: 明天九点没空，十点和张伟开会. Returns
/// false if it is unclear whether that day is meant.
bool takeDayOf(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome)
{
    if (remarks.engagements.isEmpty() || order.time().day != TimeExpression::Day::None ||
        !order.time().hasClock || order.time().hasOffset) {
        return true;
    }
    const Remarks::Engagement &first = remarks.engagements.first();
    if (first.from.day == TimeExpression::Day::None || first.from.isPastDay()) {
        return true;
    }
    if (first.frame) {
        TimeExpression day = first.from;
        day.part = -1;
        day.hasClock = false;
        TimeExpression time = order.time();
        time.complete(day);
        outcome.removeSlots(DatetimeSlot);
        fillTime(outcome, time, order.timeSaid(), now);
    }
    return !first.personal;
}

/// Removes from @p outcome the person called @p name, however the name is written: Tom, tom.
void removePerson(Outcome &outcome, const QString &name)
{
    const QString plain = Sentence(name).text();
    for (int at = outcome.slotList.size() - 1; at >= 0; --at) {
        const Slot &slot = outcome.slotList.at(at);
        const auto same = [&](const QString &text) {
            return Sentence(text).text().compare(plain, Qt::CaseInsensitive) == 0;
        };
        if (slot.name == QLatin1String(NameSlot) && (same(slot.value) || same(slot.normValue))) {
            outcome.slotList.removeAt(at);
        }
    }
}

} // namespace

void applyRemarks(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome)
{
    const bool opens = outcome.intent == QLatin1String(CreateConference);
    if (!opens && outcome.intent != QLatin1String(InviteConference)) {
        return;
    }
    const auto comes = [&](const QString &name) {
        Outcome without = outcome;
        removePerson(without, name);
        return without.slotList.size() < outcome.slotList.size();
    };
    bool unclear = false;
    if (opens && !remarks.engagements.isEmpty()) {
        const bool hourSaid = order.time().hasClock || order.time().hasOffset;
        unclear = !takeDayOf(remarks, order, now, outcome) || !hourSaid;
        TimeExpression said = order.time();
        if (remarks.engagements.first().frame) {
            said.complete(remarks.engagements.first().from);
        }
        const ResolvedTime meeting = resolveTime(said, now);
        unclear = unclear || std::any_of(remarks.engagements.cbegin(), remarks.engagements.cend(),
                                         [&](const Remarks::Engagement &engagement) {
                                             const QStringList &people = engagement.people;
                                             return mayFallInto(engagement, said, meeting, now) &&
                                                    (people.isEmpty() ||
                                                     std::any_of(people.cbegin(), people.cend(), comes));
                                         });
    }
    Outcome left = outcome;
    for (const Remarks::Person &person : remarks.absent) {
        QStringList people(person.name);
        if (person.name.isEmpty()) {
            people.clear();
            for (const FoundName &found : order.names()) {
                if (found.position < person.position) {
                    people.append(found.said);
                }
            }
            if (people.size() != 1 && !person.all) { // 她: who?
                unclear = true;
                people.clear();
            }
        }
        for (const QString &name : qAsConst(people)) {
            unclear = unclear || (person.maybe && comes(name));
            if (!person.maybe) {
                removePerson(left, name);
            }
        }
    }
    if (left.hasSlot(NameSlot)) {
        outcome = left;
    } else if (outcome.hasSlot(NameSlot)) {
        const bool leftOut = std::all_of(remarks.absent.cbegin(), remarks.absent.cend(),
                                         [](const Remarks::Person &person) { return person.leftOut; });
        if (leftOut) { // 约李娜开会，李娜不来了: whom, then?
            const QString asked = outcome.answer;
            outcome = left;
            outcome.needsName = true;
            outcome.answer = asked.isEmpty() ? missingSlotQuestion(outcome) : asked;
        }
        unclear = true; // 约李娜开会，她没空
    }
    if (unclear && outcome.isCommand()) {
        outcome.answer = confirmation(outcome);
    }
}

} // namespace understanding
