// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/suspicions.h"

#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"

#include <QRegularExpression>

#include <algorithm>

namespace understanding {

/// True if the token at @p at says who is meant, unless 的 makes it a possessive: 张伟的会议.
static bool isOther(const Reading &reading, std::size_t at)
{
    const Tokens &tokens = reading.tokens();
    if (at >= tokens.size() || !(tokens[at].inName || tokens[at].kind == Token::Kind::Name ||
                                 tokens[at].is(WordClass::Actor) || tokens[at].is(WordClass::Title))) {
        return false;
    }
    while (at + 1 < tokens.size() && tokens[at + 1].inName) {
        ++at;
    }
    return charAt(reading.sentence().text(), tokens[at].end()) != QChar(u'的');
}

/// True for 请, 帮我 and 麻烦, which ask for something to be done, unlike 可以, 能 and 我想.
static bool isPlea(const QString &text, const Token &token)
{
    static const CharacterSet beginnings(u"帮请烦麻劳拜敬现给替为吧");
    return token.is(WordClass::Request) && beginnings.contains(text.at(token.position));
}

bool isLeftByOther(const Reading &reading)
{
    static const CharacterSet moving(u"把将带拉帮给替");
    static const QStringList calls = {QStringLiteral("让"), QStringLiteral("叫"), QStringLiteral("请"),
                                      QStringLiteral("喊"), QStringLiteral("通知")};
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    bool served = false;
    bool asked = reading.isAsked();
    if (text.contains(QStringLiteral("还是再"))) { // 帮我退会好不好，还是再等等
        return true;
    }
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const QString word = text.mid(token.position, token.length);
        static const CharacterSet everybody(u"大所全各同他她"); // 通知大家散会
        const bool other =
            at + 1 < tokens.size() &&
            (tokens[at + 1].inName ||
             (tokens[at + 1].is(WordClass::Nobody) && everybody.contains(text.at(tokens[at + 1].position))) ||
             tokens[at + 1].is(WordClass::Actor) || tokens[at + 1].is(WordClass::Title));
        const bool noun =
            token.is(WordClass::Close) && token.end() < text.size() && text.at(token.end()) == QChar(u'的');
        const bool moved = moving.contains(text.at(token.end() - 1)) && isOther(reading, at + 1);
        if ((((calls.contains(word) && other) || moved) && !token.inName) || noun) {
            return true;
        }
        served = served || isPlea(text, token);
        asked = asked || token.is(WordClass::QuestionParticle);
    }
    return asked && !served;
}

bool onlyGoes(const Reading &reading)
{
    static const CharacterSet going(u"去来");
    bool conference = false;
    bool goes = false;
    for (const Token &token : reading.tokens()) {
        const bool joins = token.isAny(WordClass::Join | WordClass::WeakJoin);
        const bool leads = token.length == 1 && going.contains(reading.sentence().text().at(token.position));
        if (joins && !(conference && leads)) {
            return false;
        }
        goes = goes || joins;
        conference = conference || token.is(WordClass::Conference);
    }
    return goes;
}

bool isNumberOfOther(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    const bool told = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        const int of = token.end();
        return token.isAny(WordClass::Join | WordClass::WeakJoin) && !token.is(WordClass::Conference) &&
               of < text.size() && text.at(of) == QChar(u'的') && text.indexOf(QChar(u'是'), of) > of;
    });
    constexpr WordClasses joining =
        WordClass::Join | WordClass::WeakJoin | WordClass::Conference | WordClass::PasswordLabel;
    const bool joins = std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return token.isAny(WordClass::Join | WordClass::WeakJoin) &&
               charAt(text, token.end()) != QChar(u'的');
    });
    return (told && !joins) || (reading.has(WordClass::Add) && !reading.hasAny(joining) &&
                                !text.contains(QChar(u'会')) && reading.has(WordClass::IdLabel));
}

static bool isDeed(const Token &token)
{
    return token.isAny(WordClass::Conference | WordClass::Video | WordClass::Arrive | WordClass::Join |
                       WordClass::CloseAlone | WordClass::Buddy);
}

bool holdsLooseNumber(const Reading &reading)
{
    constexpr int longest = 2;
    constexpr WordClasses apart = WordClass::Conference | WordClass::Trigger | WordClass::Pull |
                                  WordClass::StrongOpen | WordClass::WeakOpen | WordClass::Punctuation;
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const bool describes = at + 1 < tokens.size() && !tokens[at + 1].isAny(apart); // 3期培训会
        if (token.kind == Token::Kind::Number && token.length <= longest && !token.inName && !token.inTopic &&
            !describes) {
            return true;
        }
    }
    return false;
}

bool holdsRestOfTime(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    for (std::size_t at = 1; at < tokens.size(); ++at) {
        if (!tokens[at].time.hasClock) {
            continue;
        }
        const QStringRef before = text.leftRef(tokens[at].position);
        const bool dated = at > 1 && tokens[at - 2].kind == Token::Kind::Time; // 周三.三点
        const QChar digit = charAt(text, before.size() - 2);
        const bool decimal =
            before.endsWith(QLatin1Char('.')) && (digitValue(digit) >= 0 || digit == QChar(u'十'));
        if ((decimal && !dated) || before.endsWith(QStringLiteral("零下")) || before.endsWith(QChar(u'负'))) {
            return true;
        }
    }
    return false;
}

/// 下雨的话, 客户到了的话, but not 可以的话 and 明天三点的话: more than politeness and a time stands before
/// 的话.
static bool endsCondition(const Reading &reading, std::size_t begin, std::size_t at)
{
    const Tokens &tokens = reading.tokens();
    if (!tokens[at].is(WordClass::Filler) ||
        !reading.sentence().text().midRef(0, tokens[at].end()).endsWith(QStringLiteral("的话"))) {
        return false;
    }
    static const CharacterSet addressed(u"你您");
    return std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(begin),
                       tokens.cbegin() + static_cast<std::ptrdiff_t>(at), [&](const Token &token) {
                           return !token.isAny(WordClass::Filler | WordClass::Request) &&
                                  token.kind != Token::Kind::Space && token.kind != Token::Kind::Time &&
                                  !addressed.contains(reading.sentence().text().at(token.position));
                       });
}

/// 若明天下雨, 若客户到了; 若曦 is a name.
static bool isWhether(const QString &text, const Token &token)
{
    return token.kind == Token::Kind::Other && token.length != 2 && text.at(token.position) == QChar(u'若');
}

/// True when a later clause than the one at @p at says the hour.
static bool isTimedLater(const Tokens &tokens, std::size_t at)
{
    bool later = false;
    return std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(at), tokens.cend(),
                       [&](const Token &token) {
                           later = later || token.is(WordClass::Punctuation);
                           return later && token.time.hasClock;
                       });
}

bool asksBeforeCondition(const Reading &reading)
{
    bool asks = false;
    bool asked = false; // in an earlier clause
    for (const Token &token : reading.tokens()) {
        if (token.is(WordClass::Framed) &&
            isCondition(reading.sentence().text().mid(token.position, token.length))) {
            return asked;
        }
        asked = asked || (asks && token.is(WordClass::Punctuation));
        asks = asks || token.isAny(AskingWords);
    }
    return false;
}

bool isCondition(const QString &word)
{
    static const QStringList conditions = {
        QStringLiteral("如果"), QStringLiteral("要是"), QStringLiteral("假如"), QStringLiteral("假设"),
        QStringLiteral("只要"), QStringLiteral("除非"), QStringLiteral("一旦"), QStringLiteral("万一"),
        QStringLiteral("倘若"), QStringLiteral("倘使"), QStringLiteral("假使"), QStringLiteral("假若"),
        QStringLiteral("若是")};
    return conditions.contains(word);
}

bool introducesQuote(const QString &text, const Tokens &tokens, std::size_t begin, std::size_t end)
{
    static const CharacterSet saying(u"说讲写念喊道");
    static const CharacterSet particles(u"的了着是");
    static const CharacterSet never(u"我咱俺不别没要想来知"); // 我说, 不说了, 有事要说, 知道
    const bool labelled =
        end > begin + 1 && tokens[end - 2].isAny(WordClass::IdLabel | WordClass::PasswordLabel |
                                                 WordClass::AccountLabel | WordClass::Filler);
    const Token &link = tokens[end - 1]; // 他原话是, but not 会议号是
    if (end > begin + 1 && !labelled && link.length == 1 && text.at(link.position) == QChar(u'是')) {
        return true;
    }
    for (std::size_t at = begin; at < end; ++at) {
        if (firstOf(text, tokens[at].position, {u"原话", u"台词", u"剧本"}) > 0) {
            return true;
        }
    }
    const int first = tokens[begin].position;
    int last = tokens[end - 1].end() - 1;
    while (last > first && particles.contains(text.at(last))) {
        --last;
    }
    const bool doubled = text.at(last) == charAt(text, last - 1); // 随便说说
    return last > first && saying.contains(text.at(last)) && !doubled &&
           !tokens[end - 1].is(WordClass::Filler) && !never.contains(text.at(last - 1));
}

bool isConditional(const Reading &reading)
{
    const QString &text = reading.sentence().text();
    const Tokens &tokens = reading.tokens();
    std::size_t begin = 0; // of the clause
    bool begins = true;
    bool timed = false; // 今晚九点等孩子睡了: the hour was said
    bool onlyTime = true;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token &token = tokens[at];
        const bool waits = begins && token.length == 1 && text.at(token.position) == QChar(u'等') &&
                           at + 1 < tokens.size() && !tokens[at + 1].is(WordClass::Punctuation) &&
                           tokens[at + 1].kind != Token::Kind::Space;
        const bool told = !token.inName && !token.inTopic;
        if (told && token.is(WordClass::Framed) && isCondition(text.mid(token.position, token.length))) {
            return true;
        }
        if (told && ((begins && isWhether(text, token)) || endsCondition(reading, begin, at))) {
            return true;
        }
        // 等张伟回来再开会, but neither 等孩子睡了，今晚十点开会 nor 把老林拉进来，等他半天了
        if (told && waits && !timed && !isTimedLater(tokens, at) &&
            std::any_of(tokens.cbegin() + static_cast<std::ptrdiff_t>(at), tokens.cend(), isDeed)) {
            return true;
        }
        // 九点半吧，等孩子睡了: a clause that says nothing but the hour
        const bool sign = token.is(WordClass::Punctuation);
        timed = (timed || token.time.hasClock) && (!sign || onlyTime);
        onlyTime = sign || (onlyTime && (token.kind == Token::Kind::Time || token.is(WordClass::Filler)));
        begin = token.is(WordClass::Punctuation) ? at + 1 : begin;
        begins = tokens[at].is(WordClass::Punctuation) ||
                 (begins && (tokens[at].is(WordClass::Filler) || tokens[at].kind == Token::Kind::Time));
    }
    return false;
}

bool wonders(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    return std::any_of(tokens.cbegin(), tokens.cend(), [&](const Token &token) {
        return !token.inName && firstOf(reading.sentence().text(), token.position,
                                        {u"是不是", u"要不要", u"该不该", u"需不需要", u"用不用", u"我能不能",
                                         u"我可不可以", u"我能先", u"我可以先"}) > 0;
    });
}

bool asksForAgreement(const Reading &reading)
{
    static const QStringList facts = {QStringLiteral("对吧"), QStringLiteral("是吧"),
                                      QStringLiteral("没错吧"), QStringLiteral("来得及吧")};
    static const QStringList consents = {QStringLiteral("好吧"), QStringLiteral("行吧"),
                                         QStringLiteral("可以吧"), QStringLiteral("没问题吧")};
    static const CharacterSet signs(u"?!.,;~ ");
    static const CharacterSet pleas(u"帮请麻劳烦拜");
    const QString &text = reading.sentence().text();
    int end = text.size();
    while (end > 0 && signs.contains(text.at(end - 1))) {
        --end;
    }
    const auto ends = [&](const QString &tag) {
        return text.leftRef(end).endsWith(tag);
    };
    if (std::any_of(facts.cbegin(), facts.cend(), ends)) {
        return true;
    }
    const auto consent = std::find_if(consents.cbegin(), consents.cend(), ends);
    if (consent == consents.cend()) {
        return false;
    }
    // 约李娜三点开会，没问题吧 asks whether the assistant can do it.
    const bool sure = consent->size() > 3 && charAt(text, end - consent->size() - 1) == QLatin1Char(',');
    return !sure && std::none_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
        return token.is(WordClass::Request) && !token.inName && pleas.contains(text.at(token.position));
    });
}

bool proposesOpening(const Reading &reading)
{
    if (reading.has(WordClass::GiveUp) ||
        reading.sentence().text().contains(QChar(u'问'))) { // 老板问要不要开个会
        return false;
    }
    const Tokens &tokens = reading.tokens();
    const bool due = reading.sentence().text().contains(QChar(u'该')); // 是不是该开会了
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (tokens[at].is(WordClass::WeakOpen) && !tokens[at].inName &&
            (due || tokens[at + 1].is(WordClass::Measure))) {
            return wonders(reading);
        }
    }
    return false;
}

bool tellsWrongNumber(const QString &clause)
{
    static const CharacterSet needed(u"错对"); // the expression takes longer
    static const QRegularExpression wrong(QStringLiteral("(?:号|密码).{0,3}(?:错|不对)|(?:错|不对).{0,3}号"));
    return needed.meets(clause) && clause.contains(wrong);
}

bool isTakenBack(const Reading &reading)
{
    static const QRegularExpression end(QStringLiteral(
        "[，。！？,.!?… ](?:[哎唉哦嗯那就呃还是]|哎呀)*(?:算了|罢了|当我没说|不用了)[吧啊呀哈]*"
        "(?:[，, ]*(?:还是)?(?:先?[不别甭].{1,4}))?[。！.!]*$"));
    static const CharacterSet needed(u"，。！？,.!?… "); // the expression takes longer
    const QString &raw = reading.sentence().raw();
    return needed.meets(raw) && raw.contains(end);
}

} // namespace understanding
