// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/peoplechange.h"

#include "dialogue/answerclauses.h"
#include "meaning/suspicions.h"
#include "names/absences.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <vector>

namespace understanding {

namespace {

constexpr char16_t Ends[] = u"[了吧啊呀的啦]*$";
// The people said before stand for themselves as these, so that every pattern is compiled once.
constexpr ushort FirstPerson = 0xE000;
constexpr char16_t Person[] = u"[\uE000-\uEFFF](?:(?:[和跟与、]|还有)[\uE000-\uEFFF])*";

/// @p pattern for a whole clause: %1 is a verb that calls somebody, %2 one or several of the people.
QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QLatin1Char('^') + leadPattern() +
                              QString(pattern)
                                  .replace(QLatin1String("%1"), callPattern())
                                  .replace(QLatin1String("%2"), QString::fromUtf16(Person)) +
                              QString::fromUtf16(Ends));
}

QString placeholder(int person)
{
    return {QChar(static_cast<ushort>(FirstPerson + person))};
}

bool matches(const QString &clause, const QRegularExpression &pattern)
{
    return pattern.match(clause).hasMatch();
}

/// @p clause with a placeholder for each of @p people, the longest names first: 李娜 is in 李娜娜.
QString withPlaceholders(QString clause, const QStringList &people)
{
    std::vector<int> order(static_cast<std::size_t>(people.size()));
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](int left, int right) { return people.at(left).size() > people.at(right).size(); });
    for (const int at : order) {
        clause.replace(people.at(at), placeholder(at));
    }
    return clause;
}

QString withNames(QString clause, const QStringList &people)
{
    for (int at = 0; at < people.size(); ++at) {
        clause.replace(placeholder(at), people.at(at));
    }
    return clause;
}

/// 李娜没空: a reason to call somebody else, or to meet at another time.
bool isBusy(const QString &clause)
{
    static const QRegularExpression busy =
        whole(QStringLiteral("%2(?:[他她又也都]|今天|临时|正好|刚好)*") + busyPattern());
    return matches(clause, busy);
}

/// 别叫李娜, 李娜不来了.
bool excludes(const QString &clause)
{
    static const QRegularExpression before = whole(leavingOutPattern() + QLatin1String("%2"));
    static const QRegularExpression behind =
        whole(QStringLiteral("把?%2(?:[他她就先也又说都]|今天|临时|这次)*") + leftOutPattern());
    return matches(clause, before) || matches(clause, behind);
}

/// 换个人: everybody; 叫错了, or 不对 unless that is ambiguous: the only one.
bool excludesAll(const QString &clause, int people, bool ambiguous)
{
    static const QRegularExpression anybody =
        whole(QStringLiteral("(?:(?:两|三|几)个|全|全部)?都?换(?:个|一个|一下|掉)?(?:人|别人)?"));
    static const QRegularExpression mistaken = whole(QStringLiteral("(?:[叫喊]错|不是[他她])"));
    static const QRegularExpression mistakenSomehow = whole(QStringLiteral("(?:不|不对|不是|[说弄搞]?错)"));
    return matches(clause, anybody) ||
           (people == 1 && (matches(clause, mistaken) || (!ambiguous && matches(clause, mistakenSomehow))));
}

/// What the clauses of one answer say about people.
class Changes final
{
public:
    Changes(const QStringList &people, const ContactIndex &contacts, bool timed, bool alone)
        : m_people(people)
        , m_contacts(contacts)
        , m_timed(timed)
        , m_alone(alone)
    {
    }

    void add(const QString &clause)
    {
        if (judges(clause)) {
            return;
        }
        // 不 alone is a no, and 不对 beside a time may repair that.
        if (excludesAll(clause, m_people.size(), m_timed || m_alone)) {
            m_excluded = m_people;
        } else if (!keepsOnly(clause) && !comes(clause) && !calls(clause)) {
            m_others.append(clause);
        }
    }

    PeopleChange settle()
    {
        if (m_unclear) {
            return PeopleChange::Unclear;
        }
        const bool settled = std::any_of(m_busy.cbegin(), m_busy.cend(), [&](const QString &name) {
            return m_excluded.contains(name); // 李娜没空，就张伟
        });
        if (m_called.isEmpty() && m_timed && !settled) {
            m_others += m_busyClauses; // the reason for a time: 李娜没空，四点吧
        } else {
            m_excluded += m_busy;
        }
        m_excluded.removeDuplicates();
        if (m_excluded.isEmpty() && m_replaces) { // 换小凯吧: whom, if there are several?
            if (m_people.size() > 1) {
                return PeopleChange::Unclear;
            }
            m_excluded = m_people;
        }
        m_called += m_added;
        if (m_excluded.isEmpty()) {
            return m_added.isEmpty() ? PeopleChange::None : PeopleChange::Done;
        }
        const bool somebody = !m_called.isEmpty() || m_excluded.size() < m_people.size();
        const bool again = std::any_of(m_others.cbegin(), m_others.cend(), [&](const QString &clause) {
            return std::any_of(m_excluded.cbegin(), m_excluded.cend(),
                               [&](const QString &name) { return clause.contains(name); });
        });
        return somebody && !again ? PeopleChange::Done : PeopleChange::Unclear;
    }

    void applyTo(Outcome &outcome) const
    {
        for (const QString &name : m_excluded) {
            outcome.removeSlots(NameSlot, name);
        }
        for (const QString &name : m_called) {
            if (m_excluded.contains(name) || !m_people.contains(name)) {
                outcome.addSlot(NameSlot, name, name);
            }
        }
    }

    QString rest() const { return m_others.join(QChar(u'，')); }

private:
    /// True if @p clause says something about those of the people whom it mentions.
    bool judges(const QString &clause)
    {
        const QString marked = withPlaceholders(clause, m_people);
        QStringList mentioned;
        for (int at = 0; at < m_people.size(); ++at) {
            if (marked.contains(placeholder(at))) {
                mentioned.append(m_people.at(at));
            }
        }
        if (mentioned.isEmpty()) {
            return false;
        }
        if (exchanges(marked, mentioned)) {
            return true;
        }
        if (!hasWordOfAbsence(marked)) {
            return false;
        }
        if (excludes(marked)) {
            m_excluded += mentioned;
            return true;
        }
        if (isBusy(marked)) {
            m_busy += mentioned;
            m_busyClauses.append(clause);
            return true;
        }
        return false;
    }

    /// 把李娜换成李楠, 不是李娜是李楠, 是李楠不是李娜.
    bool exchanges(const QString &marked, const QStringList &mentioned)
    {
        static const QRegularExpression patterns[] = {
            whole(QStringLiteral("把?%2都?(?:换成|换作|换为|改成)(.+?)")),
            whole(QStringLiteral("不是%2而?是(.+?)")), whole(QStringLiteral("(?:应该是)?(.+?)不是%2"))};
        for (const QRegularExpression &pattern : patterns) {
            const QRegularExpressionMatch said = pattern.match(marked);
            const QStringList names = namesOf(withNames(said.captured(1), m_people), m_contacts);
            m_unclear = m_unclear || (&pattern == &patterns[0] && said.hasMatch() && names.isEmpty());
            if (!names.isEmpty()) {
                m_called += names;
                exclude(mentioned, names);
                return true;
            }
        }
        return false;
    }

    /// 只叫李娜: nobody else of those said before.
    bool keepsOnly(const QString &clause)
    {
        static const QRegularExpression only =
            whole(QStringLiteral("[只就光][要留]?%1?(.+?)(?:(?:一|两|三)个人?)?(?:就行|就好|就可以)?"));
        const QStringList kept = namesOf(only.match(clause).captured(1), m_contacts);
        const bool known = std::all_of(kept.cbegin(), kept.cend(),
                                       [&](const QString &name) { return m_people.contains(name); });
        if (known && !kept.isEmpty()) {
            exclude(m_people, kept);
        }
        return known && !kept.isEmpty();
    }

    /// Leaves out all of @p people but those who are @p kept.
    void exclude(const QStringList &people, const QStringList &kept)
    {
        std::copy_if(people.cbegin(), people.cend(), std::back_inserter(m_excluded),
                     [&](const QString &name) { return !kept.contains(name); });
    }

    /// 王磊也来, 小凯来. Unclear if it is not a name that comes: 她老公也来.
    bool comes(const QString &clause)
    {
        static const QRegularExpression coming =
            whole(QStringLiteral("(.+?)(也?[要会得]?(?:来|参加|一起来|一起))"));
        const QRegularExpressionMatch said = coming.match(clause);
        const QStringList names = namesOf(said.captured(1), m_contacts);
        m_added += names;
        m_unclear = m_unclear || (names.isEmpty() && said.captured(2).startsWith(QChar(u'也')));
        return !names.isEmpty();
    }

    /// Takes whom @p clause calls instead: 换小凯吧, 是李楠, 就小凯, and 小凯 behind 换人.
    bool calls(const QString &clause)
    {
        static const QString verbs =
            QStringLiteral("(换[成作为个]?[跟和]?|改[成约叫找请][跟和]?|约|叫上?|跟|请|应该是|"
                           "我说的是|是|就)");
        static const QString who = QStringLiteral("(.+?)(?:来|参加|开会?)?");
        static const QRegularExpression calling = whole(verbs + who);
        static const QRegularExpression named = whole(verbs + QLatin1Char('?') + who);
        const QRegularExpressionMatch said = (m_excluded == m_people ? named : calling).match(clause);
        const QStringList names = namesOf(said.captured(2), m_contacts);
        m_called += names;
        static const QRegularExpression instead(QStringLiteral("^[那嗯哦]*(?:[换改]|还是|要不|我说的是)"));
        m_replaces = m_replaces || (!names.isEmpty() && clause.contains(instead));
        return !names.isEmpty();
    }

    const QStringList &m_people;
    const ContactIndex &m_contacts;
    const bool m_timed;
    const bool m_alone;
    QStringList m_excluded;
    QStringList m_busy;
    QStringList m_busyClauses;
    QStringList m_called;
    QStringList m_added;
    QStringList m_others; ///< clauses about something else
    bool m_replaces = false;
    bool m_unclear = false; ///< 把李娜换成线上
};

QStringList peopleOf(const Outcome &outcome)
{
    QStringList people;
    const QVector<Slot> said = outcome.slotsNamed(NameSlot);
    for (const Slot &slot : said) {
        people.append(slot.value);
    }
    return people;
}

/// 李娜不来？, 万一李娜不来，叫张伟.
bool isUnsure(const Reading &reading)
{
    static const QRegularExpression doubts(QStringLiteral("[?？]|是不是|要不是|万一|如果|要是|的话"));
    return isConditional(reading) || reading.sentence().raw().contains(doubts);
}

} // namespace

bool tellsAbsence(const QString &text)
{
    static const QRegularExpression absent(QStringLiteral("不来|来不了|没空|不叫|不约|不请|算了"));
    return text.contains(absent);
}

PeopleChange changePeople(const Reading &reading, const ContactIndex &contacts, Outcome &outcome,
                          QString &rest)
{
    const QStringList people = peopleOf(outcome);
    // Not those of the reading, in which a repair has already taken away what it replaced.
    static const QRegularExpression signs(QStringLiteral("\\s*[,;!，。；！]\\s*"));
    constexpr int mostClauses = 4;
    QStringList clauses = reading.sentence().raw().trimmed().split(signs, Qt::SkipEmptyParts);
    if (clauses.size() < 2 || clauses.size() > mostClauses) {
        clauses = clausesOf(reading);
    }
    if (clauses.isEmpty() && !reading.has(WordClass::Punctuation)) {
        clauses.append(reading.sentence().raw().trimmed());
    }
    if (people.isEmpty() || clauses.isEmpty()) {
        return PeopleChange::None;
    }
    const bool timed = std::any_of(reading.tokens().cbegin(), reading.tokens().cend(),
                                   [](const Token &token) { return token.kind == Token::Kind::Time; });
    Changes changes(people, contacts, timed, clauses.size() == 1);
    for (const QString &clause : qAsConst(clauses)) {
        changes.add(clause);
    }
    const PeopleChange change = changes.settle();
    if (isUnsure(reading) && (change != PeopleChange::None || tellsAbsence(reading.sentence().raw()))) {
        return PeopleChange::Unclear;
    }
    if (change == PeopleChange::Done) {
        changes.applyTo(outcome);
        rest = changes.rest();
    }
    return change;
}

} // namespace understanding
