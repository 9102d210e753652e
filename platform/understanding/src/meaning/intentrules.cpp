// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/intentrules.h"

#include "meaning/callings.h"
#include "meaning/suspicions.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/rulefile.h"
#include "text/scan.h"
#include "words/lexicon.h"
#include "words/negation.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace understanding {

namespace {

bool isOpening(const Reading &reading)
{
    return !reading.openVerb().isEmpty();
}

bool hasClock(const Reading &reading)
{
    return reading.time().hasClock || reading.time().part >= 0 || reading.time().hasOffset;
}

/// True for a time other than just "today": what ends then cannot be ended now.
bool isLater(const Reading &reading)
{
    const TimeExpression &time = reading.time();
    const bool today = time.day == TimeExpression::Day::Relative && time.dayOffset == 0;
    return !reading.timeSaid().isEmpty() && (!today || hasClock(reading));
}

bool isCalled(const Reading &reading)
{
    return std::any_of(reading.names().cbegin(), reading.names().cend(),
                       [](const FoundName &name) { return name.behindTrigger; });
}

/// 李娜不去了，叫上王磊: only tells who stays away; the order follows in a separate clause.
bool isOnlyAbsence(const Reading &reading, std::size_t negation, std::size_t next)
{
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    std::size_t behind = negation;                                   // who stays away
    while (behind > 0 && tokens[behind - 1].is(WordClass::Filler)) { // 也
        --behind;
    }
    if (behind == 0) {
        return false;
    }
    const Token &who = tokens[behind - 1];
    const bool somebody =
        who.kind == Token::Kind::Name ||
        (who.kind == Token::Kind::Other && isPersonsName(text.mid(who.position, who.length)));
    if (!somebody || !isAbsence(text, tokens[negation]) || !tokens[next].is(WordClass::Punctuation)) {
        return false;
    }
    for (std::size_t at = next + 1; at < tokens.size(); ++at) {
        const bool calls =
            tokens[at].isAny(WordClass::Request | WordClass::Pull | WordClass::Invite | WordClass::Trigger) &&
            !tokens[at].is(WordClass::Separator);
        if (calls && !tokens[at].inTopic && !isNegatedBefore(text, tokens, at)) {
            return true;
        }
    }
    return false;
}

/// 不想 ... 开会: the refusal stands right before what would be done.
bool isNegated(const Reading &reading)
{
    constexpr WordClasses deeds = WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Close |
                                  WordClass::Join | WordClass::Invite | WordClass::Conference |
                                  WordClass::Trigger | WordClass::Add | WordClass::Buddy |
                                  WordClass::ComeMeet | WordClass::Arrive;
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (!tokens[at].is(WordClass::Negation)) {
            continue;
        }
        std::size_t next = qMin(at + 1, tokens.size() - 1);
        while (next + 1 < tokens.size() &&
               (tokens[next].is(WordClass::Filler) || tokens[next].kind == Token::Kind::Time ||
                tokens[next].is(WordClass::Nobody))) {
            ++next;
        }
        // 不开会了，结束会议 wants the end.
        const bool endFollows = !tokens[next].is(WordClass::Close) &&
                                std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(next),
                                            tokens.cend(), [](const Token &token) {
                                                return token.isAny(WordClass::Close | WordClass::CloseAlone);
                                            });
        if (isOnlyAbsence(reading, at, next)) {
            continue;
        }
        if ((isAbsence(reading.sentence().text(), tokens[at]) || tokens[next].isAny(deeds)) && !endFollows) {
            return true;
        }
    }
    return false;
}

/// 进入我和张伟的会议: whose it is follows the verb.
bool isMyOwn(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        const QChar owner = charAt(reading.sentence().text(), tokens[at + 1].position);
        if (tokens[at].isAny(WordClass::Join | WordClass::WeakJoin) &&
            (owner == QChar(u'我') || owner == QChar(u'咱'))) {
            return true;
        }
    }
    return false;
}

/// 明天要开会吗 asks, 可以开个会吗 is polite.
bool asksWhether(const Reading &reading)
{
    if (!reading.has(WordClass::QuestionParticle) || reading.openVerb().normValue != QStringLiteral("开")) {
        return false;
    }
    static const QStringList polite = {QStringLiteral("可以"), QStringLiteral("能"),   QStringLiteral("帮"),
                                       QStringLiteral("麻烦"), QStringLiteral("行吗"), QStringLiteral("好吗"),
                                       QStringLiteral("可否"), QStringLiteral("方便"), QStringLiteral("给我"),
                                       QStringLiteral("成吗"), QStringLiteral("中不"), QStringLiteral("成不"),
                                       QStringLiteral("行不"), QStringLiteral("好不")};
    return std::none_of(polite.cbegin(), polite.cend(),
                        [&](const QString &word) { return reading.sentence().text().contains(word); });
}

bool isOfConference(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    return std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return token.is(WordClass::Conference) && charAt(text, token.position - 1) == QChar(u'的');
    });
}

/// Nothing but words of the rules and times: 查一下下周三.
bool isBare(const Reading &reading)
{
    static const CharacterSet particles(u"的了");
    return std::all_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return token.kind == Token::Kind::Word || token.kind == Token::Kind::Time ||
               token.kind == Token::Kind::Space ||
               (token.length == 1 && particles.contains(reading.sentence().text().at(token.position)));
    });
}

/// 帮我约张伟明天三点: for what, is not said.
bool meetsSomebody(const Reading &reading)
{
    const bool meets =
        std::any_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
            return token.is(WordClass::Trigger) && !token.inName &&
                   reading.sentence().text().at(token.position) == QChar(u'约');
        });
    return meets && isCalled(reading) &&
           std::all_of(reading.tokens().cbegin(), reading.tokens().cend(),
                       [](const Token &token) { return token.inName || token.kind != Token::Kind::Other; });
}

/// True if the sentence contains what @p Part returns.
template <auto Part>
bool isSaid(const Reading &reading)
{
    return !(reading.*Part)().isEmpty();
}

struct Finding
{
    const char *name;
    bool (*holds)(const Reading &);
};

constexpr Finding Findings[] = {
    {"opening", isOpening},
    {"people",
     [](const Reading &reading) {
         return !reading.names().empty();
     }},
    {"called", isCalled},
    {"time", isSaid<&Reading::timeSaid>},
    {"clock", hasClock},
    {"later", isLater},
    {"number", isSaid<&Reading::conferenceNumber>},
    {"secret", isSaid<&Reading::password>},
    {"account", isSaid<&Reading::account>},
    {"negated", isNegated},
    {"two-times",
     [](const Reading &reading) {
         return reading.timeCount() > 1;
     }},
    {"my-own", isMyOwn},
    {"whether", asksWhether},
    {"of", isOfConference},
    {"proposed", proposesOpening},
    {"bare", isBare},
    {"meeting-somebody", meetsSomebody},
    {"pulls-other", pullsOther},
    {"pulls-speaker", pullsSpeaker},
};

/// One alternative of a condition: a class of words or a finding.
struct Test
{
    WordClass wordClass = WordClass::Count;
    bool (*holds)(const Reading &) = nullptr;

    bool operator()(const Reading &reading) const
    {
        return holds != nullptr ? holds(reading) : reading.has(wordClass);
    }
};

struct Condition
{
    std::vector<Test> anyOf;
    bool expected = true;

    bool operator()(const Reading &reading) const
    {
        return std::any_of(anyOf.cbegin(), anyOf.cend(), [&](const Test &test) { return test(reading); }) ==
               expected;
    }
};

struct Rule
{
    QString outcome;
    std::vector<Condition> conditions;

    bool fits(const Reading &reading) const
    {
        return std::all_of(conditions.cbegin(), conditions.cend(),
                           [&](const Condition &condition) { return condition(reading); });
    }
};

Test parseTest(const QString &name)
{
    for (const Finding &finding : Findings) {
        if (name == QLatin1String(finding.name)) {
            return {WordClass::Count, finding.holds};
        }
    }
    QString section = name;
    const WordClass wordClass = wordClassNamed(section.replace(QLatin1Char('-'), QLatin1Char(' ')));
    if (wordClass == WordClass::Count) {
        qFatal("intents.tsv: there is no condition called %s.", qPrintable(name));
    }
    return {wordClass, nullptr};
}

Condition parseCondition(QString text)
{
    Condition condition;
    condition.expected = !text.startsWith(QLatin1Char('!'));
    if (!condition.expected) {
        text.remove(0, 1);
    }
    const QStringList names = text.split(QLatin1Char('|'));
    for (const QString &name : names) {
        condition.anyOf.push_back(parseTest(name));
    }
    return condition;
}

const std::vector<Rule> &rules()
{
    static const std::vector<Rule> loaded = [] {
        std::vector<Rule> all;
        const QStringList lines = ruleLines(QStringLiteral("intents.tsv"));
        for (const QString &line : lines) {
            Rule rule;
            rule.outcome = line.section(QLatin1Char('\t'), 0, 0);
            const QStringList conditions =
                line.section(QLatin1Char('\t'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &condition : conditions) {
                rule.conditions.push_back(parseCondition(condition));
            }
            all.push_back(std::move(rule));
        }
        return all;
    }();
    return loaded;
}

} // namespace

QString decideIntent(const Reading &reading)
{
    for (const Rule &rule : rules()) {
        if (rule.fits(reading)) {
            return rule.outcome;
        }
    }
    return QStringLiteral("? not-understood");
}

} // namespace understanding
