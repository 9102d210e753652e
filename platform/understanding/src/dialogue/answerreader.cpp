// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answerreader.h"

#include "dialogue/peoplechange.h"
#include "meaning/interpreter.h"
#include "meaning/suspicions.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"
#include "words/lexicon.h"

#include <QRegularExpression>

#include <algorithm>

namespace understanding {

namespace {

/// Words that may stand around an answer: 嗯，会议号是…吧.
constexpr WordClasses SurroundingWords =
    WordClass::Filler | WordClass::Punctuation | WordClass::LabelLink | WordClass::IdLabel |
    WordClass::PasswordLabel | WordClass::AccountLabel | WordClass::NameLabel | WordClass::Measure |
    WordClass::Separator | WordClass::Trigger | WordClass::Pull | WordClass::Nobody | WordClass::NameTail |
    WordClass::Title | WordClass::Conference | WordClass::NoPassword | WordClass::Request |
    WordClass::StrongOpen | WordClass::WeakOpen | WordClass::OpenParticle | WordClass::Repair |
    WordClass::Address;

bool isSmallTalkParticle(const Sentence &sentence, const Token &token)
{
    static const CharacterSet particles(u"的号是呢哦啊呀吧就定在先只这一次那呗要从改开约了选见");
    static const QStringList objections = {QStringLiteral("不过"), QStringLiteral("但是"),
                                           QStringLiteral("但")}; // 好，不过四点
    const QString text = sentence.text().mid(token.position, token.length);
    return objections.contains(text) || std::all_of(text.cbegin(), text.cend(), [](QChar character) {
               return particles.contains(character);
           });
}

/// True if the sentence holds nothing but what @p answers accepts and words around it.
template <typename Answers>
bool holdsOnly(const Reading &reading, Answers answers)
{
    const Tokens &tokens = reading.tokens();
    const auto first = std::find_if(tokens.cbegin(), tokens.cend(), answers);
    // 问着了，9901: what comes before the clause of the answer is an aside, unless it refuses or asks.
    auto begin = first;
    const auto ends = [&](const Token &token) { // 领导说是 880100001, 就群里发的那个 880100001
        return token.is(WordClass::Punctuation) || token.kind == Token::Kind::Space ||
               reading.sentence().text().at(token.end() - 1) == QChar(u'是');
    };
    while (begin != tokens.cbegin() && !ends(*(begin - 1))) {
        --begin;
    }
    constexpr WordClasses weighty =
        WordClass::Negation | WordClass::Repair | WordClass::Question | WordClass::HowTo | WordClass::GiveUp |
        WordClass::Query | WordClass::Unsupported | WordClass::Add | WordClass::Buddy | WordClass::BuddyNoun;
    const bool aside =
        first != tokens.cend() && std::none_of(tokens.cbegin(), begin, [&](const Token &token) {
            // 我看看挂历啊
            const bool looks = token.is(WordClass::Query) &&
                               charAt(reading.sentence().text(), token.position - 1) == QChar(u'我');
            return token.isAny(weighty) && !looks;
        });
    return std::all_of(aside ? begin : tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return token.kind == Token::Kind::Space || answers(token) || token.isAny(SurroundingWords) ||
               ((token.kind == Token::Kind::Other || token.classes.isEmpty()) &&
                isSmallTalkParticle(reading.sentence(), token));
    });
}

bool isCode(const Token &token)
{
    return token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin;
}

bool takeNumber(const Reading &reading, Outcome &outcome)
{
    // A number with something strange in it, not chit-chat with a number.
    constexpr int mostStrange = 2;
    if (reading.isNumberCutOff() && reading.strangeLength() <= mostStrange) {
        outcome.answer = QStringLiteral("whole-number");
        return true;
    }
    // 前面三位是九六四, 中间那个是零 214870536
    static const QRegularExpression part(QStringLiteral(
        "[前后]面?[几一二两三四五六0-9]位|开头|打头|尾号|末尾|不确定|不一定|说不准"
        "|再[进加]|对不对|(^|[^零一二两三四五六七八九幺])[零一二两三四五六七八九幺] +[0-9]{6}"));
    if (reading.conferenceNumber().isEmpty() || !holdsOnly(reading, isCode) ||
        reading.sentence().text().contains(part)) {
        return false;
    }
    const QString number = reading.conferenceNumber().normValue;
    outcome.addSlot(IdSlot, number, number);
    const Said &password = reading.password();
    if (!password.isEmpty() && !outcome.hasSlot(PasswordSlot)) {
        outcome.addSlot(PasswordSlot, password.value, password.normValue);
    }
    return true;
}

bool takePassword(const Reading &reading, Outcome &outcome)
{
    // Said with its label or alone.
    const Said &said = reading.password().isEmpty() ? reading.account() : reading.password();
    const bool other = !reading.conferenceNumber().isEmpty() &&
                       reading.hasAny(WordClass::Join | WordClass::WeakJoin); // 加入会议 390174862 密码 1357
    if (other || said.isEmpty() || !holdsOnly(reading, isCode)) {
        return false;
    }
    outcome.addSlot(PasswordSlot, said.value, said.normValue);
    return true;
}

/// True for 明天三点和李娜开会, a command of its own.
bool opensConference(const Reading &reading)
{
    return reading.has(WordClass::Conference) && !reading.openVerb().isEmpty();
}

bool takeAccount(const Reading &reading, Outcome &outcome)
{
    if (isAccountUnclear(reading)) {
        return false;
    }
    const Said &account = reading.account();
    if (!account.isEmpty() && holdsOnly(reading, isCode)) {
        outcome.addSlot(AccountSlot, account.value, account.normValue);
        return true;
    }
    const std::vector<FoundName> names = answeredNames(reading);
    const auto isNobody = [](const FoundName &name) { // 是我同学
        return Lexicon::instance().classesOf(name.name).intersects(WordClass::Title | WordClass::Nobody);
    };
    constexpr WordClasses inviting = WordClass::Arrive | WordClass::Join | WordClass::Invite;
    const auto describes = [&](const FoundName &name) { // 戴眼镜的
        return charAt(reading.sentence().text(), name.position + name.said.size()) == QChar(u'的');
    };
    const auto isKnown = [&](const FoundName &name) { // but not 的号 in 是我妹妹的号
        return isPersonsName(name.name) || name.name.at(0).unicode() < 0x250 ||
               std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
                   return token.kind == Token::Kind::Name && token.position == name.position;
               });
    };
    if (names.empty() || !isKnown(names.front()) || isNobody(names.front()) || describes(names.front()) ||
        reading.hasAny(inviting) || opensConference(reading) ||
        !reading.timeSaid().isEmpty()) { // 先帮我邀请马克进会, 先约个会 明天两点
        return false;
    }
    outcome.addSlot(AccountSlot, names.front().said, names.front().name);
    return true;
}

bool takeNames(const Reading &reading, Outcome &outcome)
{
    const std::vector<FoundName> names = answeredNames(reading);
    for (const FoundName &name : names) {
        outcome.addSlot(NameSlot, name.said, name.name);
    }
    return !names.empty();
}

/// What to keep of a time that could not be resolved: its day if the hour was wrong, its hour if the day was.
TimeExpression usableRest(const QString &question, const TimeExpression &before)
{
    TimeExpression rest;
    if (question == QLatin1String("either-or") || question == QLatin1String("recurring")) {
        return before;
    }
    if (question == QLatin1String("other-zone")) { // its hour differs here
        rest = before;
        rest.part = -1;
        rest.hasClock = false;
        rest.hasOffset = false;
        return rest;
    }
    if (question == QLatin1String("contradiction") || question == QLatin1String("which-time")) {
        rest = before;
        rest.part = -1;
        rest.hasClock = false;
        rest.impossible = false;
    } else {
        rest.part = before.part;
        rest.hasClock = before.hasClock;
        rest.hour = before.hour;
        rest.minute = before.minute;
        rest.minutesLess = before.minutesLess;
    }
    return rest;
}

} // namespace

std::vector<FoundName> answeredNames(const Reading &reading)
{
    const Sentence &sentence = reading.sentence();
    std::vector<FoundName> names = findAnsweredNames(sentence.raw(), sentence.text(), reading.tokens());
    if (names.size() < reading.names().size()) {
        names = reading.names();
    }
    const bool onlyNames = holdsOnly(reading, [&](const Token &token) {
        return token.kind == Token::Kind::Name ||
               std::any_of(names.cbegin(), names.cend(), [&](const FoundName &name) {
                   return name.start < token.end() && token.position < name.position + name.said.size();
               });
    });
    // 彭宇和傅佳，不要傅佳; 乐乐不来了; 叫谁好呢
    static const QRegularExpression asking(QStringLiteral("谁|啥|什么|还是"));
    const QString &text = reading.sentence().text();
    const bool unsure = reading.has(WordClass::Negation) || text.contains(asking) || tellsAbsence(text);
    return onlyNames && !unsure ? names : std::vector<FoundName>();
}

/// Takes names given with the time that was asked for: adds them, or replaces earlier ones (改成跟老顾).
/// Returns false if they do not fit.
static bool takeFurtherNames(const Reading &reading, Outcome &outcome)
{
    if (reading.names().empty()) {
        return true;
    }
    if (outcome.intent != QLatin1String(CreateConference) || reading.hasDoubtfulName() ||
        opensConference(reading)) {
        return false;
    }
    if (reading.hasAny(WordClass::Repair | WordClass::Change)) {
        outcome.removeSlots(NameSlot);
    }
    for (const FoundName &name : reading.names()) {
        const bool known =
            std::any_of(outcome.slotList.cbegin(), outcome.slotList.cend(), [&](const Slot &slot) {
                return slot.name == QLatin1String(NameSlot) && slot.normValue == name.name;
            });
        if (!known) {
            outcome.addSlot(NameSlot, name.said, name.name);
        }
    }
    return true;
}

/// True for 现在, which is no clock time but answers "when?".
static bool isNow(const Reading &reading)
{
    static const QStringList nows = {QStringLiteral("现在"),  QStringLiteral("马上"), QStringLiteral("立刻"),
                                     QStringLiteral("立即"),  QStringLiteral("这就"), QStringLiteral("即刻"),
                                     QStringLiteral("这会儿")};
    const bool said =
        std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
            return nows.contains(reading.sentence().text().mid(token.position, token.length));
        });
    return said && !reading.has(WordClass::Question) &&
           holdsOnly(reading, [](const Token &) { return false; });
}

/// True if the answer to @p question has to name the day: an hour alone would be today's, which was not
/// meant.
static bool lacksDay(const QString &question, const TimeExpression &before)
{
    return question == QLatin1String("which-day") || question == QLatin1String("no-such-date") ||
           question == QLatin1String("lunar") ||
           (question == QLatin1String("recurring") && before.day == TimeExpression::Day::None);
}

/// Puts the day of @p time into the week or the month that was named before: 下周 ... 周三, 下个月 ... 5号.
/// Returns false if it names no day there.
static bool nameDay(TimeExpression &time, const TimeExpression &before)
{
    using Day = TimeExpression::Day;
    if (time.day == Day::Weekday && !time.weekNamed) {
        time.weekNamed = before.weekNamed;
        time.weekOffset = before.weekOffset;
        return !before.monthNamed; // 下个月 ... 周三: which one?
    }
    if (time.day == Day::DayOfMonth && !time.monthNamed) {
        time.monthNamed = before.monthNamed;
        time.monthOffset = before.monthOffset;
    }
    return time.day != Day::None || time.hasOffset;
}

bool takeAnswer(const QString &question, const Reading &reading, const QDateTime &now,
                const TimeExpression &timeBefore, Outcome &outcome)
{
    constexpr struct
    {
        const char *question;
        bool (*take)(const Reading &, Outcome &);
    } takers[] = {{"which-conference", takeNumber},
                  {"whole-number", takeNumber},
                  {"which-password", takePassword},
                  {"whom-to-add", takeAccount},
                  {"whom-to-invite", takeNames}};
    for (const auto &taker : takers) {
        if (question == QLatin1String(taker.question)) {
            return taker.take(reading, outcome);
        }
    }
    // Every other question is about the time; 再加上小顾，五点 names somebody, too.
    if (question == QLatin1String("which-time") && isNow(reading)) {
        outcome.answer.clear();
        return true;
    }
    if (reading.timeSaid().isEmpty() || !holdsOnly(reading, [&](const Token &token) {
            const bool calls = token.is(WordClass::Arrive) && !reading.names().empty(); // 把唐薇也叫上
            return token.kind == Token::Kind::Time || token.inName || calls;
        })) {
        return false;
    }
    const bool forRoom = reading.sentence().text().endsWith(QChar(u'用')); // 下午三点用
    static const QRegularExpression engaged(QStringLiteral("(?<!没)有(?:事|[个场]?会(?!议))"));
    const bool busy = reading.sentence().text().contains(engaged); // 我四点有事
    // 我四点有事，五点吧; 三点，还是四点吧
    const bool several =
        reading.has(WordClass::Punctuation) && (reading.clockCount() > 1 || reading.namesTwoDays());
    if (forRoom || busy || several) {
        return false;
    }
    TimeExpression time = reading.time();
    if (lacksDay(question, timeBefore) && !nameDay(time, timeBefore)) {
        return false;
    }
    if (!takeFurtherNames(reading, outcome)) {
        return false;
    }
    time.complete(usableRest(question, timeBefore));
    outcome.answer.clear();
    fillTime(outcome, time, reading.timeSaid(), now);
    return true;
}

} // namespace understanding
