// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/giveup.h"

#include "text/characterset.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace understanding {

namespace {

/// What may stand where nothing else is said.
constexpr WordClasses Harmless = WordClass::GiveUp | WordClass::Filler | WordClass::Address;

} // namespace

bool isGiveUp(const Reading &reading)
{
    return reading.has(WordClass::GiveUp) &&
           std::all_of(reading.tokens().cbegin(), reading.tokens().cend(), [&](const Token &token) {
               return token.isAny(Harmless | WordClass::Punctuation) || token.kind == Token::Kind::Space ||
                      (token.kind == Token::Kind::Other && token.length == 1);
           });
}

static bool beginsWithGiveUp(const Reading &reading)
{
    bool givesUp = false;
    for (const Token &token : reading.tokens()) {
        const bool remark = givesUp && token.is(WordClass::Actor); // 算了他在上课
        if (remark && reading.names().empty() && reading.timeSaid().isEmpty() &&
            reading.account().isEmpty()) {
            return true;
        }
        if (token.is(WordClass::Punctuation)) {
            if (givesUp) {
                break;
            }
            continue; // 哎，不弄了
        }
        if (!token.isAny(Harmless)) {
            return false;
        }
        givesUp = givesUp || token.is(WordClass::GiveUp);
    }
    return givesUp;
}

static bool endsWithGiveUp(const Reading &reading)
{
    const Tokens &tokens = reading.tokens();
    bool givesUp = false;
    for (auto token = tokens.crbegin(); token != tokens.crend() && !token->is(WordClass::Punctuation);
         ++token) {
        if (!token->isAny(Harmless)) {
            return false;
        }
        givesUp = givesUp || token->is(WordClass::GiveUp);
    }
    return givesUp;
}

/// 那就不开了, 算了不碰了, 人齐了不叫了, 李娜没空那算了.
static bool isRefusal(const QString &clause)
{
    static const QString verbs = QStringLiteral(
        "(?:开|约|弄|搞|办|碰|聊|见|谈|加入?|进|入|去|建|组|凑|叫|拉|喊|请|邀请?|预约|发起|安排|添加|"
        "参加|讨论|商量|找|打|订|定|麻烦|打扰|折腾)");
    static const QString whom = QStringLiteral("(?:会议|会|人|(?:他|她|它)们?|大家)?");
    static const QString refusal =
        QStringLiteral("(?:不想?%1%2[了啦]|(?:[先就]不|暂时不|[先也]?不用|先?别|甭|懒得)%1%2[了啦]?|"
                       "(?:那|就|还是|不支持|不行)算了|免了|打住|撤销|用不着了?|(?:改天|以后|下次)再%1)")
            .arg(verbs, whom);
    static const QRegularExpression refusing(
        QStringLiteral(
            "^(?:.{1,8}[了那])?(?:[那就还是哦嗯哎唉啊呃我们咱先都也]|[今明后][天儿]|会议?|这次|干脆|反正|"
            "罢了|算了)*%1[吧啊呀啦哈呗嘛]*$")
            .arg(refusal));
    return refusing.match(clause).hasMatch();
}

/// True if nothing is to be done according to the last clause, or the first one and the rest tells why.
static bool refuses(const Reading &reading)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,.!?;，。！？；、…]+"));
    const QStringList clauses = reading.sentence().raw().split(separators, Qt::SkipEmptyParts);
    const bool numbered = !reading.conferenceNumber().isEmpty() || !reading.account().isEmpty();
    if (clauses.isEmpty() || numbered || (!reading.timeSaid().isEmpty() && clauses.size() > 1)) {
        return false; // 三点，不叫他了
    }
    const bool tellsWhy = reading.names().empty() && !reading.hasAny(WordClass::Request | WordClass::Repair);
    return isRefusal(clauses.last()) || (tellsWhy && isRefusal(clauses.first()));
}

bool givesUp(const Reading &reading, const Outcome &fresh)
{
    return isGiveUp(reading) ||
           (fresh.intent.isEmpty() && (beginsWithGiveUp(reading) || endsWithGiveUp(reading)));
}

bool callsOff(const Reading &reading)
{
    static const CharacterSet leaving(u"退离散结束挂关");
    const QString &text = reading.sentence().text();
    return text.contains(QStringLiteral("不开")) &&
           std::none_of(text.cbegin(), text.cend(),
                        [&](QChar character) { return leaving.contains(character); });
}

bool dropsPlan(const Reading &reading, const Outcome &fresh)
{
    const bool leaves = fresh.intent == QLatin1String(CloseConference);
    return (leaves ? callsOff(reading) : !fresh.isCommand()) && refuses(reading);
}

} // namespace understanding
