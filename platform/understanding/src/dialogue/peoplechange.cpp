// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/peoplechange.h"

#include "dialogue/answerclauses.h"
#include "meaning/suspicions.h"
#include "names/namelook.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace understanding {

namespace {

constexpr char16_t Leads[] = u"^(?:[那就还是哦嗯哎啊呃先]|要不|帮我|今天|干脆)*";
constexpr char16_t Ends[] = u"[了吧啊呀的啦]*$";
constexpr char16_t Calls[] = u"(?:约|叫|跟|和|找|请|带|喊|拉|邀请)";

QRegularExpressionMatch match(const QString &clause, const QString &pattern)
{
    return QRegularExpression(QString::fromUtf16(Leads) + pattern + QString::fromUtf16(Ends)).match(clause);
}

bool matches(const QString &clause, const QString &pattern)
{
    return match(clause, pattern).hasMatch();
}

bool isName(const QString &text, const ContactIndex &contacts)
{
    static const QRegularExpression latin(QStringLiteral("^[A-Z][A-Za-z]+( [A-Z][A-Za-z]+)*$"));
    static const QString verbs = QStringLiteral("说叫讲问要给让家批订定办"); // 老板叫, 小凯说
    constexpr int titled = 2;                                                // 王总 begins 王总批
    constexpr int longest = 3;
    const bool more = text.size() > titled && isSurnameWithTitle(text.left(titled));
    if (text.isEmpty()) {
        return false;
    }
    return contacts.longestAt(text, 0) == text || isSurnameWithTitle(text) || latin.match(text).hasMatch() ||
           (!more && !isThing(text) && text.size() <= longest && !verbs.contains(text.back()) &&
            (isPersonsName(text) || looksLikeName(text)));
}

/// The names that @p text consists of; empty if it says anything else: 小凯和李楠, but not 老公逛街.
QStringList namesOf(const QString &text, const ContactIndex &contacts)
{
    static const QRegularExpression links(QStringLiteral("[和与跟及、]|还有"));
    const QStringList names = text.split(links);
    const bool only = std::all_of(names.cbegin(), names.cend(),
                                  [&](const QString &name) { return isName(name, contacts); });
    return only ? names : QStringList();
}

/// Matches one or several of @p names: 李娜和小凯.
QString patternOf(const QStringList &names)
{
    QStringList escaped;
    for (const QString &name : names) {
        escaped.append(QRegularExpression::escape(name));
    }
    return QStringLiteral("(?:%1)(?:(?:[和跟与、]|还有)(?:%1))*").arg(escaped.join(QLatin1Char('|')));
}

/// 李娜没空, for the pattern of a name: a reason to call somebody else, or to meet at another time.
bool isBusy(const QString &clause, const QString &name)
{
    return matches(clause, QStringLiteral("%1(?:[他她又也都]|今天|临时|正好|刚好)*(?:没空|没时间|有事儿?|"
                                          "请假|出差|在外地|不在|走不开|在忙|很忙)")
                               .arg(name));
}

/// True if @p clause says that whom the pattern @p name means is not to come.
bool excludes(const QString &clause, const QString &name)
{
    const QString calls = QString::fromUtf16(Calls);
    return matches(clause, QStringLiteral("(?:不是|不要|不用%2?|[不别甭]%2|去掉|删掉|换掉|除了|除去)%1")
                               .arg(name, calls)) ||
           matches(clause, QStringLiteral("把?%1(?:[他她就先也又说都]|今天|临时|这次)*"
                                          "(?:算|[不别甭]%2|不[来去要用]|不参加|不用%2|换掉?|去掉|"
                                          "(?:来|去|到|参加|赶)不[了成上])")
                               .arg(name, calls));
}

/// 换个人: everybody; 叫错了, or 不对 unless that is ambiguous: the only one.
bool excludesAll(const QString &clause, int people, bool ambiguous)
{
    static const QString anybody =
        QStringLiteral("(?:(?:两|三|几)个|全|全部)?都?换(?:个|一个|一下|掉)?(?:人|别人)?");
    static const QString mistaken = QStringLiteral("(?:[叫喊]错|不是[他她])");
    static const QString mistakenSomehow = QStringLiteral("(?:不|不对|不是|[说弄搞]?错)");
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
        QStringList mentioned;
        std::copy_if(m_people.cbegin(), m_people.cend(), std::back_inserter(mentioned),
                     [&](const QString &name) { return clause.contains(name); });
        if (!mentioned.isEmpty() && judges(clause, mentioned)) {
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
        if (m_excluded.isEmpty()) {
            return m_added.isEmpty() ? PeopleChange::None : PeopleChange::Done;
        }
        m_called += m_added;
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
        for (const QString &name : m_called.isEmpty() ? m_added : m_called) {
            if (m_excluded.contains(name) || !m_people.contains(name)) {
                outcome.addSlot(NameSlot, name, name);
            }
        }
    }

    QString rest() const { return m_others.join(QChar(u'，')); }

private:
    /// True if @p clause says something about those of the people whom it mentions.
    bool judges(const QString &clause, const QStringList &mentioned)
    {
        const QString names = patternOf(mentioned);
        if (exchanges(clause, names, mentioned)) {
            return true;
        }
        if (excludes(clause, names)) {
            m_excluded += mentioned;
            return true;
        }
        if (isBusy(clause, names)) {
            m_busy += mentioned;
            m_busyClauses.append(clause);
            return true;
        }
        return false;
    }

    /// 把李娜换成李楠, 不是李娜是李楠, 是李楠不是李娜.
    bool exchanges(const QString &clause, const QString &pattern, const QStringList &mentioned)
    {
        static const char16_t *const patterns[] = {u"把?%1都?(?:换成|换作|换为|改成)(.+?)",
                                                   u"不是%1而?是(.+?)", u"(?:应该是)?(.+?)不是%1"};
        for (const char16_t *exchange : patterns) {
            const QRegularExpressionMatch said = match(clause, QString::fromUtf16(exchange).arg(pattern));
            const QStringList names = said.hasMatch() ? namesOf(said.captured(1), m_contacts) : QStringList();
            m_unclear = m_unclear || (exchange == patterns[0] && said.hasMatch() && names.isEmpty());
            if (!names.isEmpty()) {
                m_called += names;
                std::copy_if(mentioned.cbegin(), mentioned.cend(), std::back_inserter(m_excluded),
                             [&](const QString &name) { return !names.contains(name); });
                return true;
            }
        }
        return false;
    }

    /// 只叫李娜: nobody else of those said before.
    bool keepsOnly(const QString &clause)
    {
        const QRegularExpressionMatch said =
            match(clause, QStringLiteral("[只就光][要留]?%1?(.+?)(?:(?:一|两|三)个人?)?(?:就行|就好|就可以)?")
                              .arg(QString::fromUtf16(Calls)));
        const QStringList kept = said.hasMatch() ? namesOf(said.captured(1), m_contacts) : QStringList();
        if (kept.isEmpty() || !std::all_of(kept.cbegin(), kept.cend(),
                                           [&](const QString &name) { return m_people.contains(name); })) {
            return false;
        }
        std::copy_if(m_people.cbegin(), m_people.cend(), std::back_inserter(m_excluded),
                     [&](const QString &name) { return !kept.contains(name); });
        return true;
    }

    /// 王磊也来, 小凯来. Unclear if it is not a name that comes: 她老公也来.
    bool comes(const QString &clause)
    {
        const QRegularExpressionMatch said =
            match(clause, QStringLiteral("(.+?)(也?[要会得]?(?:来|参加|一起来|一起))"));
        const QStringList names = said.hasMatch() ? namesOf(said.captured(1), m_contacts) : QStringList();
        m_added += names;
        m_unclear = m_unclear || (names.isEmpty() && said.captured(2).startsWith(QChar(u'也')));
        return !names.isEmpty();
    }

    /// Takes whom @p clause calls instead: 换小凯吧, 是李楠, 就小凯, and 小凯 behind 换人.
    bool calls(const QString &clause)
    {
        const bool anybody = m_excluded == m_people;
        const QRegularExpressionMatch said =
            match(clause, QStringLiteral("(换[成作为个]?[跟和]?|改[成约叫找请][跟和]?|约|叫上?|跟|请|应该是|"
                                         "我说的是|是|就)%1(.+?)(?:来|参加|开会?)?")
                              .arg(anybody ? QStringLiteral("?") : QString()));
        const QStringList names = said.hasMatch() ? namesOf(said.captured(2), m_contacts) : QStringList();
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
    for (const Slot &slot : outcome.slotList) {
        if (slot.name == QLatin1String(NameSlot)) {
            people.append(slot.value);
        }
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

bool isExcluded(const QString &clause, const QString &name)
{
    return clause.contains(name) && excludes(clause, QRegularExpression::escape(name));
}

PeopleChange changePeople(const Reading &reading, const ContactIndex &contacts, Outcome &outcome,
                          QString &rest)
{
    const QStringList people = peopleOf(outcome);
    QStringList clauses = clausesOf(reading);
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
    static const QRegularExpression absent(QStringLiteral("不来|来不了|没空"));
    if (isUnsure(reading) && (change != PeopleChange::None || reading.sentence().raw().contains(absent))) {
        return PeopleChange::Unclear;
    }
    if (change == PeopleChange::Done) {
        changes.applyTo(outcome);
        rest = changes.rest();
    }
    return change;
}

} // namespace understanding
