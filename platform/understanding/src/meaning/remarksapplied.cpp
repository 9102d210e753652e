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

/// Moves @p outcome to the day of the first engagement, if that stands before it:
/// 明天九点没空，十点和张伟开会. Returns false if it is unclear whether that day is meant.
bool takeDayOf(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome)
{
    const TimeExpression &said = order.time();
    if (said.day != TimeExpression::Day::None || !said.hasClock || said.hasOffset) {
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
        TimeExpression time = said;
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

bool comes(const Outcome &outcome, const QString &name)
{
    Outcome without = outcome;
    removePerson(without, name);
    return without.slotList.size() < outcome.slotList.size();
}

/// Settles the day of @p outcome. Returns false if it is unclear when the conference is to be.
bool settleTime(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome)
{
    if (remarks.engagements.isEmpty()) {
        return true;
    }
    TimeExpression said = order.time();
    const bool hourSaid = said.hasClock || said.hasOffset;
    if (!hourSaid || !takeDayOf(remarks, order, now, outcome)) {
        return false;
    }
    if (remarks.engagements.first().frame) {
        said.complete(remarks.engagements.first().from);
    }
    const ResolvedTime meeting = resolveTime(said, now);
    const auto hinders = [&](const Remarks::Engagement &engagement) {
        const QStringList &people = engagement.people;
        const bool concerns =
            people.isEmpty() || std::any_of(people.cbegin(), people.cend(),
                                            [&](const QString &name) { return comes(outcome, name); });
        return concerns && mayFallInto(engagement, said, meeting, now);
    };
    return std::none_of(remarks.engagements.cbegin(), remarks.engagements.cend(), hinders);
}

/// Whom @p person means among those whom @p order names; empty if that is unclear.
QStringList peopleMeant(const Remarks::Person &person, const Reading &order)
{
    if (!person.name.isEmpty()) {
        return {person.name};
    }
    QStringList before;
    for (const FoundName &found : order.names()) {
        if (found.position < person.position) {
            before.append(found.said);
        }
    }
    return before.size() == 1 || person.all ? before : QStringList();
}

/// Removes from @p outcome who does not come. Returns false if it is unclear who does.
bool settlePeople(const Remarks &remarks, const Reading &order, Outcome &outcome)
{
    bool clear = true;
    Outcome left = outcome;
    for (const Remarks::Person &person : remarks.absent) {
        const QStringList people = peopleMeant(person, order);
        clear = clear && !people.isEmpty();
        for (const QString &name : people) {
            if (person.maybe) {
                clear = clear && !comes(outcome, name);
            } else {
                removePerson(left, name);
            }
        }
    }
    if (left.hasSlot(NameSlot) || !outcome.hasSlot(NameSlot)) {
        outcome = left;
        return clear;
    }
    const bool leftOut = std::all_of(remarks.absent.cbegin(), remarks.absent.cend(),
                                     [](const Remarks::Person &person) { return person.leftOut; });
    if (leftOut) { // 约李娜开会，李娜不来了: whom, then?
        outcome = left;
        outcome.needsName = true;
        outcome.answer = outcome.isCommand() ? missingSlotQuestion(outcome) : outcome.answer;
    }
    return false; // 约李娜开会，她没空
}

} // namespace

void applyRemarks(const Remarks &remarks, const Reading &order, const QDateTime &now, Outcome &outcome)
{
    const bool opens = outcome.intent == QLatin1String(CreateConference);
    if (!opens && outcome.intent != QLatin1String(InviteConference)) {
        return;
    }
    const bool timeClear = !opens || settleTime(remarks, order, now, outcome);
    const bool peopleClear = settlePeople(remarks, order, outcome);
    if (!(timeClear && peopleClear) && outcome.isCommand()) {
        outcome.answer = confirmation(outcome);
    }
}

} // namespace understanding
