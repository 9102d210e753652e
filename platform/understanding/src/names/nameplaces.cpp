// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/nameplaces.h"

#include "names/headreader.h"
#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/scan.h"

#include <algorithm>

namespace understanding {

bool NamePlaces::standsApartBefore(std::size_t at) const
{
    return at == 0 || m_tokens[at - 1].kind == Token::Kind::Space ||
           m_tokens[at - 1].isAny(WordClass::Punctuation | WordClass::Separator);
}

bool NamePlaces::standsApartBehind(std::size_t at) const
{
    return at + 1 == m_tokens.size() || m_tokens[at + 1].kind == Token::Kind::Space ||
           m_tokens[at + 1].isAny(WordClass::Punctuation | WordClass::Separator);
}

std::size_t NamePlaces::endOfClause(std::size_t at, std::size_t last) const
{
    while (at < last && (!m_tokens[at].is(WordClass::Punctuation) || m_tokens[at].is(WordClass::Separator))) {
        ++at;
    }
    return at;
}

bool NamePlaces::hasConference() const
{
    return std::any_of(m_tokens.cbegin(), m_tokens.cend(),
                       [](const Token &token) { return token.is(WordClass::Conference) && !token.inTopic; });
}

bool NamePlaces::isPlainBeforeName(std::size_t at) const
{
    const bool somebody = at + 1 < m_tokens.size() && (m_tokens[at + 1].kind == Token::Kind::Other ||
                                                       m_tokens[at + 1].kind == Token::Kind::Latin);
    return m_tokens[at].is(WordClass::Plain) && somebody &&
           (m_text.at(m_tokens[at + 1].position) == QChar(u'的') ||
            isModifier(m_text.mid(m_tokens[at].position, m_tokens[at].length)));
}

std::size_t NamePlaces::endOfModifier(std::size_t at) const
{
    constexpr std::size_t longest = 5;
    constexpr WordClasses between = WordClass::Nobody | WordClass::Plain | WordClass::Title |
                                    WordClass::AccountLabel | WordClass::Mine | WordClass::NameLabel |
                                    WordClass::IdLabel | WordClass::Filler | WordClass::Reported |
                                    WordClass::WeakJoin;
    bool owned = false; // 武汉的
    for (std::size_t next = at; next < qMin(m_tokens.size(), at + longest); ++next) {
        const Token &token = m_tokens[next];
        const bool plainDay = token.kind == Token::Kind::Time && next == at && !token.time.hasClock &&
                              (token.time.isPastDay() || token.time.day == TimeExpression::Day::DayOfMonth);
        if (token.inTopic || (next > at && token.position != m_tokens[next - 1].end())) {
            return at;
        }
        if (owned && (token.kind == Token::Kind::Name || token.kind == Token::Kind::Latin)) {
            return next;
        }
        if (token.kind == Token::Kind::Other) {
            std::size_t last = lastOfRun(next, next + 3); // 柴进 is a character and a word
            while (last + 1 < m_tokens.size() && m_tokens[last + 1].is(WordClass::Title)) { // 4号线的宋师姐
                ++last;
            }
            const int end = m_tokens[last].end();
            const QString text = m_text.mid(token.position, end - token.position);
            const int of = text.indexOf(QChar(u'的'));
            const QString head = withoutParticles(text.mid(of + 1));
            const bool afterDay = next > at && m_tokens[next - 1].kind == Token::Kind::Time;
            if (of >= 0 && next > at && !(afterDay && of == 0) && looksLikeName(head)) {
                return next;
            }
            constexpr WordClasses describing = WordClass::Nobody | WordClass::Title | WordClass::Address;
            const bool described = of + 1 == text.size() && last + 1 < m_tokens.size() &&
                                   m_tokens[last + 1].isAny(describing) && m_tokens[last + 1].length > 1;
            if (next == at && described) { // 武汉的同事小邓
                owned = true;
                continue;
            }
            if (owned && of < 0 && looksLikeName(head)) {
                return next;
            }
            const std::size_t latin = next + 1;
            if (of + 1 == text.size() && latin < m_tokens.size() && m_tokens[latin].position == token.end() &&
                (m_tokens[latin].kind == Token::Kind::Latin || m_tokens[latin].kind == Token::Kind::Name)) {
                return latin; // A组的Frank
            }
            if (of >= 0) {
                return at;
            }
        } else if (!plainDay && token.kind != Token::Kind::Number && token.kind != Token::Kind::Latin &&
                   !token.isAny(between) && !(token.length == 1 && token.classes.isEmpty())) {
            return at;
        }
    }
    return at;
}

bool NamePlaces::isAddressBeforeName(std::size_t at) const
{
    if (!m_tokens[at].is(WordClass::Address) || at + 1 == m_tokens.size()) {
        return false;
    }
    const Token &next = m_tokens[at + 1];
    constexpr int longest = 3;
    const bool titled = next.kind == Token::Kind::Other && next.length == 1 && at + 2 < m_tokens.size() &&
                        m_tokens[at + 2].is(WordClass::Title); // 冯大爷
    return m_tokens[at].inModifier || titled || next.kind == Token::Kind::Name ||
           next.kind == Token::Kind::Latin ||
           (next.kind == Token::Kind::Other &&
            isPersonsName(m_text.mid(next.position, qMin(next.length, longest))));
}

bool NamePlaces::isOpeningOne(std::size_t at) const
{
    const std::size_t next = at + 1;
    static const CharacterSet moves(u"把将");
    if (moves.contains(m_text.at(m_tokens[at].position)) && next + 1 < m_tokens.size() &&
        m_tokens[next].is(WordClass::Title) && m_tokens[next + 1].is(WordClass::Conference) &&
        !m_tokens[next + 1].is(WordClass::Join)) { // 把部长会议安排在三点
        return true;
    }
    // 组织项目复盘会: what stands between the verb and the conference says what it is about.
    if (m_tokens[at].is(WordClass::StrongOpen) && next + 1 < m_tokens.size() &&
        m_tokens[next].kind == Token::Kind::Other && m_tokens[next + 1].is(WordClass::Conference) &&
        !m_tokens[next + 1].is(WordClass::Join)) {
        const QString what = m_text.mid(m_tokens[next].position, m_tokens[next].length);
        return isThing(what) || !(isPeople(what) || what.endsWith(QChar(u'的')));
    }
    return m_tokens[at].isAny(WordClass::StrongOpen | WordClass::WeakOpen) && next < m_tokens.size() &&
           m_tokens[next].is(WordClass::Measure) && !m_tokens[next].is(WordClass::Filler) &&
           m_text.at(m_tokens[next].end() - 1) != QChar(u'下');
}

bool NamePlaces::isOfKind(std::size_t at) const
{
    return at > 1 && !m_tokens[at].is(WordClass::Separator) && m_tokens[at - 1].is(WordClass::Measure) &&
           m_tokens[at - 2].isAny(WordClass::StrongOpen | WordClass::WeakOpen);
}

bool NamePlaces::isOnlyRelative(std::size_t at) const
{
    const std::size_t next = at + 1;
    if (m_tokens[at].length != 1 || !isSpeaker(m_text.at(m_tokens[at].position)) || next >= m_tokens.size() ||
        m_tokens[next].length != 1 || m_tokens[next].position != m_tokens[at].end()) {
        return false;
    }
    const bool ends = next + 1 == m_tokens.size() || m_tokens[next + 1].kind != Token::Kind::Other;
    return ends && isKin(m_text.at(m_tokens[next].position));
}

std::size_t NamePlaces::endOfBrackets(std::size_t at) const
{
    constexpr std::size_t farthest = 6;
    for (std::size_t next = at + 1; next < qMin(m_tokens.size(), at + farthest); ++next) {
        if (m_text.at(m_tokens[next].position) == QLatin1Char(')')) {
            return next;
        }
    }
    return at;
}

bool NamePlaces::isNumberBeforeName(std::size_t at) const
{
    const Token &token = m_tokens[at];
    return token.kind == Token::Kind::Number && token.length <= 2 && at + 1 < m_tokens.size() &&
           m_tokens[at + 1].kind == Token::Kind::Other && m_tokens[at + 1].position == token.end();
}

std::size_t NamePlaces::lastOfRun(std::size_t at, std::size_t limit) const
{
    while (at + 1 < m_tokens.size() && at < limit && !m_tokens[at + 1].inTopic &&
           (m_tokens[at + 1].kind == Token::Kind::Other || isSmallWordInName(at + 1) ||
            isPlainBeforeName(at + 1) || isGivenName(at + 1))) {
        ++at;
    }
    return at;
}

bool NamePlaces::isGivenName(std::size_t at) const
{
    return at > 1 && m_tokens[at].is(WordClass::Plain) && m_tokens[at].length == 2 &&
           m_tokens[at - 1].kind == Token::Kind::Other && m_tokens[at - 1].length == 1 &&
           m_tokens[at - 2].isAny(WordClass::Trigger | WordClass::Separator | WordClass::NameLabel) &&
           looksLikeName(m_text.mid(m_tokens[at - 1].position, 3));
}

bool NamePlaces::isSmallWordInName(std::size_t at) const
{
    const Token &token = m_tokens[at];
    constexpr WordClasses hard = WordClass::Separator | WordClass::WeakOpen | WordClass::Conference |
                                 WordClass::Punctuation | WordClass::Nobody | WordClass::Arrive;
    constexpr WordClasses coming = WordClass::ComeMeet | WordClass::Arrive | WordClass::Join;
    // 阿水都喊来开会; 请 in 约，请约卢老师
    const bool calls = token.isAny(WordClass::Trigger | WordClass::Pull) && at + 1 < m_tokens.size() &&
                       (m_tokens[at + 1].isAny(coming) ||
                        (m_tokens[at + 1].is(WordClass::Trigger) &&
                         (token.is(WordClass::Request) || m_tokens[at + 1].is(WordClass::Request))));
    if (calls) {
        return false;
    }
    static const CharacterSet done(u"完了过");
    const int behind = token.end() + 1; // 刚碰完会
    const bool justDone = m_text.at(token.position) == QChar(u'刚') && behind < m_text.size() &&
                          done.contains(m_text.at(behind));
    if (justDone) {
        return false;
    }
    const bool measure = m_text.at(token.position) == QChar(u'个'); // in no name: 约个时间
    return token.kind == Token::Kind::Word && token.length == 1 && !token.isAny(hard) && !measure &&
           m_text.at(token.position).isLetter();
}

std::size_t NamePlaces::skipToNames(std::size_t lead) const
{
    std::size_t at = lead + 1;
    constexpr WordClasses between = WordClass::Measure;
    const bool label = m_tokens[lead].isAny(WordClass::NameLabel);
    while (at < m_tokens.size()) {
        const Token &token = m_tokens[at];
        const bool linked =
            label && (token.isAny(WordClass::LabelLink | WordClass::Have | WordClass::NameLabel) ||
                      token.is(WordClass::Punctuation));
        // 一 in 约一组和二组, but not in 约一组人
        const bool group = token.length == 1 && m_text.at(token.position) == QChar(u'一') &&
                           firstOf(m_text, token.end(), {u"组", u"部", u"班", u"队", u"科", u"院"}) > 0 &&
                           charAt(m_text, token.end() + 1) != QChar(u'人');
        // 次 in 约次仁旺姆
        const bool inName = token.length == 1 && m_text.at(token.position) == QChar(u'次') &&
                            at + 1 < m_tokens.size() && m_tokens[at + 1].kind == Token::Kind::Other;
        // 一凡 in 约一凡开会
        const bool given = token.length == 1 && givenNameWithOne(m_text, token.position) > 0;
        if (inName || group || given ||
            (!token.isAny(between) && token.kind != Token::Kind::Space && !linked)) {
            break;
        }
        ++at;
    }
    return at;
}

bool NamePlaces::isSomebody(std::size_t at) const
{
    if (at >= m_tokens.size()) {
        return false;
    }
    if (m_tokens[at].kind == Token::Kind::Name || m_tokens[at].kind == Token::Kind::Latin ||
        m_tokens[at].kind == Token::Kind::Other) {
        return true;
    }
    const std::size_t next = at + 1;
    return isSmallWordInName(at) && next < m_tokens.size() && m_tokens[next].length > 1 &&
           m_tokens[next].position == m_tokens[at].end() &&
           (m_tokens[next].kind == Token::Kind::Other || m_tokens[next].is(WordClass::Title)) &&
           isPersonsName(m_text.mid(m_tokens[at].position, m_tokens[next].length + 1));
}

int NamePlaces::comerLength(std::size_t at) const
{
    if (at == 0 || m_tokens[at].kind != Token::Kind::Other || !m_tokens[at - 1].is(WordClass::Punctuation) ||
        !hasConference()) {
        return 0;
    }
    constexpr int longest = 9; // three people
    for (int length = 2; length <= qMin(longest, m_tokens[at].length); ++length) {
        const int start = m_tokens[at].position;
        int next = start + length;
        const QString said = m_text.mid(start, length);
        if (next > m_text.size() || !(length <= 3 ? isPersonsName(said) : isPeople(said)) ||
            isThing(said.left(2))) {
            continue;
        }
        const int all = firstOf(m_text, next, {u"都", u"也", u"全"});
        const int must =
            all + firstOf(m_text, next + all,
                          {u"必须", u"务必", u"一定得", u"一定要", u"一定", u"得", u"要", u"需要"});
        const int comes =
            firstOf(m_text, next + must, {u"来", u"到场", u"到", u"参加", u"出席", u"在", u"一起", u"一块"});
        const int alone =
            firstOf(m_text, next, {u"一个人就", u"一个就", u"一人就", u"一个都不能少", u"算一个"});
        next += must + comes;
        const QChar behind = m_text.size() > next ? m_text.at(next) : QChar(u',');
        static const CharacterSet ends(u",.!。;吧哦啊的");
        if (alone > 0 || (must > 0 && comes > 0 && ends.contains(behind))) {
            return length;
        }
    }
    return 0;
}

bool NamePlaces::callsAgain(std::size_t lead, std::size_t next) const
{
    static const CharacterSet calls(u"约叫喊拉");
    return next == lead + 1 && next + 1 < m_tokens.size() && m_tokens[lead].is(WordClass::Request) &&
           m_text.at(m_tokens[lead].position) == QChar(u'请') && m_tokens[next].is(WordClass::Trigger) &&
           m_tokens[next].length == 1 && calls.contains(m_text.at(m_tokens[next].position)) &&
           (m_tokens[next + 1].kind == Token::Kind::Other || m_tokens[next + 1].kind == Token::Kind::Name);
}

bool NamePlaces::isOwner(std::size_t at) const
{
    return m_tokens[at].is(WordClass::Mine) && at + 1 < m_tokens.size() &&
           (m_tokens[at + 1].isAny(WordClass::Nobody | WordClass::Filler | WordClass::Title |
                                   WordClass::Address) ||
            m_tokens[at + 1].kind == Token::Kind::Other || m_tokens[at + 1].kind == Token::Kind::Name);
}

std::size_t NamePlaces::skipTitle(std::size_t at) const
{
    return at + 1 < m_tokens.size() && m_tokens[at + 1].is(WordClass::Title) ? at + 1 : at;
}

bool NamePlaces::isPointer(std::size_t at) const
{
    static const QString pointers = QStringLiteral("那个这个那位这位人成员");
    return at + 1 < m_tokens.size() && m_tokens[at].isAny(WordClass::Filler | WordClass::Nobody) &&
           pointers.contains(m_text.mid(m_tokens[at].position, m_tokens[at].length)) &&
           (m_tokens[at + 1].kind == Token::Kind::Name || m_tokens[at + 1].kind == Token::Kind::Latin ||
            m_tokens[at + 1].kind == Token::Kind::Other);
}

} // namespace understanding
