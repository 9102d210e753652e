// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "launchermatcher.h"

#include "actline.h"

#include <QCryptographicHash>
#include <QUuid>

#include <algorithm>

namespace devhost {

namespace {

constexpr int MostRecent = 64;

auto withId(const QVector<LauncherAct> &acts, const QString &id)
{
    return std::find_if(acts.begin(), acts.end(), [&id](const LauncherAct &act) { return act.id == id; });
}

} // namespace

LauncherMatcher::LauncherMatcher() : m_salt(QUuid::createUuid().toByteArray())
{
    // The first sentence loads the rules.
    understand(QStringLiteral("明天下午三点开会"), QDateTime::currentDateTime());
}

void LauncherMatcher::setContactNames(const QStringList &names)
{
    m_names.clear();
    for (const QString &name : names) {
        m_names.insert(name.trimmed());
    }
    m_dialogue.setContactNames(names);
}

QString LauncherMatcher::understand(const QString &text, const QDateTime &now)
{
    const QString semantic = m_dialogue.turn(text, now);
    // The next input does not answer its questions.
    m_dialogue.turn(QStringLiteral("算了"), now);
    return semantic;
}

LauncherAct LauncherMatcher::match(const QString &text, const QDateTime &now)
{
    const QString sentence = text.trimmed();
    if (sentence.isEmpty() || sentence.size() > LongestText) {
        return {};
    }
    const QString semantic = understand(sentence, now);
    LauncherAct act;
    act.line = actLine(semantic, now.date(), m_names);
    if (act.line.isEmpty()) {
        return {};
    }
    act.sentence = sentence;
    act.when = now;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(m_salt);
    hash.addData(semantic.toUtf8());
    act.id = QString::fromLatin1(hash.result().toHex());

    const auto former = withId(m_recent, act.id);
    if (former != m_recent.cend()) {
        m_recent.removeAt(int(former - m_recent.cbegin()));
    } else if (m_recent.size() >= MostRecent) {
        m_recent.removeFirst();
    }
    m_recent.append(act);
    return act;
}

LauncherAct LauncherMatcher::find(const QString &id) const
{
    const auto act = withId(m_recent, id);
    return act == m_recent.end() ? LauncherAct() : *act;
}

LauncherAct LauncherMatcher::take(const QString &id)
{
    const LauncherAct act = find(id);
    if (act.isEmpty()) {
        return act;
    }
    const bool isTheSame = match(act.sentence, act.when).id == id;
    const auto place = withId(m_recent, id);
    if (place != m_recent.cend()) {
        m_recent.removeAt(int(place - m_recent.cbegin()));
    }
    return isTheSame ? act : LauncherAct();
}

} // namespace devhost
