// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/peoplechange.h"

#include "dialogue/answerclauses.h"
#include "dialogue/answerreader.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace understanding {

namespace {

constexpr char16_t Leads[] = u"^(?:[那就还是哦嗯哎啊呃都也]|帮我|今天|干脆)*";
constexpr char16_t Ends[] = u"[了吧啊呀的啦]*$";
constexpr char16_t Calls[] = u"(?:约|叫|跟|和|找|请|带|喊|拉|邀请)";

bool matches(const QString &clause, const QString &pattern)
{
    return QRegularExpression(QString::fromUtf16(Leads) + pattern + QString::fromUtf16(Ends))
        .match(clause)
        .hasMatch();
}

/// 李娜没空: a reason to call somebody else, or only to meet at another time.
bool isBusy(const QString &clause, const QString &name)
{
    return matches(
        clause,
        QStringLiteral("%1(?:[他她又也]|今天|临时|正好|刚好)*(?:没空|没时间|有事儿?|请假|出差|在外地|不在|"
                       "走不开|在忙|很忙)")
            .arg(QRegularExpression::escape(name)));
}

/// 换个人: everybody; 不对, 叫错了: the only one.
bool sparesAll(const QString &clause, int people)
{
    static const QString anybody = QStringLiteral("换(?:个|一个|一下)?(?:人|别人)?");
    static const QString mistaken = QStringLiteral("(?:不|不对|不是|(?:叫|说|弄|搞|喊)?错|不是[他她])");
    return matches(clause, anybody) || (people == 1 && matches(clause, mistaken));
}

/// Whom @p clause calls instead: 换小凯吧, 是李楠, 就小凯.
std::vector<FoundName> calledInstead(const QString &clause, const ContactIndex &contacts)
{
    static const QRegularExpression calling(
        QString::fromUtf16(Leads) +
        QStringLiteral("(?:应该是|是|就|[换改]?%1上?|[换改][成作为]?)").arg(QString::fromUtf16(Calls)));
    const QRegularExpressionMatch match = calling.match(clause);
    if (!match.hasMatch()) {
        return {};
    }
    const Reading called(clause.mid(match.capturedEnd()), contacts);
    return called.timeSaid().isEmpty() ? answeredNames(called) : std::vector<FoundName>();
}

/// What the clauses of one sentence say about people.
struct Changes
{
    QStringList spared;
    QStringList busy;
    QStringList busyClauses;
    std::vector<FoundName> called;
    QStringList others; ///< clauses about something else
    bool replaces = false;

    void add(const QString &clause, const QStringList &people, const ContactIndex &contacts)
    {
        const int before = spared.size() + busy.size();
        for (const QString &name : people) {
            if (isSpared(clause, name)) {
                spared.append(name);
            } else if (isBusy(clause, name)) {
                busy.append(name);
                busyClauses.append(clause);
            }
        }
        if (spared.size() + busy.size() > before) {
            return;
        }
        if (sparesAll(clause, people.size())) {
            spared = people;
            return;
        }
        // 换人，小凯
        const std::vector<FoundName> instead =
            spared == people ? answeredNames(Reading(clause, contacts)) : calledInstead(clause, contacts);
        if (instead.empty()) {
            others.append(clause);
        }
        replaces =
            replaces || (!instead.empty() && clause.contains(QRegularExpression(QStringLiteral("[换改]"))));
        called.insert(called.end(), instead.cbegin(), instead.cend());
    }

    /// Decides who is spared; returns false if nobody is, or if nobody would be left.
    bool settle(const QStringList &people)
    {
        if (called.empty()) { // 李娜没空 alone is a reason
            others += busyClauses;
            return !spared.isEmpty() && spared.size() < people.size();
        }
        spared += busy;
        if (spared.isEmpty() && replaces && people.size() == 1) { // 换小凯吧
            spared = people;
        }
        return !spared.isEmpty();
    }
};

/// 不是李娜是李楠, 是李楠不是李娜 and 把李娜换成李楠 as two clauses.
QString apart(QString sentence, const QString &name)
{
    const QString escaped = QRegularExpression::escape(name);
    const auto replace = [&](const char16_t *pattern, const char16_t *parted) {
        sentence.replace(QRegularExpression(QString::fromUtf16(pattern).arg(escaped)),
                         QString::fromUtf16(parted).arg(name));
    };
    replace(u"不是%1是", u"不是%1，是");
    replace(u"把?%1(?:换成|换作|换为|改成)", u"不要%1，是");
    replace(u"(?<=[^，,不 ])不是%1", u"，不是%1");
    return sentence;
}

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

void removePeople(Outcome &outcome, const QStringList &people)
{
    outcome.slotList.erase(std::remove_if(outcome.slotList.begin(), outcome.slotList.end(),
                                          [&](const Slot &slot) {
                                              return slot.name == QLatin1String(NameSlot) &&
                                                     people.contains(slot.value);
                                          }),
                           outcome.slotList.end());
}

} // namespace

bool isSpared(const QString &clause, const QString &name)
{
    static const QString calls = QString::fromUtf16(Calls);
    const QString escaped = QRegularExpression::escape(name);
    return matches(clause, QStringLiteral("(?:不是|不要|不用%2?|[不别甭]%2|去掉|删掉|换掉|除了|除去)%1")
                               .arg(escaped, calls)) ||
           matches(clause,
                   QStringLiteral(
                       "%1(?:[他她就先也又说]|今天|临时|这次)*(?:算|[不别甭]%2|不[来去要用]|不参加|不用%2|"
                       "(?:来|去|到|参加|赶)不[了成上])")
                       .arg(escaped, calls));
}

bool changePeople(const Reading &reading, const ContactIndex &contacts, Outcome &outcome, QString &rest)
{
    const QStringList people = peopleOf(outcome);
    if (people.isEmpty()) {
        return false;
    }
    QString sentence = reading.sentence().raw();
    for (const QString &name : people) {
        sentence = apart(sentence, name);
    }
    const Reading parted(sentence, contacts);
    QStringList clauses = clausesOf(parted);
    if (clauses.isEmpty()) {
        clauses.append(sentence.trimmed());
    }
    Changes changes;
    for (const QString &clause : qAsConst(clauses)) {
        changes.add(clause, people, contacts);
    }
    if (!changes.settle(people)) {
        return false;
    }
    removePeople(outcome, changes.spared);
    for (const FoundName &name : changes.called) {
        outcome.addSlot(NameSlot, name.said, name.name);
    }
    rest = changes.others.join(QChar(u'，'));
    return true;
}

} // namespace understanding
