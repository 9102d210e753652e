// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/remarks.h"

#include "names/absences.h"
#include "text/characterset.h"
#include "text/sentence.h"
#include "time/timereader.h"

#include <QRegularExpression>

#include <algorithm>

namespace understanding {

namespace {

// Possessive, so that no clause is read in more ways than one.
constexpr char16_t Fill[] = u"(?:[就先也又还都刚正]|临时|这次|已经|现在|这会儿|正好|刚好|那天)*+";
constexpr char16_t Ends[] = u"[了吧啊呀的啦呢]*$";

const CharacterSet &signs()
{
    static const CharacterSet characters(u",.;:!~");
    return characters;
}

/// What stands behind the time, or behind the lead: 李娜不来了, 我有事.
const QRegularExpression &tellingPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^的?(?<who>.{0,8}?)%1(?:%3[了就也]*+)?(?:(?<out>%2)|%3|(?<late>没[来到]))%4")
            .arg(QString::fromUtf16(Fill), leftOutPattern(), busyPattern(), QString::fromUtf16(Ends)));
    return pattern;
}

/// 别叫李娜.
const QRegularExpression &leavingPattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?!不是)%1(?<who>.{1,12}?)%2").arg(leavingOutPattern(), QString::fromUtf16(Ends)));
    return pattern;
}

/// 王磊已经在会里了, 李娜和王磊都进来了; but not 李娜来了, which may be why to start.
const QRegularExpression &therePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^(?<who>.{1,8}?)(?:已经|早就|[已都])*+(?:在(?:会里|会议里|会上|里面|线上?)|"
                       "(?<=[经就已都])(?:在|到|来|进来|进会|入会))了%1")
            .arg(QString::fromUtf16(Ends)));
    return pattern;
}

/// True for what only calls people into the conference that is going on: nobody is there before another one.
bool isInvitation(const QString &text)
{
    return (text.contains(QStringLiteral("邀请")) || text.contains(QChar(u'拉'))) &&
           !text.contains(QChar(u'开')) && !text.contains(QChar(u'约'));
}

/// 把李娜换成孙丽, 换孙丽.
const QRegularExpression &exchangePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^把?(?<who>.{0,6}?)(?:换成?|换作|换为)(?<replacement>.{1,8}?)%1")
            .arg(QString::fromUtf16(Ends)));
    return pattern;
}

bool isPronoun(const QString &text)
{
    static const QRegularExpression pronoun(
        QStringLiteral("^(?:[他她]|[他她]们(?:[一两几]个人?)?|[一两]个人?)$"));
    return text.contains(pronoun);
}

/// 李娜 for 李娜说她.
QString withoutSaying(QString who)
{
    static const QRegularExpression saying(QStringLiteral("(?<=.)(?:说?[他她]|说)$"));
    return who.remove(saying);
}

/// The part of a clause that says when: 三点到四点, 明天上午.
struct TimePart
{
    int start = 0;
    int end = 0;
    Remarks::Engagement when;

    bool isEmpty() const { return end == start; }
};

/// Finds the time with which @p clause begins, or which stands behind a person.
TimePart findTime(const QString &clause)
{
    constexpr int longestPerson = 8;
    TimePart part;
    const int farthest = qMin(longestPerson, clause.size() - 1);
    for (int at = 0; at <= farthest && part.isEmpty(); ++at) {
        const TimeMatch match = readTime(clause, at);
        if (match.kind == TimeMatch::Kind::Time) {
            part = {at, at + match.length, {match.expression, {}, {}, {}, false, false}};
        }
    }
    bool span = false;
    for (int at = part.end; !part.isEmpty() && at < clause.size(); at = part.end) {
        static const QRegularExpression bound(QStringLiteral("[以之]?[前后]"));
        const QRegularExpressionMatch bounded =
            bound.match(clause, at, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
        const TimeMatch next = readTime(clause, at);
        if (bounded.hasMatch()) {
            part.end = bounded.capturedEnd();
        } else if (clause.at(at) == QChar(u'到') && !span) {
            span = true;
            ++part.end;
        } else if (next.kind == TimeMatch::Kind::Time) {
            (span ? part.when.to : part.when.from).complete(next.expression);
            part.end += next.length;
        } else {
            break;
        }
    }
    const int middle = part.isEmpty() ? -1 : clause.indexOf(QChar(u'到'), part.start);
    if (middle > 0 && middle + 1 < part.end && !span) { // read as one time, which begins with the first
        part.when.to = readTime(clause, middle + 1).expression;
    }
    static const CharacterSet bounds(u"前后");
    const QChar last = part.isEmpty() ? QChar() : clause.at(part.end - 1);
    if (bounds.contains(last) && !part.when.from.hasOffset) { // 三点之前
        part.when.bound = last;
    }
    return part;
}

/// Reads one clause after the other.
class RemarkReader final
{
public:
    RemarkReader(const QString &sentence, const QString &text, const ContactIndex &contacts)
        : m_sentence(sentence)
        , m_text(text)
        , m_contacts(contacts)
        , m_isInvitation(isInvitation(text))
    {
    }

    Remarks run()
    {
        bool told = false;
        for (int end = 0; end < m_text.size();) {
            m_clause = end;
            const int sign = endOfClause(m_clause);
            end = sign;
            while (end < m_text.size() && isSign(end)) {
                ++end;
            }
            const QString clause = m_text.mid(m_clause, sign - m_clause);
            const QString said =
                m_isInvitation || hasWordOfAbsence(clause) ? withoutLead(clause.trimmed()) : QString();
            if (!said.isEmpty() && (tellsOfPeople(said) || leavesOut(said) || isThere(said))) {
                told = true;
                continue;
            }
            const bool exchanges = !m_order.isEmpty() && said.contains(QChar(u'换'));
            const QString replacement = exchanges ? exchangedFor(said) : QString();
            told = told || !replacement.isEmpty();
            m_order += replacement.isEmpty() ? m_sentence.mid(m_clause, end - m_clause)
                                             : QStringLiteral("叫%1，").arg(replacement);
        }
        if (!told || m_order.isEmpty()) {
            return {};
        }
        static const CharacterSet ends(u",.;:!~，。；：！～… ");
        while (!m_order.isEmpty() && ends.contains(m_order.back())) {
            m_order.chop(1);
        }
        resolvePronoun();
        m_remarks.order = m_order;
        return std::move(m_remarks);
    }

private:
    /// True for what ends a clause, but not for the colon of 15:30.
    bool isSign(int at) const
    {
        const bool inNumber = at > 0 && at + 1 < m_text.size() && m_text.at(at - 1).isDigit() &&
                              m_text.at(at + 1).isDigit() &&
                              (m_text.at(at) == QLatin1Char(':') || m_text.at(at) == QLatin1Char('.'));
        return signs().contains(m_text.at(at)) && !inNumber;
    }

    int endOfClause(int begin) const
    {
        int end = begin;
        while (end < m_text.size() && !isSign(end)) {
            ++end;
        }
        return end;
    }

    QString withoutLead(const QString &clause)
    {
        static const QRegularExpression lead(QLatin1Char('^') + leadPattern() + QLatin1Char('+'));
        static const QRegularExpression hedge(QStringLiteral("可能|好像|估计|听说|也许|大概"));
        m_hedged = clause.contains(hedge);
        QString rest = clause;
        rest.remove(hedge);
        return rest.mid(lead.match(rest).capturedLength());
    }

    bool tellsOfPeople(const QString &clause)
    {
        const TimePart time = findTime(clause);
        const QRegularExpressionMatch telling = tellingPattern().match(clause.mid(time.end));
        QString who = telling.captured(QStringLiteral("who"));
        const QString before = clause.left(time.start);
        const bool late = telling.capturedLength(QStringLiteral("late")) > 0;
        if (!telling.hasMatch() || (!who.isEmpty() && !before.isEmpty()) ||
            (late && time.isEmpty())) { // 孙俪还没来，拉一下她
            return false;
        }
        static const QRegularExpression fill(QString::fromUtf16(Fill) + QLatin1Char('$'));
        who = withoutSaying(before.isEmpty() ? who : QString(before).remove(fill));
        if (time.isEmpty()) {
            return takePeople(who, telling.capturedLength(QStringLiteral("out")) > 0);
        }
        static const QRegularExpression speaker(QStringLiteral("^[我咱]们?$"));
        const QStringList names = typedNames(who);
        if (!who.isEmpty() && !who.contains(speaker) && !isPronoun(who) && names.isEmpty()) {
            return false;
        }
        m_told += names;
        Remarks::Engagement when = time.when;
        when.people = names;
        when.frame = m_order.isEmpty() && (before.isEmpty() || who.contains(speaker));
        when.personal = m_order.isEmpty() && !when.frame;
        m_remarks.engagements.append(when);
        return true;
    }

    bool leavesOut(const QString &clause)
    {
        const QRegularExpressionMatch leaving = leavingPattern().match(clause);
        return leaving.hasMatch() && takePeople(leaving.captured(QStringLiteral("who")), true);
    }

    bool isThere(const QString &clause)
    {
        const QRegularExpressionMatch there =
            m_isInvitation ? therePattern().match(clause) : QRegularExpressionMatch();
        return there.hasMatch() && takePeople(there.captured(QStringLiteral("who")), true);
    }

    /// Who is to come instead of somebody else according to @p clause.
    QString exchangedFor(const QString &clause)
    {
        const QRegularExpressionMatch exchange = exchangePattern().match(clause);
        const QStringList names = typedNames(exchange.captured(QStringLiteral("replacement")));
        const QString who = exchange.captured(QStringLiteral("who"));
        if (names.isEmpty() || (!who.isEmpty() && !takePeople(who, true))) {
            return {};
        }
        if (who.isEmpty() && m_remarks.absent.isEmpty()) { // but not in 她没空，换孙丽
            m_remarks.absent.append({QString(), m_order.size(), false, true, m_hedged});
        }
        return names.join(QChar(u'和'));
    }

    bool takePeople(const QString &who, bool leftOut)
    {
        const QStringList names = typedNames(who);
        if (names.isEmpty() && !isPronoun(who)) {
            return false;
        }
        const bool all = who.contains(QChar(u'们'));
        for (const QString &name : names.isEmpty() ? QStringList(QString()) : names) {
            m_remarks.absent.append({name, m_order.size(), all, leftOut, m_hedged});
        }
        m_told += names;
        return true;
    }

    /// The names that @p who consists of, with the characters that were typed.
    QStringList typedNames(const QString &who) const
    {
        QStringList names = who.isEmpty() ? QStringList() : namesOf(who, m_contacts);
        for (QString &name : names) {
            const int start = m_text.indexOf(name, m_clause);
            name = start < 0 ? name : m_sentence.mid(start, name.size());
        }
        return names;
    }

    /// 李娜三点没空，约她四点: calls whom the remark was about.
    void resolvePronoun()
    {
        const bool leftOut = std::any_of(m_remarks.absent.cbegin(), m_remarks.absent.cend(),
                                         [](const Remarks::Person &person) { return person.leftOut; });
        if (m_told.size() != 1 || leftOut) {
            return;
        }
        static const QRegularExpression called(QStringLiteral("^[^,.;:!]*[约叫跟和与拉请找]([他她])(?!们)"));
        const QRegularExpressionMatch match = called.match(Sentence(m_order).text());
        if (match.hasMatch()) {
            m_order.replace(match.capturedStart(1), 1, m_told.first());
            m_remarks.absent.clear();
        }
    }

    const QString &m_sentence;
    const QString &m_text;
    const ContactIndex &m_contacts;
    const bool m_isInvitation;
    Remarks m_remarks;
    QString m_order;
    QStringList m_told;    ///< everybody named in the remarks
    int m_clause = 0;      ///< where it starts
    bool m_hedged = false; ///< what it says may be so
};

} // namespace

Remarks findRemarks(const QString &sentence, const QString &text, const ContactIndex &contacts)
{
    return signs().meets(text) && (isInvitation(text) || hasWordOfAbsence(text))
               ? RemarkReader(sentence, text, contacts).run()
               : Remarks();
}

} // namespace understanding
