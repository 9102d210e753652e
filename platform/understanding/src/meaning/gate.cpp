// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/gate.h"

#include "meaning/callings.h"
#include "meaning/clause.h"
#include "meaning/doubts.h"
#include "meaning/outcome.h"
#include "meaning/suspicions.h"

#include <algorithm>

namespace understanding {

/// True if something is also to end. 半小时结束 only says how long it takes; in 四点结束 the hour is no
/// start, so the gate asks.
static bool alsoEnds(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const std::size_t before = at > 1 && tokens[at - 1].is(WordClass::Filler) ? at - 2 : at - 1; // 就
        const bool lasting = at > 0 && tokens[before].kind == Token::Kind::Duration;
        if (!tokens[at].inTopic && !tokens[at].inName && !lasting &&
            tokens[at].isAny(WordClass::Close | WordClass::CloseAlone)) {
            return true;
        }
    }
    return false;
}

/// “开会” is an order, 他说“开会” is none.
static bool isAllQuoted(const QString &text)
{
    return text.startsWith(QChar(u'“')) && text.indexOf(QChar(u'”')) == text.size() - 1;
}

/// Whether what follows each token up to the next sign may be an aside, 客户那边在催 in 查一下下周五的会
/// 客户那边在催: something that no rule knows and that names nobody, nothing and no time.
static std::vector<bool> findAsides(const Reading &reading, const QString &intent)
{
    constexpr WordClasses adding = WordClass::Conference | WordClass::Schedule | WordClass::Query |
                                   WordClass::Negation | WordClass::Repair | WordClass::NameLabel |
                                   WordClass::PasswordLabel | WordClass::IdLabel | WordClass::GiveUp |
                                   WordClass::Close | WordClass::CloseAlone;
    const Tokens &tokens = reading.tokens();
    std::vector<bool> asides(tokens.size() + 1, false);
    const bool spaced = std::any_of(tokens.cbegin(), tokens.cend(),
                                    [](const Token &token) { return token.kind == Token::Kind::Space; });
    if (!spaced && intent != QLatin1String(QueryConference)) {
        return asides;
    }
    WordClasses weighty = adding;
    if (intent != QLatin1String(QueryConference)) { // which does no harm
        weighty.add(allowedWordsFor(intent).anchors);
        weighty.add(WordClass::Question | WordClass::QuestionParticle | WordClass::HowTo | WordClass::Framed |
                    WordClass::Actor | WordClass::Reported | WordClass::Trigger | WordClass::Pull |
                    WordClass::Invite | WordClass::Arrive);
    }
    bool harmless = true;
    bool strange = false;
    for (std::size_t at = tokens.size(); at-- > 0;) {
        const Token &token = tokens[at];
        if (token.is(WordClass::Punctuation)) {
            harmless = true;
            strange = false;
            continue;
        }
        const bool plain = token.kind == Token::Kind::Other || token.kind == Token::Kind::Word ||
                           token.kind == Token::Kind::Space;
        harmless = harmless && plain && !token.inName && !token.isAny(weighty);
        strange = strange || token.kind == Token::Kind::Other;
        asides[at] = harmless && strange;
    }
    return asides;
}

/// True where a clause ends: at punctuation, or at the space in 拉一下Momo 她还没进会.
static bool endsClause(const Tokens &tokens, std::size_t at)
{
    const bool somebodyElse = tokens[at].kind == Token::Kind::Space && at + 1 < tokens.size() &&
                              tokens[at + 1].is(WordClass::Actor) && !tokens[at + 1].inName;
    return !tokens[at].inName && (tokens[at].is(WordClass::Punctuation) || somebodyElse);
}

/// 约小张和小李，不对，约小王. In 不对，约小王 nothing was said that the order might leave.
static bool repairsSomething(const Reading &reading)
{
    constexpr WordClasses empty = WordClass::Filler | WordClass::Punctuation | WordClass::OpenParticle;
    if (!reading.has(WordClass::Repair)) {
        return false;
    }
    bool said = false;
    for (const Token &token : reading.tokens()) {
        if (said && token.is(WordClass::Repair) && !token.inTopic) {
            return true;
        }
        said = said || !(token.isAny(empty | WordClass::Repair) || token.kind == Token::Kind::Space);
    }
    return false;
}

Verdict judge(const Reading &reading, const QString &intent)
{
    if (isTakenBack(reading)) {
        return Verdict::Refuse;
    }
    const Tokens &tokens = reading.tokens();
    bool ordered = false;
    bool requested = false;
    bool finished = false;
    bool supposed = false;
    bool doubtful = reading.hasDoubtfulName() && intent != QLatin1String(QueryConference);
    // 约小张和小李，不对，约小王: which of them?
    const bool asksFirst = intent == QLatin1String(QueryConference) && asksBeforeCondition(reading);
    doubtful = doubtful || (isConditional(reading) && !asksFirst) || repairsSomething(reading);
    doubtful = doubtful || isAboutSomethingElse(reading, intent);
    doubtful = doubtful || (intent != QLatin1String(QueryConference) && asksForAgreement(reading));
    // Nothing that was said is dropped silently: 需求评审安排到明天十一点，拉上小唐 is no plain invitation,
    // and 好友申请 7号78899 may have named a longer account.
    doubtful = doubtful || (intent == QLatin1String(InviteConference) && reading.clockCount() > 0);
    doubtful = doubtful || (intent == QLatin1String(AddBuddy) && reading.timeCount() > 0);
    doubtful = doubtful || (intent == QLatin1String(CreateConference) && reading.callsNobodyKnown());
    const bool takesPeople =
        intent == QLatin1String(CreateConference) || intent == QLatin1String(InviteConference);
    doubtful = doubtful || (takesPeople && (reading.isElsewhere() || callsByAddressOnly(reading)));
    // 拉张伟和200002进来: not everybody was found.
    doubtful = doubtful || (intent == QLatin1String(InviteConference) && pullsOther(reading) &&
                            !reading.conferenceNumber().isEmpty());
    doubtful = doubtful || (intent == QLatin1String(CloseConference) && isLeftByOther(reading));
    doubtful = doubtful || (intent == QLatin1String(CloseConference) && wonders(reading));
    doubtful = doubtful || (intent == QLatin1String(CreateConference) && proposesOpening(reading));
    doubtful = doubtful || (intent == QLatin1String(EnterMyConference) && onlyGoes(reading));
    doubtful = doubtful || (intent == QLatin1String(EnterConferenceById) && isNumberOfOther(reading));
    // 从这个会退出，加入123456: two things at once.
    doubtful =
        doubtful || (intent == QLatin1String(CloseConference) && !reading.conferenceNumber().isEmpty() &&
                     reading.hasAny(WordClass::Join | WordClass::WeakJoin));
    // 凌晨一点上线，零点四十五拉个会: which of the two hours?
    doubtful = doubtful || (intent == QLatin1String(CreateConference) &&
                            (reading.clockCount() > 1 || reading.namesTwoDays()));
    // 退出会议，安排下: two things at once.
    doubtful = doubtful || (intent == QLatin1String(CreateConference) && alsoEnds(reading));
    const std::vector<bool> asides = findAsides(reading, intent);
    const WordClasses anchors = allowedWordsFor(intent).anchors;
    bool untitled = false; // the name of the conference was not understood
    bool quoted = false;
    bool told = false; // what somebody says or does, before the order
    for (std::size_t begin = 0; begin < tokens.size();) {
        std::size_t end = begin;
        bool anchored = false;
        while (end < tokens.size() && !endsClause(tokens, end) &&
               !(anchored && tokens[end].kind == Token::Kind::Space && asides[end + 1])) {
            anchored = anchored || tokens[end].isAny(anchors);
            ++end;
        }
        doubtful = doubtful || (begin < end && end < tokens.size() &&
                                introducesQuote(reading.sentence().text(), tokens, begin, end));
        const bool spaced = begin > 0 && tokens[begin - 1].kind == Token::Kind::Space;
        if (ordered && asides[begin] && (spaced || intent == QLatin1String(QueryConference))) {
            begin = end + 1;
            continue;
        }
        const QChar sign = end < tokens.size() ? reading.sentence().text().at(tokens[end].position) : QChar();
        const bool introduces = takesPeople && begin < end && reading.introduction() >= 0 &&
                                tokens[begin].position == reading.introduction();
        if (introduces && end < tokens.size()) { // 沈佳掉线了，拉一下她
            begin = end + 1;
            continue;
        }
        const Clause clause(reading, intent, begin, end);
        supposed = supposed || (clause.isSupposed() && !(asksFirst && ordered));
        const bool calledAway = intent == QLatin1String(InviteConference) && clause.isCalledAway();
        if (takesPeople && clause.isOrder() && (clause.excludesSomebody() || calledAway)) {
            return Verdict::Refuse;
        }
        if (ordered && takesPeople && clause.tellsWhyCalled()) { // 拉一下Momo，她还没进会
            begin = end + 1;
            continue;
        }
        if (clause.isTold()) { // 老板喊开会了，帮我拉个会
            told = true;
        } else if (clause.isOrder() && clause.isOnlyReported()) { // 领导要求明天开会，帮我发起一个
            told = true;
        } else if (clause.isOrder()) {
            const bool leftByOther = intent == QLatin1String(CloseConference) && clause.hasOtherSubject() &&
                                     !clause.isRequested(); // 王磊退会了
            if (clause.isRefused() || leftByOther) {
                return Verdict::Refuse;
            }
            const bool asked = sign == QLatin1Char('?') && !clause.isPolitelyRequested();
            const bool understood = clause.isUnderstood();
            untitled = untitled || (!understood && clause.isTitle());
            doubtful = doubtful || (!understood && !clause.isTitle()) || quoted ||
                       (asked && intent != QLatin1String(QueryConference));
            requested = requested || clause.isRequested();
            (clause.isFinished() ? finished : ordered) = true;
            ordered = ordered && !(clause.isTitle() && !understood);
        } else if (clause.isReport() && intent == QLatin1String(CloseConference) &&
                   !reading.has(WordClass::Request)) {
            doubtful = true; // 散会啦，他们终于开完了
        } else if (takesPeople && ordered && clause.leavesOutSomebody()) {
            doubtful = true;
        } else if (clause.isTimeCutOff() || clause.isObjection() || clause.tellsNumber() ||
                   (clause.isOnlySomebody() &&
                    (intent == QLatin1String(CreateConference) || intent == QLatin1String(CloseConference) ||
                     intent == QLatin1String(QueryConference)))) {
            doubtful = true;
        } else if (clause.callsSomebody()) { // 要开会了，拉上王磊
            ordered = true;
        }
        quoted = (sign == QChar(u'“') && !isAllQuoted(reading.sentence().text())) ||
                 (quoted && sign != QChar(u'”'));
        begin = end + 1;
    }
    if (supposed && !requested &&
        !(intent == QLatin1String(QueryConference) && reading.has(WordClass::Request))) {
        return Verdict::Refuse;
    }
    // 不开了，散会: the order follows what is finished.
    doubtful = doubtful || (told && !(ordered && requested));
    return doubtful || ((finished || untitled) && !ordered) ? Verdict::Ask : Verdict::Act;
}

} // namespace understanding
