// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/joinreader.h"

#include "names/namecharacters.h"
#include "text/scan.h"

namespace understanding {

namespace {

/// 我下午三点那个会: one's own conference, by its time or only pointed at, begins at @p at.
bool isOwnConference(const QString &text, const Tokens &tokens, std::size_t at)
{
    if (at >= tokens.size() || !tokens[at].isAny(WordClass::Nobody | WordClass::Mine | WordClass::Filler) ||
        !isSpeaker(text.at(tokens[at].position))) {
        return false;
    }
    constexpr std::size_t farthest = 7;
    constexpr WordClasses pointing =
        WordClass::Mine | WordClass::Measure | WordClass::Ongoing | WordClass::Next;
    bool pointed = tokens[at].is(WordClass::Mine);
    for (std::size_t next = at + 1; next < qMin(tokens.size(), at + farthest); ++next) {
        const Token &token = tokens[next];
        if (token.is(WordClass::Conference)) {
            return pointed;
        }
        const bool of = token.length == 1 && text.at(token.position) == QChar(u'的');
        if (!of && token.kind != Token::Kind::Time && !token.isAny(pointing)) {
            return false;
        }
        pointed = true;
    }
    return false;
}

/// 我收到了, 已发出: what becomes of an invitation, begins at @p at.
bool tellsOfInvitation(const QString &text, int at)
{
    at += firstOf(text, at, {u"我", u"咱", u"他", u"她", u"你", u"您"});
    at += firstOf(text, at, {u"们"});
    for (int length = 1; length > 0; at += length) {
        length = firstOf(text, at,
                         {u"已经", u"还没有", u"还没", u"刚刚", u"刚才", u"晚点", u"回头", u"已", u"都",
                          u"也", u"早", u"刚", u"先", u"就"});
    }
    return firstOf(text, at,
                   {u"收到", u"收了", u"看到", u"看见", u"看了", u"接受", u"接了", u"同意", u"拒绝", u"拒了",
                    u"转给", u"转发", u"忘", u"点了", u"点过", u"知道", u"发了", u"发过", u"发出"}) > 0;
}

} // namespace

void settleInvitations(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        Token &token = tokens[at];
        if (token.is(WordClass::Invite) && text.at(token.end() - 1) == QChar(u'请') &&
            tellsOfInvitation(text, token.end())) {
            token.classes = WordClass::Framed;
        }
        const bool named =
            at > 0 && at + 1 < tokens.size() && token.is(WordClass::Negation) &&
            text.at(token.position) == QChar(u'莫') && token.length == 1 &&
            tokens[at + 1].kind == Token::Kind::Other &&
            tokens[at - 1].isAny(WordClass::Trigger | WordClass::Invite | WordClass::Separator);
        if (named) { // 邀请莫言
            token.kind = Token::Kind::Other;
            token.classes = WordClasses();
        }
        const bool english = startsAt(text, token.position, QStringLiteral("call")) ||
                             startsAt(text, token.position, QStringLiteral("Call"));
        if (english && token.length == 4 && text.mid(token.end(), 1) == QStringLiteral(" ") &&
            charAt(text, token.end() + 1).isUpper()) { // call Nick
            token.classes = WordClass::Trigger | WordClass::Pull;
        }
    }
}

void settleJoins(const QString &text, Tokens &tokens)
{
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        Token &token = tokens[at];
        if (token.is(WordClass::Trigger) && firstOf(text, token.position, {u"连上"}) == token.length &&
            isOwnConference(text, tokens, at + 1)) {
            token.classes = WordClass::WeakJoin;
        }
    }
}

} // namespace understanding
