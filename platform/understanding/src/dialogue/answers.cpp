// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answers.h"

#include "text/rulefile.h"

#include <QDateTime>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

namespace understanding {

namespace {

QString people(const Outcome &outcome)
{
    QStringList names;
    const QVector<Slot> said = outcome.slotsNamed(NameSlot);
    for (const Slot &slot : said) {
        names.append(slot.normValue);
    }
    constexpr int mostShown = 5;
    const QString shown = names.mid(0, mostShown).join(QChar(u'、'));
    return names.size() <= mostShown ? shown
                                     : QStringLiteral("%1等%2人").arg(shown, QString::number(names.size()));
}

/// 11月23日 15:00 from {"suggestDatetime":"2026-11-23T15:00:00"}.
QString timeOf(const Outcome &outcome, const QDate &today)
{
    const QString said = QJsonDocument::fromJson(outcome.slotsNamed(DatetimeSlot).value(0).normValue.toUtf8())
                             .object()
                             .value(QLatin1String("suggestDatetime"))
                             .toString();
    const QDateTime start = QDateTime::fromString(said, Qt::ISODate);
    const QString day =
        start.date().year() == today.year() ? QStringLiteral("M月d日") : QStringLiteral("yyyy年M月d日");
    return start.toString(said.contains(QLatin1Char('T')) ? day + QStringLiteral(" HH:mm") : day);
}

/// What the question of @p outcome is about.
QString subjectOf(const Outcome &outcome, const QDate &today)
{
    const QString whom = people(outcome);
    if (outcome.intent == QLatin1String(CreateConference)) {
        const QString with = whom.isEmpty() ? QString() : QChar(u'与') + whom;
        if (outcome.hasSlot(DatetimeSlot)) {
            return timeOf(outcome, today) + QLatin1Char(' ') + with;
        }
        return with.isEmpty() ? QString() : with + QChar(u'的');
    }
    if (outcome.intent == QLatin1String(EnterConferenceById)) {
        return outcome.slotsNamed(IdSlot).value(0).normValue;
    }
    if (outcome.intent == QLatin1String(AddBuddy)) {
        return outcome.slotsNamed(AccountSlot).value(0).normValue;
    }
    return whom;
}

} // namespace

QString answerText(const QString &name, int tryNumber)
{
    static const QHash<QString, QStringList> answers = [] {
        QHash<QString, QStringList> loaded;
        const QStringList lines = ruleLines(QStringLiteral("answers.tsv"));
        for (const QString &line : lines) {
            QStringList fields = line.split(QLatin1Char('\t'));
            const QString key = fields.takeFirst();
            loaded.insert(key, fields);
        }
        return loaded;
    }();
    const QStringList texts = answers.value(name);
    Q_ASSERT_X(!texts.isEmpty(), "answerText", qPrintable(name));
    return texts.value(qBound(1, tryNumber, texts.size()) - 1);
}

QString answerText(const Outcome &outcome, const QDate &today, int tryNumber)
{
    const QString text = answerText(outcome.answer, tryNumber);
    return text.contains(QLatin1String("%1")) ? text.arg(subjectOf(outcome, today)) : text;
}

} // namespace understanding
