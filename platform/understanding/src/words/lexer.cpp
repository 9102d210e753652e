// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "words/lexer.h"

#include "names/namecharacters.h"
#include "names/namelook.h"
#include "text/characterset.h"
#include "text/chinesenumber.h"
#include "text/scan.h"
#include "time/timereader.h"
#include "words/lexicon.h"
#include "words/namesliketimes.h"

namespace understanding {

namespace {

constexpr int ShortestSpokenNumber = 3; // 一下, 二三 are no numbers yet

class Lexer final
{
public:
    Lexer(const QString &text, const ContactIndex &contacts) : m_text(text), m_contacts(contacts) {}

    Tokens run()
    {
        m_tokens.reserve(static_cast<std::size_t>(m_text.size() / 2) + 1);
        while (m_at < m_text.size()) {
            if (!takeName() && !takeForeignName() && !takeTimeOrNumberOrWord()) {
                takeOther();
            }
        }
        return std::move(m_tokens);
    }

private:
    Token &append(Token::Kind kind, int length)
    {
        Token token;
        token.kind = kind;
        token.position = m_at;
        token.length = length;
        m_tokens.push_back(std::move(token));
        m_at += length;
        return m_tokens.back();
    }

    void takeOther()
    {
        if (m_text.at(m_at) == QLatin1Char(' ')) {
            append(Token::Kind::Space, 1);
        } else if (!m_tokens.empty() && m_tokens.back().kind == Token::Kind::Other) {
            ++m_tokens.back().length, ++m_at;
        } else {
            append(Token::Kind::Other, 1);
        }
    }

    bool takeName()
    {
        const QString name = m_contacts.longestAt(m_text, m_at);
        if (name.isEmpty()) {
            return false;
        }
        append(Token::Kind::Name, name.size()).name = name;
        return true;
    }

    /// Takes names that contain words of the rules: 阿布都热合曼, 阿不都拉.
    bool takeForeignName()
    {
        int length = 0;
        switch (m_text.at(m_at).unicode()) {
        case u'阿':
            length = firstOf(m_text, m_at, {u"阿不都拉", u"阿布都拉", u"阿不都", u"阿布都", u"阿卜都"});
            break;
        case u'加':
            length = firstOf(m_text, m_at, {u"加拉提"});
            break;
        case u'建': // 建国 in 两位客户贺建国
            if (!m_tokens.empty() && m_tokens.back().kind == Token::Kind::Other) {
                length = firstOf(m_text, m_at,
                                 {u"建国", u"建军", u"建华", u"建平", u"建明", u"建新", u"建伟", u"建文",
                                  u"建民", u"建英", u"建林", u"建波", u"建强", u"建东", u"建成"});
            }
            break;
        case u'开': // 李开来
            length =
                isBehindFamilyName(m_text, m_tokens) ? firstOf(m_text, m_at, {u"开来", u"开慧", u"开泰"}) : 0;
            break;
        case u'刚': // 刚开 in 和张刚开会, 来开 in 跟魏来开会, 新加 in 邀请朱立新加入会议
        case u'来':
        case u'新':
            length = isEndOfGivenName(m_text, m_tokens) &&
                             firstOf(m_text, m_at + 1, {u"开会", u"开个", u"开视频", u"加入"}) > 0
                         ? 1
                         : 0;
            break;
        case u'明': // 居委会的董明晨, but not 王总明晨
            length = isBehindFamilyName(m_text, m_tokens) ? firstOf(m_text, m_at, {u"明晨"}) : 0;
            break;
        default:
            break;
        }
        for (int taken = 0; taken < length; ++taken) {
            takeOther();
        }
        return length > 0;
    }

    bool takeTimeOrNumberOrWord()
    {
        WordMatch word = Lexicon::instance().longestAt(m_text, m_at);
        if (takesPieceOfNext(word)) {
            word = Lexicon::instance().longestAt(m_text.left(m_at + word.length - 1), m_at);
        }
        settleConferenceEnd(word);
        const bool opened = m_text.at(m_at) == QChar(u'会') && charAt(m_text, m_at - 1) == QChar(u'开');
        if (opened && word.length > 1 &&
            word.classes.intersects(WordClass::Framed |
                                    WordClass::Trigger)) { // 会 in 开会怎么样 is a conference
            word = Lexicon::instance().longestAt(m_text.left(m_at + 1), m_at);
        }
        const TimeMatch time = readTime(m_text, m_at);
        if (time.kind != TimeMatch::Kind::None && time.length >= word.length &&
            !isInUnknownName(m_text, m_tokens, m_at, time)) {
            takeTime(time);
            return true;
        }
        if (takeNumberOrLatin(word.length)) {
            return true;
        }
        constexpr int shortestTitle = 2;
        const bool surname = word.length == 1 && m_text.at(m_at) == QChar(u'莫') && m_at + 1 < m_text.size();
        if (surname) { // 莫教授
            const WordMatch title = Lexicon::instance().longestAt(m_text, m_at + 1);
            const bool called = !m_tokens.empty() && // 约莫小北
                                m_tokens.back().isAny(WordClass::Trigger | WordClass::Separator) &&
                                m_text.at(m_tokens.back().position).isLetter();
            const bool titled = title.length >= shortestTitle && title.classes.has(WordClass::Title);
            const bool familiar =
                !m_tokens.empty() && // 采购的老莫, 主任莫凡
                (m_tokens.back().is(WordClass::Title) ||
                 (m_tokens.back().kind == Token::Kind::Other && isNamePrefix(m_text.at(m_at - 1))));
            word = called || titled || familiar ? WordMatch() : word;
        }
        if (word.length == 0 || isOffice(word)) {
            return false;
        }
        append(Token::Kind::Word, word.length).classes = word.classes;
        return true;
    }

    /// True for 联络 in 联络员李娜, which calls nobody; 通知员工 does.
    bool isOffice(const WordMatch &word) const
    {
        const int end = m_at + word.length;
        return word.length == 2 && word.classes.has(WordClass::Trigger) &&
               firstOf(m_text, end, {u"员", u"者", u"官"}) > 0 && firstOf(m_text, end, {u"员工"}) == 0;
    }

    /// True if the last character of @p word begins what follows: 约下 in 约下午三点 and 约下周三, but not
    /// 约一下 in 约一下周三.
    bool takesPieceOfNext(const WordMatch &word) const
    {
        const int last = m_at + word.length - 1;
        if (word.length < 2) {
            return false;
        }
        // 博士 in 施博士后天, 叫 in 叫上官婉儿, 开会 in 开会时间, 清明 in 记不清明天, 不同意 in 不同意见,
        // 新年 in 新年度, 也别 in 也别忘了, 孙女 in 孙女士
        if (firstOf(m_text, last,
                    {u"后天", u"上官", u"时间", u"明天", u"明早", u"明晚", u"明儿", u"约翰", u"约瑟", u"上午",
                     u"好友", u"意见", u"年度", u"别忘", u"女士", u"会计"}) > 0) {
            return true;
        }
        if (word.length == 2 && firstOf(m_text, m_at, {u"让我"}) > 0 &&
            (isKin(charAt(m_text, m_at + 2)) || firstOf(m_text, m_at + 2,
                                                        {u"的", u"老公", u"老婆", u"媳妇", u"儿", u"女",
                                                         u"闺女", u"家", u"同事", u"同学"}) > 0)) {
            return true; // 让我的客户进会议, 让我老公进会
        }
        if (word.length == 2 && // 开学 in 开学术委员会会议
            firstOf(m_text, m_at, {u"开学术", u"开学习", u"开学科", u"开发布", u"开发版"}) > 0) {
            return true;
        }
        if (word.length == 2 && firstOf(m_text, m_at, {u"约在"}) > 0) { // 约在上海的周扬, but not 约在三点
            const int of = m_text.indexOf(QChar(u'的'), last);
            constexpr int farthest = 8;
            return of > 0 && of - last < farthest && readTime(m_text, last + 1).kind == TimeMatch::Kind::None;
        }
        const bool behindSurname = !m_tokens.empty() && m_tokens.back().kind == Token::Kind::Other;
        if (behindSurname &&
            word.length == 2 && // 工会 in 和李工会议, 学会 in 数学会议, 周周 in 和老周周一开会
            (firstOf(m_text, m_at, {u"工会议", u"工会诊", u"工会面", u"学会议"}) > 0 ||
             (firstOf(m_text, m_at, {u"周周"}) > 0 &&
              readTime(m_text, last).kind != TimeMatch::Kind::None))) {
            return true;
        }
        const bool descendant = firstOf(m_text, m_at, {u"孙子", u"孙女"}) == word.length; // 孙 in 孙子涵
        if (descendant && isSingleStranger(m_text, m_at + word.length)) {
            return true;
        }
        if (m_text.at(last) != QChar(u'下') || m_text.at(last - 1) == QChar(u'一') ||
            charAt(m_text, last + 1) == QChar(u'下')) {
            return false;
        }
        return readTime(m_text, last).kind != TimeMatch::Kind::None;
    }

    /// 沟通会议 where only 沟通会 is known, and 启动会 in 启动会议, where 启动 is the verb.
    void settleConferenceEnd(WordMatch &word) const
    {
        const int end = m_at + word.length;
        if (word.length < 3 || !word.classes.has(WordClass::Conference) ||
            m_text.at(end - 1) != QChar(u'会') || charAt(m_text, end) != QChar(u'议')) {
            return;
        }
        const WordMatch verb = Lexicon::instance().longestAt(m_text.mid(m_at, word.length - 1), 0);
        constexpr WordClasses opening = WordClass::StrongOpen | WordClass::GoverningOpen;
        if (verb.length == word.length - 1 && verb.classes.intersects(opening)) {
            word = verb;
        } else {
            ++word.length;
        }
    }

    void takeTime(const TimeMatch &time)
    {
        switch (time.kind) {
        case TimeMatch::Kind::UnclearDay: {
            // 下周下午三点: keep the hour until the day is known.
            Token &token = append(Token::Kind::Word, time.length);
            token.classes = WordClass::UnclearDay;
            token.time = time.expression;
            break;
        }
        case TimeMatch::Kind::Duration:
            append(Token::Kind::Duration, time.length);
            break;
        default:
            append(Token::Kind::Time, time.length).time = time.expression;
        }
    }

    bool takeNumberOrLatin(int wordLength)
    {
        if (takeDecimal()) {
            return true;
        }
        const int digits = numberEnd() - m_at;
        const int latin = latinEnd() - m_at;
        if (latin > digits && latin > wordLength) {
            append(Token::Kind::Latin, latin);
            return true;
        }
        const bool ascii = m_text.at(m_at).unicode() < 0x80;
        if (digits == 0 || digits <= wordLength || (!ascii && digits < ShortestSpokenNumber)) {
            return false;
        }
        append(Token::Kind::Number, digits);
        return true;
    }

    /// 7.2 in 7.2版本的评审会 is no conference number, and its point ends no clause.
    bool takeDecimal()
    {
        const auto isDigit = [&](int at) {
            return at < m_text.size() && m_text.at(at) >= QLatin1Char('0') &&
                   m_text.at(at) <= QLatin1Char('9');
        };
        int at = m_at;
        int points = 0;
        while (isDigit(at)) {
            while (isDigit(at)) {
                ++at;
            }
            if (at < m_text.size() && m_text.at(at) == QLatin1Char('.') && isDigit(at + 1)) {
                ++at;
                ++points;
            }
        }
        const bool latinFollows = at < m_text.size() && isLatinLetterOrDigit(m_text.at(at));
        if (points == 0 || latinFollows) {
            return false;
        }
        append(Token::Kind::Other, at - m_at);
        return true;
    }

    /// The end of a string of digits, excluding a group that is a time by itself.
    int numberEnd() const
    {
        const int end = digitStringEnd(m_text, m_at);
        for (int at = m_at + 1; at < end; ++at) {
            const QChar before = m_text.at(at - 1);
            const bool groupStart = before == QLatin1Char(' ') && m_text.at(at) != QLatin1Char(' ');
            if (groupStart && readTime(m_text, at).kind == TimeMatch::Kind::Time) {
                return digitStringEnd(m_text.left(at - 1), m_at);
            }
        }
        return end;
    }

    /// The end of an account or a Latin name: letters, digits and the signs of a mail address, and any digits
    /// read aloud behind them.
    int latinEnd() const
    {
        if (const int form = firstOf(m_text, m_at, {u"Dr. ", u"Mr. ", u"Mrs. ", u"Ms. ", u"Prof. "})) {
            const int end = latinEndFrom(m_at + form); // Mr. Brown
            return end > m_at ? end : latinEndFrom(m_at);
        }
        int start = m_at;
        while (isInitial(start)) { // J.K. Rowling
            start = skipSpaces(m_text, start + 2);
        }
        const int end = latinEndFrom(start);
        return end > start ? end : latinEndFrom(m_at);
    }

    /// ' in O'Brien, also as it is typeset.
    bool isApostrophe(int at) const
    {
        static const CharacterSet apostrophes(u"'’‘´`");
        const QChar before = charAt(m_text, at - 1);
        const QChar next = charAt(m_text, at + 1);
        return at > m_at && apostrophes.contains(m_text.at(at)) && isLatinLetterOrDigit(before) &&
               before.isLetter() && isLatinLetterOrDigit(next) && next.isLetter();
    }

    /// J. before another initial or a name.
    bool isInitial(int at) const
    {
        const QChar next = charAt(m_text, skipSpaces(m_text, at + 2));
        return charAt(m_text, at).isUpper() && charAt(m_text, at + 1) == QLatin1Char('.') &&
               isLatinLetterOrDigit(next) && next.isUpper();
    }

    int latinEndFrom(int start) const
    {
        int at = start;
        int end = m_at;
        bool letters = false;
        while (at < m_text.size()) {
            const QChar character = m_text.at(at);
            if (isLatinLetterOrDigit(character)) {
                letters = letters || character.isLetter();
                end = ++at;
            } else if (isApostrophe(at)) {
                ++at;
            } else if (at > m_at && QStringLiteral("@._-+").contains(character)) {
                ++at;
            } else {
                break;
            }
        }
        if (!letters) {
            return m_at;
        }
        const int spoken = digitStringEnd(m_text, end);
        return spoken - end >= 2 && m_text.at(end) != QLatin1Char(' ') && m_text.at(end) != QLatin1Char('-')
                   ? spoken
                   : end;
    }

    const QString &m_text;
    const ContactIndex &m_contacts;
    Tokens m_tokens;
    int m_at = 0;
};

} // namespace

Tokens tokenize(const QString &text, const ContactIndex &contacts)
{
    return Lexer(text, contacts).run();
}

} // namespace understanding
