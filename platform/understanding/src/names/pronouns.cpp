// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/pronouns.h"

#include "names/namelook.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

namespace {

bool endsClause(const Tokens &tokens, std::size_t at)
{
    return at >= tokens.size() || tokens[at].is(WordClass::Punctuation);
}

/// True when nothing but coming in, a conference or little words follow up to the end of the clause: 进来 in
/// 拉她进来, but not 休息 in 叫她休息.
bool onlyMeets(const QString &text, const Tokens &tokens, std::size_t at)
{
    constexpr WordClasses meeting = WordClass::Arrive | WordClass::Join | WordClass::WeakJoin |
                                    WordClass::Conference | WordClass::ComeMeet | WordClass::Video |
                                    WordClass::WeakOpen | WordClass::StrongOpen | WordClass::Measure |
                                    WordClass::OpenParticle | WordClass::NameTail | WordClass::Filler;
    for (; !endsClause(tokens, at); ++at) {
        const Token &token = tokens[at];
        const bool room = token.is(WordClass::Conference) && text.at(token.end() - 1) == QChar(u'室');
        const bool waits = text.at(token.position) == QChar(u'等'); // 叫他等等
        const bool meets = token.isAny(meeting) || token.kind == Token::Kind::Time ||
                           token.kind == Token::Kind::Space || token.inTopic;
        if (room || waits || !meets) {
            return false;
        }
    }
    return true;
}

/// True for 拉她, 把他俩拉进来, 帮我拉一下: the token at @p at calls somebody who was named before.
bool callsNamedBefore(const QString &text, const Tokens &tokens, std::size_t at)
{
    constexpr WordClasses calling =
        WordClass::Trigger | WordClass::Pull | WordClass::Invite | WordClass::Arrive;
    if (!tokens[at].isAny(calling) || tokens[at].is(WordClass::Separator) || tokens[at].inTopic) {
        return false;
    }
    std::size_t next = at + 1;
    if (!endsClause(tokens, next) &&
        firstOf(text, tokens[next].position, {u"他", u"她"}) == 1) { // 他, 她们, 他俩
        return tokens[next].length <= 2 && onlyMeets(text, tokens, next + 1);
    }
    const bool pulls = tokens[at].isAny(WordClass::Pull | WordClass::Arrive) && tokens[at].length > 1;
    std::size_t begin = at;
    while (begin > 0 && tokens[begin - 1].isAny(WordClass::Filler | WordClass::Request)) {
        --begin;
    }
    return pulls && begin > 0 && tokens[begin - 1].is(WordClass::Punctuation) &&
           onlyMeets(text, tokens, next);
}

/// The length of the name at @p position with what makes it the subject behind it: 沈佳 in 沈佳掉线了.
int subjectLength(const QString &text, int position, int end)
{
    constexpr int shortest = 2;
    constexpr int longest = 4;
    for (int length = shortest; length <= qMin(longest, end - position); ++length) {
        const QString name = text.mid(position, length);
        if (!isPersonsName(name) || isThing(name)) {
            continue;
        }
        const int behind = position + length;
        if (behind == end ||
            firstOf(text, behind,
                    {u"过来", u"说",   u"进", u"了",   u"掉", u"断", u"卡",   u"退",   u"有",
                     u"没",   u"不",   u"在", u"能",   u"还", u"要", u"想",   u"也",   u"来",
                     u"那边", u"这边", u"呢", u"怎么", u"懂", u"熟", u"知道", u"等",   u"已",
                     u"刚",   u"今",   u"明", u"后天", u"下", u"上", u"方便", u"负责", u"是",
                     u"最",   u"比较", u"忘", u"和",   u"跟", u"、", u"空",   u"清楚", u"了解"}) > 0) {
            return length;
        }
    }
    return 0;
}

/// The people that the clause between @p begin and @p end introduces: 还差刘洋和张燕.
std::vector<FoundName> introducedBy(const QString &raw, const QString &text, int begin, int end)
{
    int position = begin;
    for (int length = 1; length > 0; position += length) {
        length = firstOf(text, position,
                         {u"你帮我看看", u"帮我看看", u"你看看",   u"看看",   u"看下",   u"怎么",   u"好像",
                          u"会里",       u"会上",     u"这个事得", u"这事得", u"这块得", u"没看到", u"没看见",
                          u"没见到",     u"没见",     u"忘了叫",   u"忘叫",   u"得问",   u"还",     u"就",
                          u"只",         u"差",       u"少",       u"缺",     u"漏",     u"了",     u"个",
                          u"哎",         u"诶",       u"那",       u" "});
    }
    std::vector<FoundName> introduced;
    while (const int length = subjectLength(text, position, end)) {
        FoundName name;
        name.position = position;
        name.start = position;
        name.said = raw.mid(position, length);
        name.name = name.said;
        name.behindTrigger = true;
        introduced.push_back(name);
        position += length;
        const int joined = firstOf(text, position, {u"和", u"跟", u"、"});
        if (joined == 0) {
            break;
        }
        position += joined;
    }
    return introduced;
}

/// Adds @p introduced to @p names, as people who are called. False where somebody else is called already.
bool callIntroduced(const std::vector<FoundName> &introduced, int introduction, std::vector<FoundName> &names)
{
    const int end = introduced.back().position + introduced.back().said.size();
    const auto isIntroduced = [&](const FoundName &name) {
        return name.position >= introduction && name.position < end;
    };
    if (std::any_of(names.cbegin(), names.cend(),
                    [&](const FoundName &name) { return name.behindTrigger && !isIntroduced(name); })) {
        return false;
    }
    std::vector<FoundName> called;
    for (const FoundName &name : introduced) {
        const auto known = std::find_if(names.cbegin(), names.cend(), [&](const FoundName &other) {
            return other.position == name.position;
        });
        called.push_back(name);
        if (known != names.cend() &&
            known->said.size() == name.said.size()) { // a contact, perhaps spelled in another way
            called.back().name = known->name;
        }
    }
    names.erase(std::remove_if(names.begin(), names.end(), isIntroduced), names.end());
    names.insert(names.end(), called.cbegin(), called.cend());
    std::sort(names.begin(), names.end(),
              [](const FoundName &left, const FoundName &right) { return left.position < right.position; });
    return true;
}

/// A clause, from where it says more than when up to its sign.
struct Span
{
    int clause = 0; ///< where the clause itself begins
    int begin = -1;
    int end = 0;
};

/// The clauses before the token at @p until.
std::vector<Span> clausesBefore(const Tokens &tokens, std::size_t until)
{
    std::vector<Span> clauses;
    Span span;
    for (std::size_t at = 0; at < until; ++at) {
        const Token &token = tokens[at];
        if (token.is(WordClass::Punctuation)) {
            span.end = token.position;
            if (span.begin >= 0) {
                clauses.push_back(span);
            }
            span = {token.end(), -1, 0};
        } else if (span.begin < 0 && token.kind != Token::Kind::Time && token.kind != Token::Kind::Space) {
            span.begin = token.position;
        }
    }
    return clauses;
}

} // namespace

int resolvePronouns(const QString &raw, const QString &text, const Tokens &tokens,
                    std::vector<FoundName> &names)
{
    bool clauseBefore = false;
    std::size_t call = 0; // the first word that calls somebody who was named before
    while (call < tokens.size() && !(clauseBefore && callsNamedBefore(text, tokens, call))) {
        clauseBefore = clauseBefore || tokens[call].is(WordClass::Punctuation);
        ++call;
    }
    if (call == tokens.size()) {
        return -1;
    }
    const std::vector<Span> clauses = clausesBefore(tokens, call);
    for (auto clause = clauses.crbegin(); clause != clauses.crend(); ++clause) {
        const std::vector<FoundName> introduced = introducedBy(raw, text, clause->begin, clause->end);
        if (!introduced.empty()) {
            return callIntroduced(introduced, clause->clause, names) ? clause->clause : -1;
        }
    }
    return -1;
}

} // namespace understanding
