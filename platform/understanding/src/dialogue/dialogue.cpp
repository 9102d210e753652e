// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "understanding/dialogue.h"

#include "dialogue/answerclauses.h"
#include "dialogue/answerreader.h"
#include "dialogue/answers.h"
#include "dialogue/giveup.h"
#include "dialogue/peoplechange.h"
#include "dialogue/semanticwriter.h"
#include "dialogue/yesno.h"
#include "meaning/interpreter.h"
#include "meaning/suspicions.h"
#include "words/contactindex.h"

namespace understanding {

namespace {

constexpr int PasswordNeeded = -16014;
const QLatin1String PasswordQuestion("which-password");
const QLatin1String TooManyPasswords("passwords-tried");

/// The open question: what it is for and what was asked.
struct OpenQuestion
{
    Outcome outcome; ///< the intent with the slots said so far; its answer is the question
    TimeExpression time;
    int tries = 0; ///< 0: no question is open

    bool isOpen() const { return tries > 0; }
};

} // namespace

class Dialogue::Private
{
public:
    explicit Private(const QStringList &names) : contacts(names) {}

    QString carryOut(const Outcome &outcome);
    QString ask(const Outcome &outcome, const TimeExpression &time);
    QString askAgain();
    QString askStill();
    QString close(const char *answer);
    QString reply(const Outcome &outcome, const TimeExpression &time);
    bool startsSomethingNew(const Reading &reading, const Outcome &fresh) const;
    bool addsPeople(const Reading &reading, const Outcome &fresh) const;
    QString answerConfirmation(const Interpretation &said, const QDateTime &now);
    QString answerQuestion(const Interpretation &said, const QDateTime &now);
    void askForPassword();

    ContactIndex contacts;
    OpenQuestion question;
    QDate today;
    Outcome lastCommand;
    QString passwordFor; ///< the number whose password was asked for last
    int passwordRounds = 0;
};

QString Dialogue::Private::carryOut(const Outcome &outcome)
{
    question = OpenQuestion();
    lastCommand = outcome;
    return commandJson(outcome);
}

QString Dialogue::Private::ask(const Outcome &outcome, const TimeExpression &time)
{
    question.outcome = outcome;
    question.time = time;
    question.tries = 1;
    return answerJson(answerText(outcome, today));
}

QString Dialogue::Private::askAgain()
{
    if (question.tries >= MostTries) {
        return close("given-up");
    }
    ++question.tries;
    return answerJson(answerText(question.outcome, today, question.tries));
}

/// Asks the same again after an answer that was understood but did not answer it.
QString Dialogue::Private::askStill()
{
    return answerJson(answerText(question.outcome, today));
}

QString Dialogue::Private::close(const char *answer)
{
    question = OpenQuestion();
    return answerJson(answerText(QLatin1String(answer)));
}

/// Carries out, asks or refuses; a refusal without an intent leaves nothing open.
QString Dialogue::Private::reply(const Outcome &outcome, const TimeExpression &time)
{
    if (outcome.isCommand()) {
        return carryOut(outcome);
    }
    if (!outcome.intent.isEmpty()) {
        return ask(outcome, time);
    }
    question = OpenQuestion();
    return answerJson(answerText(outcome, today));
}

/// True if @p fresh, read from @p reading, is a full command, or an incomplete one for another intent or,
/// instead of a password, another number.
bool Dialogue::Private::startsSomethingNew(const Reading &reading, const Outcome &fresh) const
{
    // 不是她，加小凯, while an account is asked for, brings nobody into a conference.
    const bool adds = question.outcome.intent == QLatin1String(AddBuddy) &&
                      fresh.intent == QLatin1String(InviteConference) &&
                      !reading.hasAny(WordClass::Conference | WordClass::Join | WordClass::Arrive);
    if (fresh.intent.isEmpty() || adds) {
        return false;
    }
    return fresh.isCommand() || fresh.intent != question.outcome.intent ||
           (question.outcome.answer == PasswordQuestion && fresh.hasSlot(IdSlot));
}

/// 叫上小凯, while the time of a conference is asked for: nobody is to be brought into another one.
bool Dialogue::Private::addsPeople(const Reading &reading, const Outcome &fresh) const
{
    return question.outcome.intent == QLatin1String(CreateConference) && fresh.isCommand() &&
           fresh.intent == QLatin1String(InviteConference) &&
           !reading.hasAny(WordClass::Conference | WordClass::Join | WordClass::Repair);
}

/// 好啊，再叫上小葛: a yes, and who else is to come. Whoever is left out or replaced makes it unclear.
static bool invitesMore(const Reading &reading, const Outcome &fresh)
{
    constexpr WordClasses unclear =
        WordClass::Negation | WordClass::GiveUp | WordClass::Repair | WordClass::Change | WordClass::Nobody;
    const QString &text = reading.sentence().text();
    return fresh.intent == QLatin1String(InviteConference) && fresh.isCommand() && beginsWithYes(reading) &&
           !reading.hasAny(unclear) && !text.contains(QChar(u'只')) && !text.contains(QChar(u'换'));
}

/// Only a plain yes carries out what was in doubt.
QString Dialogue::Private::answerConfirmation(const Interpretation &said, const QDateTime &now)
{
    const Reading &reading = said.whole;
    const Outcome &fresh = said.outcome;
    YesNo meaning = readYesNo(reading.sentence());
    const bool otherCommand = fresh.isCommand() && fresh.intent != question.outcome.intent;
    if (meaning == YesNo::Unclear && !otherCommand) {
        meaning = readYesNoBeforeReason(reading, question.outcome.intent, contacts);
    }
    switch (meaning) {
    case YesNo::Yes:
        question.outcome.answer.clear();
        return carryOut(Outcome(question.outcome));
    case YesNo::No:
        return close("cancelled");
    case YesNo::Unclear:
        break;
    }
    if (question.outcome.intent == QLatin1String(CreateConference) && invitesMore(reading, fresh)) {
        Outcome together = question.outcome;
        together.answer.clear();
        together.addSlotsOf(fresh);
        return carryOut(together);
    }
    if (addsPeople(reading, fresh)) {
        question.outcome.addSlotsOf(fresh);
        return askStill();
    }
    if (!fresh.intent.isEmpty()) {
        return reply(fresh, said.reading().time());
    }
    // 要现在发起会议吗？ 明天三点。 要预约这个会议吗？ 四点吧。
    Outcome later = question.outcome;
    later.removeSlots(DatetimeSlot);
    const bool dayOnly = !reading.time().hasClock && !reading.time().hasOffset && question.time.hasClock;
    const QString missing = dayOnly ? QStringLiteral("which-day") : QStringLiteral("which-time");
    if (later.intent == QLatin1String(CreateConference) &&
        takeAnswer(missing, reading, now, question.time, later)) {
        return reply(later, reading.time());
    }
    return askAgain();
}

QString Dialogue::Private::answerQuestion(const Interpretation &said, const QDateTime &now)
{
    const Reading &reading = said.whole;
    const Outcome &fresh = said.outcome;
    Outcome answered = question.outcome;
    const QString asked = answered.answer;
    answered.answer.clear();
    if (asked.startsWith(QLatin1String("confirm-"))) {
        return answerConfirmation(said, now);
    }
    if (asked == PasswordQuestion && takeOtherNumber(reading, contacts, answered)) {
        return carryOut(answered);
    }
    const bool otherCommand = fresh.isCommand() && fresh.intent != answered.intent;
    const bool taken = asked != TooManyPasswords &&
                       (takeAnswer(asked, reading, now, question.time, answered) ||
                        (!otherCommand && asked != PasswordQuestion &&
                         takeAnsweringClause(asked, reading, now, question.time, contacts, answered)));
    if (!taken) {
        if (addsPeople(reading, fresh)) {
            question.outcome.addSlotsOf(fresh);
            return askStill();
        }
        if (startsSomethingNew(reading, fresh)) {
            return reply(fresh, said.reading().time());
        }
        return asked == TooManyPasswords ? close(TooManyPasswords.data()) : askAgain();
    }
    if (!answered.answer.isEmpty()) { // still not a usable time
        question.outcome.answer = answered.answer;
        return askAgain();
    }
    answered.answer = missingSlotQuestion(answered);
    return reply(answered, question.time);
}

void Dialogue::Private::askForPassword()
{
    const Slot number = lastCommand.slotsNamed(IdSlot).value(0);
    passwordRounds = number.normValue == passwordFor ? passwordRounds + 1 : 1;
    passwordFor = number.normValue;
    Outcome outcome;
    // A password for "my" conference can only be sent with its number, which is asked for next.
    outcome.intent = QLatin1String(EnterConferenceById);
    if (!number.normValue.isEmpty()) {
        outcome.addSlot(IdSlot, number.value, number.normValue);
    }
    outcome.answer = passwordRounds > MostTries ? TooManyPasswords : PasswordQuestion;
    question = OpenQuestion();
    question.outcome = outcome;
    question.tries = 1; // the plugin has asked it already
}

Dialogue::Dialogue(QStringList contactNames) : m_d(std::make_unique<Private>(contactNames)) {}

Dialogue::~Dialogue() = default;

void Dialogue::setContactNames(const QStringList &names)
{
    m_d->contacts = ContactIndex(names);
}

QString Dialogue::turn(const QString &sentence, const QDateTime &now)
{
    if (sentence.size() > LongestSentence) {
        return answerJson(answerText(QStringLiteral("too-long")));
    }
    m_d->today = now.date();
    Interpretation interpreted = interpret(sentence, now, m_d->contacts);
    const Reading &reading = interpreted.whole;
    const Outcome &fresh = interpreted.outcome;
    if (!m_d->question.isOpen()) {
        return m_d->reply(fresh, interpreted.reading().time());
    }
    const bool toConfirm = m_d->question.outcome.answer.startsWith(QLatin1String("confirm-"));
    const bool ended = givesUp(reading, fresh) || dropsPlan(reading, fresh) || isTakenBack(reading);
    if (ended && !(toConfirm && readYesNo(reading.sentence()) == YesNo::Yes)) {
        return m_d->close("cancelled");
    }
    QString rest;
    switch (changePeople(reading, m_d->contacts, m_d->question.outcome, rest)) {
    case PeopleChange::None:
        break;
    case PeopleChange::Unclear:
        return m_d->askAgain();
    case PeopleChange::Done:
        if (rest.isEmpty()) {
            return m_d->askStill();
        }
        return m_d->answerQuestion(interpret(rest, now, m_d->contacts), now);
    }
    if (fresh.intent == QLatin1String(CloseConference) && callsOff(reading)) {
        interpreted.outcome = Outcome();
    }
    return m_d->answerQuestion(interpreted, now);
}

void Dialogue::noteReply(int code, const QString &)
{
    const bool joined = m_d->lastCommand.intent == QLatin1String(EnterConferenceById) ||
                        m_d->lastCommand.intent == QLatin1String(EnterMyConference);
    if (code == PasswordNeeded && joined) {
        m_d->askForPassword();
    } else {
        m_d->passwordFor.clear();
        m_d->passwordRounds = 0;
    }
}

bool Dialogue::nextIsSecret() const
{
    const QString &asked = m_d->question.outcome.answer;
    return m_d->question.isOpen() && (asked == PasswordQuestion || asked == TooManyPasswords);
}

QString Dialogue::masked(const QString &sentence) const
{
    constexpr QChar bullet(0x2022);
    if (sentence.size() > LongestSentence) {
        return nextIsSecret() ? QString(sentence.size(), bullet) : sentence;
    }
    const Reading reading(sentence, m_d->contacts);
    QString shown = sentence;
    const auto hide = [&](int position, int length) {
        shown.replace(position, length, QString(length, bullet));
    };
    if (!reading.password().isEmpty()) {
        hide(reading.password().position, reading.password().length);
    } else if (nextIsSecret() && !isGiveUp(reading) &&
               interpret(reading, QDateTime::currentDateTime()).intent.isEmpty()) {
        hide(0, shown.size());
    }
    return shown;
}

} // namespace understanding
