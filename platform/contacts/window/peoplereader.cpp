// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplereader.h"

#include "book/contactsbook.h"
#include "window/persontexts.h"

#include <QElapsedTimer>

namespace {

constexpr int SmallestChunk = 100;
constexpr int LargestChunk = 200;
/// A quarter of what a frame takes at 60 a second; putting them in order takes about as long again.
constexpr qint64 MostMsecs = 4;

} // namespace

void PeopleReader::start(const QString &ownerId, const QString &text, PeopleScope scope)
{
    m_ownerId = ownerId;
    m_text = text.trimmed();
    m_scope = scope;
    m_readUntil.clear();
    m_hasMore = !ownerId.isEmpty();
}

QVector<Person> PeopleReader::read(int wanted)
{
    QElapsedTimer clock;
    clock.start();
    QVector<Person> found;
    while (m_hasMore && found.size() < wanted) {
        const int chunk = qBound(SmallestChunk, wanted - found.size(), LargestChunk);
        const QVector<Person> people = m_book.people().knownAfter(m_ownerId, m_readUntil, chunk);
        m_hasMore = people.size() == chunk;
        for (const Person &person : people) {
            m_readUntil = person.account;
            if (isWanted(person)) {
                found.append(person);
            }
        }
        if (clock.hasExpired(MostMsecs)) {
            break;
        }
    }
    return found;
}

bool PeopleReader::isWanted(const Person &person) const
{
    switch (m_scope) {
    case PeopleScope::Friends:
        if (person.friendship != Friendship::Friend) {
            return false;
        }
        break;
    case PeopleScope::Asked:
        if (person.friendship != Friendship::Requested) {
            return false;
        }
        break;
    case PeopleScope::Everybody:
        break;
    }
    return isFoundBy(person, m_text);
}
