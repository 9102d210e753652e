// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/interpreter.h"

#include "meaning/background.h"
#include "meaning/callings.h"
#include "meaning/gate.h"
#include "meaning/intentrules.h"
#include "meaning/remarks.h"
#include "meaning/remarksapplied.h"
#include "meaning/suspicions.h"
#include "time/timeresolver.h"

#include <algorithm>

namespace understanding {

namespace {

/// {"suggestDatetime":"2026-03-08T15:00:00"}, which the builders of requests read.
QString suggestedDatetime(const ResolvedTime &time)
{
    return QStringLiteral("{\"suggestDatetime\":\"%1\"}").arg(time.toString());
}

QString problemAnswer(ResolvedTime::Problem problem)
{
    switch (problem) {
    case ResolvedTime::Problem::NoSuchDate:
        return QStringLiteral("no-such-date");
    case ResolvedTime::Problem::Contradiction:
        return QStringLiteral("contradiction");
    case ResolvedTime::Problem::NoHour:
        return QStringLiteral("which-time");
    case ResolvedTime::Problem::None:
        break;
    }
    return {};
}

void fillNames(Outcome &outcome, const Reading &reading)
{
    constexpr int longestLink = 2; // 还有
    int end = 0;                   // of the name before
    for (const FoundName &name : reading.names()) {
        // 张伟、张伟 are two people, 曹总后天有空，帮我跟曹总约个会 names one.
        const QString between = reading.sentence().text().mid(end, qMax(0, name.position - end));
        const bool again = outcome.hasSlot(NameSlot) &&
                           (between.size() > longestLink || between.contains(QLatin1Char(','))) &&
                           std::any_of(outcome.slotList.cbegin(), outcome.slotList.cend(),
                                       [&](const Slot &slot) { return slot.normValue == name.name; });
        if (!again) {
            outcome.addSlot(NameSlot, name.said, name.name);
        }
        end = name.position + name.said.size();
    }
    outcome.needsName = callsByAddressOnly(reading) || callsNumber(reading);
}

void fillOpenVerb(Outcome &outcome, const Reading &reading, const QDateTime &)
{
    if (!reading.openVerb().isEmpty()) {
        outcome.addSlot(OpenSlot, reading.openVerb().value, reading.openVerb().normValue);
    }
}

void fillSaidTime(Outcome &outcome, const Reading &reading, const QDateTime &now)
{
    // 周末，周六上午十点 is clear.
    const bool dayNamed = reading.time().day != TimeExpression::Day::None;
    const bool clear = reading.clockCount() > 0 && ((dayNamed && !reading.namesOtherWeek()) ||
                                                    reading.namesOnlyOccasion(Reading::Occasions::All));
    if ((reading.has(WordClass::UnclearDay) && !clear) || (reading.has(WordClass::Festival) && !dayNamed)) {
        // 下班后开会 lacks the hour only.
        const bool onlyHour =
            !reading.has(WordClass::Festival) && reading.namesOnlyOccasion(Reading::Occasions::Daily);
        outcome.answer = onlyHour ? QStringLiteral("which-time") : QStringLiteral("which-day");
    } else if (reading.namesTwoDays() && outcome.intent == QLatin1String(CreateConference)) {
        outcome.answer = QStringLiteral("which-day"); // 明天要出差，后天三点开个会
    } else if (!reading.timeSaid().isEmpty()) {
        fillTime(outcome, reading.time(), reading.timeSaid(), now);
    }
}

void fillConference(Outcome &outcome, const Reading &reading, const QDateTime &now)
{
    fillNames(outcome, reading);
    fillSaidTime(outcome, reading, now);
    // A query for "soon" covers everything to come; opening a conference "soon" needs the hour.
    if (outcome.answer.isEmpty() && reading.timeSaid().isEmpty() && reading.has(WordClass::UnclearSoon)) {
        outcome.answer = QStringLiteral("which-time");
    }
    fillOpenVerb(outcome, reading, now);
}

void fillInvitation(Outcome &outcome, const Reading &reading, const QDateTime &)
{
    fillNames(outcome, reading);
}

void fillNumber(Outcome &outcome, const Reading &reading, const QDateTime &)
{
    // The handler reads the number's "value", so both are digits.
    const Said &number = reading.conferenceNumber();
    if (reading.isNumberCutOff()) {
        outcome.answer = QStringLiteral("whole-number");
    } else if (!number.isEmpty() && !outcome.hasSlot(IdSlot)) {
        outcome.addSlot(IdSlot, number.normValue, number.normValue);
    }
    const Said &password = reading.password();
    if (!password.isEmpty() && !outcome.hasSlot(PasswordSlot)) {
        outcome.addSlot(PasswordSlot, password.value, password.normValue);
    }
}

void fillAccount(Outcome &outcome, const Reading &reading, const QDateTime &)
{
    const Said &account = reading.account();
    constexpr int shortest = 3; // initials are no account
    if (isAccountUnclear(reading)) {
        return; // asked for again
    }
    if (account.normValue.size() >= shortest) {
        outcome.addSlot(AccountSlot, account.value, account.normValue);
    } else if (!reading.names().empty()) {
        const FoundName &name = reading.names().front();
        outcome.addSlot(AccountSlot, name.said, name.name);
    }
}

/// True for the refusal of a time: people and the verb stay, and the next sentence may give another time.
bool keepsWhatWasSaid(const QString &answer)
{
    static const QStringList refusals = {QStringLiteral("recurring"), QStringLiteral("either-or"),
                                         QStringLiteral("other-zone"), QStringLiteral("lunar")};
    return refusals.contains(answer);
}

void fillNothing(Outcome &, const Reading &, const QDateTime &) {}

/// What each intent takes from a sentence, and what it asks if that is missing.
constexpr struct
{
    const char *intent;
    void (*fill)(Outcome &, const Reading &, const QDateTime &);
    const char *required;
    const char *question;
    const char *confirmation;
} IntentTable[] = {
    {CreateConference, fillConference, nullptr, nullptr, "confirm-create"},
    {InviteConference, fillInvitation, NameSlot, "whom-to-invite", "confirm-invite"},
    {EnterConferenceById, fillNumber, IdSlot, "which-conference", "confirm-join"},
    {EnterMyConference, fillNothing, nullptr, nullptr, "confirm-join-mine"},
    {CloseConference, fillNothing, nullptr, nullptr, "confirm-close"},
    {QueryConference, fillSaidTime, nullptr, nullptr, "confirm-query"},
    {AddBuddy, fillAccount, AccountSlot, "whom-to-add", "confirm-add"},
};

} // namespace

QString confirmation(const Outcome &outcome)
{
    for (const auto &row : IntentTable) {
        if (outcome.intent == QLatin1String(row.intent)) {
            const bool later =
                outcome.intent == QLatin1String(CreateConference) && outcome.hasSlot(DatetimeSlot);
            return later ? QStringLiteral("confirm-create-then") : QString(QLatin1String(row.confirmation));
        }
    }
    return {};
}

void fillTime(Outcome &outcome, const TimeExpression &time, const QString &said, const QDateTime &now)
{
    const ResolvedTime resolved = resolveTime(time, now);
    if (resolved.problem == ResolvedTime::Problem::None) {
        outcome.addSlot(DatetimeSlot, said, suggestedDatetime(resolved));
    } else {
        outcome.answer = problemAnswer(resolved.problem);
    }
}

QString missingSlotQuestion(const Outcome &outcome)
{
    if (outcome.needsName && !outcome.hasSlot(NameSlot)) {
        return QStringLiteral("whom-to-invite");
    }
    for (const auto &row : IntentTable) {
        if (outcome.intent == QLatin1String(row.intent) && row.required != nullptr &&
            !outcome.hasSlot(row.required)) {
            return QLatin1String(row.question);
        }
    }
    return {};
}

/// True if the order that may begin at @p start was read from @p rest as @p ordered, and says more clearly
/// what is wanted than @p whole, which was read as @p outcome.
static bool isBetter(const Outcome &ordered, const Outcome &outcome, const Reading &whole,
                     const Reading &rest, const OrderStart &start)
{
    const bool asks = ordered.intent == QLatin1String(QueryConference);
    const QString told = whole.sentence().text().left(start.position);
    if (!ordered.isCommand() || (start.queryOnly && !asks) || (!asks && tellsWhatOthersWant(told)) ||
        dropsSomething(whole, rest, ordered.intent, start.position)) {
        return false;
    }
    if (!outcome.isCommand()) {
        return true;
    }
    // 路让雨水冲坏了，请张伟开会 names one person; 昨天的不用管，查一下今天的会议 means one day.
    const bool fewer = whole.names().size() > rest.names().size() && !rest.names().empty();
    return ordered.intent == outcome.intent && (start.onlyToldBefore || asks) &&
           (fewer || whole.namesTwoDays());
}

/// Reads a sentence without remarks, or takes those it has for part of the order.
static Interpretation interpretOrder(const QString &sentence, Reading whole, const QDateTime &now,
                                     const ContactIndex &contacts)
{
    Outcome outcome = interpret(whole, now);
    const bool unambiguous = outcome.isCommand() && whole.names().size() < 2 && !whole.namesTwoDays();
    if (!unambiguous) {
        const bool open = leavesOpenWhoComes(whole); // 不光叫李娜，也叫孙丽
        for (const OrderStart &start : startsOfOrder(whole)) {
            Reading rest(sentence.mid(start.position), contacts);
            Outcome ordered = interpret(rest, now);
            const bool calls = ordered.intent == QLatin1String(CreateConference) ||
                               ordered.intent == QLatin1String(InviteConference);
            if (!(open && calls) && isBetter(ordered, outcome, whole, rest, start)) {
                return {std::move(whole), std::move(rest), std::move(ordered)};
            }
        }
    }
    const int question = outcome.isCommand() ? 0 : endOfQuestion(whole);
    if (question > 0) {
        Reading asked(sentence.left(question), contacts);
        Outcome answered = interpret(asked, now);
        if (answered.isCommand() && answered.intent == QLatin1String(QueryConference) &&
            asked.hasAny(AskingWords)) {
            return {std::move(whole), std::move(asked), std::move(answered)};
        }
    }
    return {std::move(whole), {}, std::move(outcome)};
}

Interpretation interpret(const QString &sentence, const QDateTime &now, const ContactIndex &contacts)
{
    if (sentence.size() > LongestSentence) {
        Outcome refused;
        refused.answer = QStringLiteral("too-long");
        return {Reading(QString(), contacts), {}, std::move(refused)};
    }
    Reading whole(sentence, contacts);
    const Remarks remarks = findRemarks(sentence, whole.sentence().text(), contacts);
    if (!remarks.isEmpty()) {
        Interpretation order = interpretOrder(remarks.order, Reading(remarks.order, contacts), now, contacts);
        // 李娜走了，散会吧 may be about her.
        if (!order.outcome.intent.isEmpty() && order.outcome.intent != QLatin1String(CloseConference)) {
            applyRemarks(remarks, order.reading(), now, order.outcome);
            return {std::move(whole), Reading(order.reading()), std::move(order.outcome)};
        }
    }
    return interpretOrder(sentence, std::move(whole), now, contacts);
}

Outcome interpret(const Reading &reading, const QDateTime &now)
{
    Outcome outcome;
    const QString decision = decideIntent(reading);
    if (decision.startsWith(QLatin1Char('?'))) {
        outcome.answer = decision.mid(2);
        if (keepsWhatWasSaid(outcome.answer) &&
            judge(reading, QLatin1String(CreateConference)) != Verdict::Refuse) {
            outcome.intent = reading.has(WordClass::Query) || reading.has(WordClass::Question)
                                 ? QLatin1String(QueryConference)
                                 : QLatin1String(CreateConference);
            if (outcome.intent == QLatin1String(CreateConference)) {
                fillNames(outcome, reading);
                fillOpenVerb(outcome, reading, now);
            }
        }
        return outcome;
    }
    const Verdict verdict = judge(reading, decision);
    if (verdict == Verdict::Refuse) {
        outcome.answer = QStringLiteral("not-meant");
        return outcome;
    }
    outcome.intent = decision;
    for (const auto &row : IntentTable) {
        if (outcome.intent == QLatin1String(row.intent)) {
            row.fill(outcome, reading, now);
        }
    }
    if (outcome.answer.isEmpty()) {
        outcome.answer = missingSlotQuestion(outcome);
    }
    if (outcome.answer.isEmpty() && verdict == Verdict::Ask) {
        outcome.answer = confirmation(outcome);
    }
    return outcome;
}

} // namespace understanding
