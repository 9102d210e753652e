// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answerclauses.h"

#include "dialogue/answerreader.h"
#include "meaning/intentrules.h"

#include <QStringList>

#include <algorithm>
#include <vector>

namespace understanding {

namespace {

constexpr std::size_t MostClauses = 4; // longer stories are asked about again

/// True for the space in 13512340000 顺便备注一下, but not in Tom Chen and 幺八六 零零零零.
bool isBetweenClauses(const Tokens &tokens, std::size_t at)
{
    const auto isCode = [](const Token &token) {
        return token.kind == Token::Kind::Number || token.kind == Token::Kind::Latin;
    };
    return tokens[at].kind == Token::Kind::Space && at > 0 && at + 1 < tokens.size() &&
           !(isCode(tokens[at - 1]) && isCode(tokens[at + 1]));
}

/// The clauses of @p reading as typed; empty if there is only one, or too many.
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
        const bool ends = tokens[at].is(WordClass::Punctuation) || isBetweenClauses(tokens, at);
        if (ends && !tokens[at].inName) {
            add(tokens[at].position);
            begin = tokens[at].end();
        }
    }
    add(reading.sentence().raw().size());
    const bool usable = clauses.size() > 1 && clauses.size() <= static_cast<int>(MostClauses);
    return usable ? clauses : QStringList();
}

/// True for a clause that may stand beside an answer: it neither refuses, repairs nor asks.
bool isReason(const Reading &clause)
{
    constexpr WordClasses weighty = WordClass::GiveUp | WordClass::Repair | WordClass::Question |
                                    WordClass::HowTo | WordClass::Query | WordClass::Close |
                                    WordClass::CloseAlone | WordClass::Join;
    return !clause.hasAny(weighty) && !clause.isAsked();
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

bool takeAnsweringClause(const QString &question, const Reading &reading, const QDateTime &now,
                         const TimeExpression &timeBefore, const ContactIndex &contacts, Outcome &outcome)
{
    const QStringList clauses = clausesOf(reading);
    std::vector<Outcome> answers;
    std::vector<Outcome> clear; // of those that only answer
    std::vector<Outcome> chosen;
    for (const QString &text : clauses) {
        const Reading clause(text, contacts);
        Outcome answered = outcome;
        if (takeAnswer(question, clause, now, timeBefore, answered)) {
            if (isChosen(text)) {
                chosen.push_back(answered);
            }
            if (!tellsSomething(clause)) {
                clear.push_back(answered);
            }
            answers.push_back(std::move(answered));
        } else if (!isReason(clause) ||
                   (question == QLatin1String("whom-to-invite") && clause.has(WordClass::Negation))) {
            return false; // 彭宇和傅佳，傅佳就别叫了
        }
    }
    // 四点吧，三点有课 and 周五，周四她请假 are clear; 三点，四点 is not.
    for (const std::vector<Outcome> *likely : {&answers, &chosen, &clear}) {
        if (likely->size() == 1) {
            outcome = likely->front();
            return true;
        }
    }
    return false;
}

YesNo readYesNoBeforeReason(const Reading &reading, const QString &intent, const ContactIndex &contacts)
{
    const QStringList clauses = clausesOf(reading);
    if (clauses.isEmpty()) {
        return YesNo::Unclear;
    }
    const YesNo first = readYesNo(Sentence(clauses.first()));
    const bool plain = std::all_of(clauses.cbegin() + 1, clauses.cend(), [&](const QString &text) {
        const YesNo meaning = readYesNo(Sentence(text));
        if (meaning != YesNo::Unclear) {
            return meaning == first;
        }
        const Reading clause(text, contacts);
        if (first == YesNo::No) {
            return clause.has(WordClass::Negation); // 不，先别退
        }
        const bool again = decideIntent(clause) == intent; // 对，散了吧
        return (again || (isReason(clause) && clause.timeSaid().isEmpty() && clause.names().empty())) &&
               !clause.has(WordClass::Negation);
    });
    return plain ? first : YesNo::Unclear;
}

bool beginsWithYes(const Reading &reading)
{
    const QStringList clauses = clausesOf(reading);
    return !clauses.isEmpty() && readYesNo(Sentence(clauses.first())) == YesNo::Yes;
}

} // namespace understanding
