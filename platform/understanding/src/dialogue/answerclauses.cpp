// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answerclauses.h"

#include "dialogue/answerreader.h"
#include "dialogue/peoplechange.h"
#include "meaning/intentrules.h"
#include "meaning/suspicions.h"
#include "text/characterset.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace understanding {

namespace {

constexpr int MaxClauses = 4; // ask again about longer answers

/// True for the space in 13512340000 顺便备注一下, but not in Tom Chen and 幺八六 零零零零.
bool isClauseBreak(const Tokens &tokens, std::size_t at)
{
    const auto isCode = [](const Token &token) {
        return token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin;
    };
    return tokens[at].kind == Token::Kind::Space && at > 0 && at + 1 < tokens.size() &&
           !(isCode(tokens[at - 1]) && isCode(tokens[at + 1]));
}

bool containsAny(const QString &text, const QStringList &words)
{
    return std::any_of(words.cbegin(), words.cend(),
                       [&](const QString &word) { return text.contains(word); });
}

/// True for a clause that may stand beside an answer, 周四她请假, 这块他熟: it neither refuses, repairs, asks
/// nor orders, and makes no condition.
bool isReason(const Reading &clause)
{
    constexpr WordClasses weighty =
        WordClass::GiveUp | WordClass::Repair | WordClass::Question | WordClass::HowTo | WordClass::Query |
        WordClass::Close | WordClass::CloseAlone | WordClass::Join | WordClass::Pull | WordClass::Invite |
        WordClass::InviteNoun | WordClass::Arrive | WordClass::Add | WordClass::Buddy | WordClass::Recurring;
    static const QStringList hedges = {
        QStringLiteral("但"),   QStringLiteral("不过"), QStringLiteral("问"),     QStringLiteral("换"),
        QStringLiteral("改"),   QStringLiteral("考虑"), QStringLiteral("不确定"), QStringLiteral("别"),
        QStringLiteral("告诉"), QStringLiteral("再进")};
    const QString &text = clause.sentence().text();
    const bool waits = text.contains(QChar(u'等')) && !text.contains(QStringLiteral("等着"));
    const bool somebodyElse = !clause.names().empty() && clause.timeSaid().isEmpty(); // 张伟也来
    return !clause.hasAny(weighty) && !clause.isAsked() && !isConditional(clause) && !waits &&
           !somebodyElse && !containsAny(text, hedges);
}

/// 她正好在, behind a yes: nothing in it puts off what was asked about.
bool isReasonForYes(const Reading &clause)
{
    static const QStringList delays = {QStringLiteral("再"),   QStringLiteral("还"),   QStringLiteral("先"),
                                       QStringLiteral("想"),   QStringLiteral("看"),   QStringLiteral("听"),
                                       QStringLiteral("继续"), QStringLiteral("接着"), QStringLiteral("晚"),
                                       QStringLiteral("稍"),   QStringLiteral("也"),   QStringLiteral("一会"),
                                       QStringLiteral("改期")};
    return isReason(clause) &&
           !clause.hasAny(WordClass::Negation | WordClass::UnclearSoon | WordClass::UnclearDay) &&
           clause.timeSaid().isEmpty() && clause.names().empty() &&
           !clause.sentence().text().endsWith(QChar(u'呢')) && !containsAny(clause.sentence().text(), delays);
}

/// 麻烦了, 谢谢: nothing but politeness, and no delay like 再等等.
bool isPolite(const Reading &clause)
{
    static const CharacterSet delays(u"再等晚稍");
    const QString &text = clause.sentence().text();
    return !clause.has(WordClass::UnclearSoon) &&
           std::none_of(text.cbegin(), text.cend(),
                        [](QChar character) { return delays.contains(character); }) &&
           std::all_of(clause.tokens().cbegin(), clause.tokens().cend(), [](const Token &token) {
               return token.isAny(WordClass::Filler | WordClass::Address | WordClass::OpenParticle);
           });
}

/// 四点吧, 就周五, 那就30号: chosen rather than mentioned.
bool isChosen(const QString &clause)
{
    return clause.contains(QChar(u'吧')) || clause.startsWith(QChar(u'就')) ||
           clause.startsWith(QChar(u'那'));
}

/// 周四她请假: says something about somebody.
bool tellsSomething(const Reading &clause)
{
    return std::any_of(clause.tokens().cbegin(), clause.tokens().cend(), [](const Token &token) {
        return token.isAny(WordClass::Actor | WordClass::Have | WordClass::Reported);
    });
}

} // namespace

QStringList clausesOf(const Reading &reading)
{
    QStringList clauses;
    int begin = 0;
    const auto add = [&](int end) {
        const QString clause = reading.sentence().raw().mid(begin, end - begin).trimmed();
        if (!clause.isEmpty()) {
            clauses.append(clause);
        }
    };
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const bool ends = tokens[at].is(WordClass::Punctuation) || isClauseBreak(tokens, at);
        if (ends && !tokens[at].inName) {
            add(tokens[at].position);
            begin = tokens[at].end();
        }
    }
    add(reading.sentence().raw().size());
    const bool usable = clauses.size() > 1 && clauses.size() <= MaxClauses;
    return usable ? clauses : QStringList();
}

bool takeAnsweringClause(const QString &question, const Reading &reading, const QDateTime &now,
                         const TimeExpression &timeBefore, const ContactIndex &contacts, Outcome &outcome)
{
    const QStringList clauses = clausesOf(reading);
    const bool whom = question == QLatin1String("whom-to-invite") || question == QLatin1String("whom-to-add");
    std::vector<Outcome> answers;
    std::vector<Outcome> plain;
    std::vector<Outcome> chosen;
    for (const QString &text : clauses) {
        const Reading clause(text, contacts);
        Outcome answered = outcome;
        if (takeAnswer(question, clause, now, timeBefore, answered)) {
            if (isChosen(text)) {
                chosen.push_back(answered);
            }
            if (!tellsSomething(clause)) {
                plain.push_back(answered);
            }
            answers.push_back(std::move(answered));
        } else if (!isReason(clause) || (whom && (clause.has(WordClass::Negation) || tellsAbsence(text)))) {
            return false; // 彭宇和傅佳，傅佳就别叫了
        }
    }
    if (question == QLatin1String("whom-to-invite") && answers.size() > 1) { // 张伟吧，再叫上李娜
        for (const Outcome &answered : answers) {
            outcome.addSlotsOf(answered);
        }
        return true;
    }
    // 四点吧，三点有课 and 周五，周四她请假 are clear; 三点，四点 is not, and neither is 我三点有事.
    for (const std::vector<Outcome> *likely : {&chosen, &plain}) {
        if (likely->size() == 1) {
            outcome = likely->front();
            return true;
        }
    }
    return false;
}

bool takeOtherNumber(const Reading &reading, const ContactIndex &contacts, Outcome &outcome)
{
    const QStringList clauses = clausesOf(reading);
    if (clauses.size() < 2 || !tellsWrongNumber(clauses.first())) {
        return false;
    }
    Outcome other;
    other.intent = QLatin1String(EnterConferenceById);
    const bool taken = takeAnswer(QStringLiteral("which-conference"), Reading(clauses.last(), contacts),
                                  QDateTime(), TimeExpression(), other) &&
                       other.isCommand();
    outcome = taken ? other : outcome;
    return taken;
}

YesNo readYesNoBeforeReason(const Reading &reading, const QString &intent, const ContactIndex &contacts)
{
    const QStringList clauses = clausesOf(reading);
    if (clauses.isEmpty()) {
        return YesNo::Unclear;
    }
    const YesNo first = readYesNo(Sentence(clauses.first()));
    bool repeated = false;
    const bool plain = std::all_of(clauses.cbegin() + 1, clauses.cend(), [&](const QString &text) {
        const YesNo meaning = readYesNo(Sentence(text));
        const Reading clause(text, contacts);
        if (meaning != YesNo::Unclear) {
            repeated = true;
            return meaning == first;
        }
        if (first == YesNo::No) {
            return clause.has(WordClass::Negation); // 不，先别退
        }
        const bool again =
            decideIntent(clause) == intent && !clause.has(WordClass::Negation) && !clause.isAsked();
        repeated = repeated || again; // 对，散了吧
        return again || isPolite(clause) || isReasonForYes(clause);
    });
    // Leaving takes more than 嗯 beside something that may mean anything: 嗯，老板在讲.
    const bool clear = first == YesNo::No || repeated || intent != QLatin1String(CloseConference) ||
                       std::all_of(clauses.cbegin() + 1, clauses.cend(),
                                   [&](const QString &text) { return isPolite(Reading(text, contacts)); });
    return plain && clear ? first : YesNo::Unclear;
}

bool beginsWithYes(const Reading &reading)
{
    const QStringList clauses = clausesOf(reading);
    return !clauses.isEmpty() && readYesNo(Sentence(clauses.first())) == YesNo::Yes;
}

} // namespace understanding
