// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/remarks.h"

#include "names/absences.h"

#include <QRegularExpression>

#include <algorithm>

namespace understanding {

namespace {

constexpr char16_t Day[] =
    u"(?:大?[今明后昨前][天日]|[今明][早晚]|[下这本]*(?:周|星期|礼拜)[一二三四五六日天末])";
constexpr char16_t Hour[] =
    u"(?:早上|上午|中午|下午|傍晚|晚上|待会儿?|那会儿|那时候?|[0-9零一二三四五六七八九十两]{1,3}(?:点|:[0-9]{"
    u"2})"
    u"(?:半|一刻|三刻|钟|[0-9零一二三四五六七八九十]{1,3}分?)?(?:[以之]?[前后]|左右)?|到|[以之][前后])";
constexpr char16_t Fill[] = u"(?:[就先也又还都刚正]|临时|这次|可能|好像|已经|现在|这会儿|正好|刚好|那天)*";
constexpr char16_t Ends[] = u"[了吧啊呀的啦呢]*$";

/// 李娜三点有事, 三点她没空, 李娜不来了.
const QRegularExpression &tellingPattern()
{
    // The second person stands behind the time.
    static const QRegularExpression pattern(
        QStringLiteral("^%1(?<who>.{0,8}?)%4(?:(?<time>(?:%2|%3)+)的?(?<also>.{0,8}?)%4)?"
                       "(?:%6[了就也]*)*(?:(?<out>%5)|%6|(?<late>没[来到]))%7")
            .arg(leadPattern(), QString::fromUtf16(Day), QString::fromUtf16(Hour), QString::fromUtf16(Fill),
                 leftOutPattern(), busyPattern(), QString::fromUtf16(Ends)));
    return pattern;
}

/// 别叫李娜.
const QRegularExpression &leavingPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^%1(?!不是)%2(?<who>.{1,12}?)%3")
            .arg(leadPattern(), leavingOutPattern(), QString::fromUtf16(Ends)));
    return pattern;
}

/// 把李娜换成孙丽, 换孙丽.
const QRegularExpression &exchangePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^%1把?(?<who>.{0,6}?)(?:换成?|换作|换为)(?<by>.{1,8}?)%2")
            .arg(leadPattern(), QString::fromUtf16(Ends)));
    return pattern;
}

const QRegularExpression &dayPattern()
{
    static const QRegularExpression pattern(QString::fromUtf16(Day));
    return pattern;
}

bool isPronoun(const QString &text)
{
    static const QRegularExpression pronoun(
        QStringLiteral("^(?:[他她]|[他她]们(?:[一两几]个人?)?|[一两]个人?)$"));
    return text.contains(pronoun);
}

/// Reads one clause after the other.
class RemarkReader final
{
public:
    RemarkReader(const QString &sentence, const QString &text, const ContactIndex &contacts)
        : m_sentence(sentence)
        , m_text(text)
        , m_contacts(contacts)
    {
    }

    Remarks run()
    {
        static const QRegularExpression clauses(QStringLiteral("([^,.;:!~]+)[,.;:!~]*"));
        auto matches = clauses.globalMatch(m_text);
        QString order;
        bool ordered = false;
        bool told = false;
        while (matches.hasNext()) {
            const QRegularExpressionMatch clause = matches.next();
            const QString said = clause.captured(1).trimmed();
            m_clause = clause.capturedStart();
            m_position = order.size();
            if (mayTellAbsence(said) && (tellsOfPeople(said, !ordered) || leavesOut(said))) {
                told = true;
                continue;
            }
            const QString by = ordered ? exchangedFor(said) : QString();
            told = told || !by.isEmpty();
            ordered = true;
            order += by.isEmpty() ? m_sentence.mid(clause.capturedStart(), clause.capturedLength())
                                  : QStringLiteral("叫%1，").arg(by);
            if (said.contains(dayPattern())) { // 明天没空，后天三点开会
                m_remarks.day.clear();
            }
        }
        if (!told || !ordered) {
            return {};
        }
        static const QRegularExpression end(QStringLiteral("[\\p{P}\\s]+$"));
        m_remarks.order = m_remarks.day + order.remove(end);
        resolvePronoun();
        return std::move(m_remarks);
    }

private:
    bool tellsOfPeople(const QString &clause, bool first)
    {
        const QRegularExpressionMatch telling = tellingPattern().match(clause);
        QString who = telling.captured(QStringLiteral("who"));
        const QString time = telling.captured(QStringLiteral("time"));
        const QString also = telling.captured(QStringLiteral("also"));
        if (!telling.hasMatch() || (!who.isEmpty() && !also.isEmpty()) ||
            (telling.capturedLength(QStringLiteral("late")) > 0 && time.isEmpty())) { // 孙俪还没来，拉一下她
            return false;
        }
        static const QRegularExpression saying(QStringLiteral("(?<=.)(?:说?[他她]|说)$")); // 李娜说她
        who += also;
        who.remove(saying);
        if (time.isEmpty()) {
            return takePeople(who, telling.capturedLength(QStringLiteral("out")) > 0);
        }
        static const QRegularExpression speaker(QStringLiteral("^[我咱]们?$"));
        const QStringList names = typedNames(who);
        if (!who.isEmpty() && !who.contains(speaker) && !isPronoun(who) && names.isEmpty()) {
            return false;
        }
        m_told += names;
        m_remarks.timed.append(time);
        const QRegularExpressionMatch day = dayPattern().match(time);
        static const QRegularExpression past(QStringLiteral("^[昨前]"));
        if (first && day.hasMatch() && !day.captured().contains(past)) {
            m_remarks.day = day.captured();
        }
        return true;
    }

    bool leavesOut(const QString &clause)
    {
        const QRegularExpressionMatch leaving = leavingPattern().match(clause);
        return leaving.hasMatch() && takePeople(leaving.captured(QStringLiteral("who")), true);
    }

    /// Who is to come instead of somebody else according to @p clause.
    QString exchangedFor(const QString &clause)
    {
        const QRegularExpressionMatch exchange = exchangePattern().match(clause);
        const QString by = exchange.captured(QStringLiteral("by"));
        QString who = exchange.captured(QStringLiteral("who"));
        if (!exchange.hasMatch() || namesOf(by, m_contacts).isEmpty()) {
            return {};
        }
        if (who.isEmpty()) {
            if (m_remarks.absent.isEmpty()) { // but not in 她没空，换孙丽
                m_remarks.absent.append({QString(), m_position, false, true});
            }
            return by;
        }
        return takePeople(who, true) ? by : QString();
    }

    bool takePeople(const QString &who, bool leftOut)
    {
        if (isPronoun(who)) {
            m_remarks.absent.append({QString(), m_position, who.size() > 1, leftOut});
            return true;
        }
        const QStringList names = who.isEmpty() ? QStringList() : typedNames(who);
        for (const QString &name : names) {
            m_remarks.absent.append({name, m_position, false, leftOut});
        }
        m_told += names;
        return !names.isEmpty();
    }

    /// The names that @p who consists of, with the characters that were typed.
    QStringList typedNames(const QString &who) const
    {
        QStringList names = namesOf(who, m_contacts);
        for (QString &name : names) {
            const int start = m_text.indexOf(name, m_clause);
            name = start < 0 ? name : m_sentence.mid(start, name.size());
        }
        return names;
    }

    /// 李娜三点没空，约她四点: calls whom the remark was about.
    void resolvePronoun()
    {
        static const QRegularExpression called(QStringLiteral("^[^,.;，。]*[约叫跟和与拉请找][他她](?!们)"));
        const QRegularExpressionMatch match = called.match(m_remarks.order);
        if (m_told.size() == 1 && match.hasMatch()) {
            m_remarks.order.replace(match.capturedEnd() - 1, 1, m_told.first());
            m_remarks.absent.clear();
        }
    }

    const QString &m_sentence;
    const QString &m_text;
    const ContactIndex &m_contacts;
    Remarks m_remarks;
    QStringList m_told; ///< everybody named in the remarks
    int m_clause = 0;   ///< where it starts
    int m_position = 0; ///< and where it would in the order
};

} // namespace

Remarks findRemarks(const QString &sentence, const QString &text, const ContactIndex &contacts)
{
    static const QString signs = QStringLiteral(",.;:!~");
    const bool several =
        std::find_first_of(text.cbegin(), text.cend(), signs.cbegin(), signs.cend()) != text.cend();
    return several && mayTellAbsence(text) ? RemarkReader(sentence, text, contacts).run() : Remarks();
}

} // namespace understanding
