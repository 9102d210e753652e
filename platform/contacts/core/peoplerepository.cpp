// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/peoplerepository.h"

#include "core/conferencerules.h"
#include "core/personrow.h"

namespace {

constexpr char PersonColumns[] = "SELECT person.user_id, account, name, kind FROM person ";
constexpr char ContactColumns[] =
    "SELECT person.user_id, person.account, name, kind, remark_name, is_friend,"
    " EXISTS (SELECT 1 FROM friend_request WHERE friend_request.owner_id = contact.owner_id"
    " AND friend_request.person_id = contact.person_id)"
    " FROM contact JOIN person ON person.user_id = contact.person_id ";

QString personQuery(const char *rest)
{
    return QLatin1String(PersonColumns) + QLatin1String(rest);
}

QString contactQuery(const char *rest)
{
    return QLatin1String(ContactColumns) + QLatin1String(rest);
}

Person readContact(const Statement &row)
{
    Person person = readPerson(row);
    person.remarkName = row.text(4);
    if (row.smallNumber(5) != 0) {
        person.friendship = Friendship::Friend;
    } else if (row.smallNumber(6) != 0) {
        person.friendship = Friendship::Requested;
    }
    return person;
}

template <typename Read>
std::optional<Person> firstOf(Statement &query, Read read)
{
    if (!query.run().next()) {
        return std::nullopt;
    }
    return read(query);
}

template <typename Read>
QVector<Person> allOf(Statement &query, Read read)
{
    QVector<Person> people;
    query.run();
    while (query.next()) {
        people.append(read(query));
    }
    return people;
}

QStringList namesIn(Statement &query)
{
    QStringList names;
    query.run();
    while (query.next()) {
        names.append(query.text(0));
    }
    return names;
}

} // namespace

std::optional<Person> PeopleRepository::byAccount(const QString &account) const
{
    Statement query(m_database, personQuery("WHERE account = ?"));
    return firstOf(query.bind(account), readPerson);
}

std::optional<Person> PeopleRepository::byUserId(const QString &userId) const
{
    Statement query(m_database, personQuery("WHERE user_id = ?"));
    return firstOf(query.bind(userId), readPerson);
}

QVector<Person> PeopleRepository::byName(const QString &name, int limit) const
{
    Statement query(m_database, personQuery("WHERE name = ? ORDER BY user_id LIMIT ?"));
    return allOf(query.bind(name).bind(limit), readPerson);
}

std::optional<Person> PeopleRepository::meantBy(const QString &said) const
{
    if (said.isEmpty()) {
        return std::nullopt;
    }
    if (std::optional<Person> person = byAccount(said)) {
        return person;
    }
    if (std::optional<Person> person = byUserId(said)) {
        return person;
    }
    const QVector<Person> namesakes = byName(said, 2);
    return namesakes.size() == 1 ? std::make_optional(namesakes.constFirst()) : std::nullopt;
}

QVector<Person> PeopleRepository::all() const
{
    Statement query(m_database, personQuery("ORDER BY account"));
    return allOf(query, readPerson);
}

QVector<Person> PeopleRepository::contactsByName(const QString &ownerId, const QString &name) const
{
    Statement query(m_database, contactsByNameSql());
    return allOf(query.bind(ownerId).bind(ownerId).bind(name).bind(ownerId).bind(name).bind(
                     ConferenceRules::MaxCandidates),
                 readContact);
}

QString PeopleRepository::contactsByNameSql()
{
    // One index each for the remark and the name, in the order fixed by CROSS JOIN. "OR" would walk every
    // contact.
    return contactQuery(
        "WHERE owner_id = ? AND person_id IN ("
        " SELECT person_id FROM contact WHERE owner_id = ? AND remark_name = ?"
        " UNION SELECT found.user_id FROM person AS found"
        " CROSS JOIN contact AS known ON known.owner_id = ? AND known.person_id = found.user_id"
        " WHERE found.name = ?)"
        " ORDER BY person.user_id LIMIT ?");
}

QVector<Person> PeopleRepository::contactsStartingWith(const QString &ownerId, const QString &text,
                                                       int limit) const
{
    // One range of an index each.
    Statement query(
        m_database,
        contactQuery("WHERE owner_id = ? AND person_id IN ("
                     " SELECT person_id FROM (SELECT person_id FROM contact"
                     "  WHERE owner_id = ? AND remark_name >= ? AND remark_name < ? LIMIT ?)"
                     " UNION SELECT person_id FROM (SELECT person_id FROM contact"
                     "  WHERE owner_id = ? AND account >= ? AND account < ? ORDER BY account LIMIT ?)"
                     " UNION SELECT user_id FROM (SELECT found.user_id FROM person AS found"
                     "  CROSS JOIN contact AS known ON known.owner_id = ? AND known.person_id = found.user_id"
                     "  WHERE found.name >= ? AND found.name < ? LIMIT ?))"
                     " ORDER BY contact.account LIMIT ?"));
    const uint last[] = {QChar::LastValidCodePoint};
    const QString end = text + QString::fromUcs4(last, 1);
    for (int piece = 0; piece < 4; ++piece) {
        query.bind(ownerId);
        if (piece > 0) {
            query.bind(text).bind(end).bind(limit);
        }
    }
    return allOf(query.bind(limit), readContact);
}

std::optional<Person> PeopleRepository::contactByUserId(const QString &ownerId, const QString &userId) const
{
    Statement query(m_database, contactQuery("WHERE owner_id = ? AND person_id = ?"));
    return firstOf(query.bind(ownerId).bind(userId), readContact);
}

QVector<Person> PeopleRepository::contacts(const QString &ownerId) const
{
    Statement query(m_database, contactQuery("WHERE owner_id = ? ORDER BY contact.account"));
    return allOf(query.bind(ownerId), readContact);
}

QVector<Person> PeopleRepository::knownAfter(const QString &ownerId, const QString &afterAccount,
                                             int limit) const
{
    // There are no more requests than a user may have friends, so a scan is cheap.
    Statement query(
        m_database,
        QStringLiteral("SELECT person.user_id, person.account, name, kind, remark_name, is_friend,"
                       " EXISTS (SELECT 1 FROM friend_request WHERE owner_id = ?"
                       "  AND friend_request.person_id = known.person_id)"
                       " FROM (SELECT * FROM (SELECT person_id, account, remark_name, is_friend"
                       "   FROM contact WHERE owner_id = ? AND account > ?"
                       "   ORDER BY account LIMIT ?)"
                       "  UNION ALL SELECT person_id, asked.account, '', 0 FROM friend_request"
                       "   CROSS JOIN person AS asked ON asked.user_id = person_id"
                       "   WHERE owner_id = ? AND asked.account > ? AND NOT EXISTS"
                       "    (SELECT 1 FROM contact WHERE contact.owner_id = friend_request.owner_id"
                       "     AND contact.person_id = friend_request.person_id)) AS known"
                       " CROSS JOIN person ON person.user_id = known.person_id"
                       " ORDER BY person.account LIMIT ?"));
    query.bind(ownerId)
        .bind(ownerId)
        .bind(afterAccount)
        .bind(limit)
        .bind(ownerId)
        .bind(afterAccount)
        .bind(limit);
    return allOf(query, readContact);
}

QVector<Person> PeopleRepository::everybodyAfter(const QString &afterAccount, int limit) const
{
    Statement query(m_database, personQuery("WHERE account > ? ORDER BY account LIMIT ?"));
    return allOf(query.bind(afterAccount).bind(limit), readPerson);
}

QStringList PeopleRepository::contactNames(const QString &ownerId, int limit) const
{
    Statement query(
        m_database,
        QStringLiteral("SELECT name FROM contact JOIN person ON person.user_id = contact.person_id"
                       " WHERE owner_id = ?"
                       " UNION SELECT remark_name FROM contact WHERE owner_id = ? AND remark_name <> ''"
                       " LIMIT ?"));
    return namesIn(query.bind(ownerId).bind(ownerId).bind(limit));
}

QStringList PeopleRepository::unmistakableContactNames(const QString &ownerId, int limit) const
{
    Statement query(
        m_database,
        QStringLiteral("SELECT name FROM contact JOIN person ON person.user_id = contact.person_id"
                       " WHERE owner_id = ? AND NOT EXISTS (SELECT 1 FROM contact AS other"
                       "  WHERE other.owner_id = contact.owner_id AND other.remark_name = person.name"
                       "  AND other.person_id <> contact.person_id)"
                       " GROUP BY name HAVING count(*) = 1 ORDER BY min(person.account) LIMIT ?"));
    return namesIn(query.bind(ownerId).bind(limit));
}

Friendship PeopleRepository::friendship(const QString &ownerId, const QString &personId) const
{
    const std::optional<Person> contact = contactByUserId(ownerId, personId);
    if (contact && contact->friendship != Friendship::None) {
        return contact->friendship;
    }
    Statement query(m_database,
                    QStringLiteral("SELECT 1 FROM friend_request WHERE owner_id = ? AND person_id = ?"));
    return query.bind(ownerId).bind(personId).run().next() ? Friendship::Requested : Friendship::None;
}

QVector<Person> PeopleRepository::requestsTo(const QString &userId, int limit) const
{
    Statement query(
        m_database,
        QStringLiteral("SELECT person.user_id, person.account, name, kind,"
                       " coalesce(remark_name, ''), coalesce(is_friend, 0), 0"
                       " FROM friend_request JOIN person ON person.user_id = friend_request.owner_id"
                       " LEFT JOIN contact ON contact.owner_id = friend_request.person_id"
                       "  AND contact.person_id = friend_request.owner_id"
                       " WHERE friend_request.person_id = ? ORDER BY person.account LIMIT ?"));
    return allOf(query.bind(userId).bind(limit), readContact);
}

int PeopleRepository::friendCount(const QString &ownerId) const
{
    Statement query(m_database,
                    QStringLiteral("SELECT (SELECT count(*) FROM contact INDEXED BY contact_friend"
                                   "  WHERE owner_id = ? AND is_friend = 1)"
                                   " + (SELECT count(*) FROM friend_request WHERE owner_id = ?)"));
    query.bind(ownerId).bind(ownerId).run().next();
    return query.smallNumber(0);
}

void PeopleRepository::addPerson(const Person &person)
{
    Statement(m_database,
              QStringLiteral("INSERT INTO person (user_id, account, name, kind) VALUES (?, ?, ?, ?)"))
        .bind(person.userId)
        .bind(person.account)
        .bind(person.name)
        .bind(static_cast<int>(person.kind))
        .run();
}

void PeopleRepository::setKind(const QString &userId, AccountKind kind)
{
    Statement(m_database, QStringLiteral("UPDATE person SET kind = ? WHERE user_id = ?"))
        .bind(static_cast<int>(kind))
        .bind(userId)
        .run();
}

void PeopleRepository::setContact(const QString &ownerId, const QString &personId, const QString &remarkName,
                                  bool isFriend)
{
    Statement(m_database,
              QStringLiteral("INSERT OR REPLACE INTO contact (owner_id, person_id, remark_name, is_friend)"
                             " VALUES (?, ?, ?, ?)"))
        .bind(ownerId)
        .bind(personId)
        .bind(remarkName)
        .bind(isFriend ? 1 : 0)
        .run();
}

void PeopleRepository::addFriendRequest(const QString &ownerId, const QString &personId)
{
    Statement(m_database,
              QStringLiteral("INSERT OR IGNORE INTO friend_request (owner_id, person_id) VALUES (?, ?)"))
        .bind(ownerId)
        .bind(personId)
        .run();
}

bool PeopleRepository::removeFriendRequest(const QString &ownerId, const QString &personId)
{
    Statement removal(m_database,
                      QStringLiteral("DELETE FROM friend_request WHERE owner_id = ? AND person_id = ?"));
    return removal.bind(ownerId).bind(personId).run().affectedRows() > 0;
}

void PeopleRepository::removeAll()
{
    Statement(m_database, QStringLiteral("DELETE FROM person")).run();
}
