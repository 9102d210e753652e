// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "labelledrows.h"

#include <understanding/dialogue.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr struct
{
    const char *label;
    const char *intent;
} IntentLabels[] = {
    {"create_conference", "CREATE_CONFERENCE"},
    {"invite_to_conference", "INVITE_CONFERENCE"},
    {"join_by_number", "ENETR_ID_CONFERENCE"},
    {"join_my_conference", "ENTER_MY_CONFERENCE"},
    {"query_conferences", "QUERY_CONFERENCE"},
    {"leave_conference", "CLOSE_CONFERENCE"},
    {"add_friend", "ADD_BUDDY"},
};

QJsonArray names(const QJsonArray &slotArray)
{
    QJsonArray found;
    for (const QJsonValue &value : slotArray) {
        const QJsonObject slot = value.toObject();
        if (slot.value(QStringLiteral("name")).toString() == QLatin1String("name")) {
            found.append(slot.value(QStringLiteral("normValue")));
        }
    }
    return found;
}

/// Returns the slot's meaning; null if it was not said.
QJsonValue slotNamed(const QString &name, const QJsonArray &slotArray)
{
    for (const QJsonValue &value : slotArray) {
        const QJsonObject slot = value.toObject();
        if (slot.value(QStringLiteral("name")).toString() == name) {
            return slot.value(QStringLiteral("normValue"));
        }
    }
    return QJsonValue::Null;
}

/// Returns what was understood, in the labels' vocabulary.
QJsonObject outcomeOf(const QString &semanticJson)
{
    const QJsonObject result =
        QJsonDocument::fromJson(semanticJson.toUtf8()).object().value(QStringLiteral("intent")).toObject();
    if (!result.value(QStringLiteral("shouldEndSession")).toBool()) {
        return {{QStringLiteral("do"), QStringLiteral("ask")},
                {QStringLiteral("text"),
                 result.value(QStringLiteral("answer")).toObject().value(QStringLiteral("text"))}};
    }
    const QJsonObject semantic = result.value(QStringLiteral("semantic")).toArray().at(0).toObject();
    const QString intent = semantic.value(QStringLiteral("intent")).toString();
    const QJsonArray slotArray = semantic.value(QStringLiteral("slots")).toArray();
    QString label = intent;
    for (const auto &row : IntentLabels) {
        if (intent == QLatin1String(row.intent)) {
            label = QLatin1String(row.label);
        }
    }
    const QJsonObject time =
        QJsonDocument::fromJson(slotNamed(QStringLiteral("datetime"), slotArray).toString().toUtf8())
            .object();
    const QJsonValue start =
        time.isEmpty() ? QJsonValue(QJsonValue::Null) : time.value(QStringLiteral("suggestDatetime"));
    constexpr int dayOnly = 10; // yyyy-MM-dd
    return {{QStringLiteral("do"), QStringLiteral("act")},
            {QStringLiteral("intent"), label},
            {QStringLiteral("names"), names(slotArray)},
            {QStringLiteral("start"), start},
            {QStringLiteral("date"), start.isNull() ? start : QJsonValue(start.toString().left(dayOnly))},
            {QStringLiteral("conference_id"), slotNamed(QStringLiteral("id"), slotArray)},
            {QStringLiteral("password"), slotNamed(QStringLiteral("password"), slotArray)},
            {QStringLiteral("account"), slotNamed(QStringLiteral("account"), slotArray)}};
}

bool acts(const QJsonObject &outcome)
{
    return outcome.value(QStringLiteral("do")).toString() == QLatin1String("act");
}

/// Returns @p value with names sorted, so that their order doesn't count.
QJsonValue comparable(const QString &key, const QJsonValue &value)
{
    if (key != QLatin1String("names")) {
        return value;
    }
    QStringList sorted = value.toVariant().toStringList();
    sorted.sort();
    return QJsonArray::fromStringList(sorted);
}

bool isAccepted(const QJsonObject &found, const QJsonObject &accepted)
{
    if (!acts(accepted)) {
        return !acts(found);
    }
    const QStringList keys = accepted.keys();
    return std::all_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
        return comparable(key, found.value(key)) == comparable(key, accepted.value(key));
    });
}

bool isNeverActing(const QJsonArray &accept)
{
    return std::none_of(accept.begin(), accept.end(),
                        [](const QJsonValue &outcome) { return acts(outcome.toObject()); });
}

LabelledTurn readTurn(const QJsonObject &object, const QString &textKey)
{
    LabelledTurn turn;
    turn.say = object.value(textKey).toString();
    turn.accept = object.value(QStringLiteral("accept")).toArray();
    turn.reply = object.value(QStringLiteral("reply")).toInt();
    return turn;
}

} // namespace

bool LabelledRow::isNegative() const
{
    return !isDialogue && isNeverActing(turns.front().accept);
}

std::vector<LabelledRow> readLabelledRows(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(fileName));
    }
    std::vector<LabelledRow> rows;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        if (line.isEmpty()) {
            continue;
        }
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        LabelledRow row;
        row.id = object.value(QStringLiteral("id")).toInt();
        row.isDialogue = object.value(QStringLiteral("kind")).toString() == QLatin1String("dialogue");
        row.title = object.value(row.isDialogue ? QStringLiteral("name") : QStringLiteral("text")).toString();
        row.now = QDateTime::fromString(object.value(QStringLiteral("now")).toString(), Qt::ISODate);
        row.contacts = object.value(QStringLiteral("contacts")).toVariant().toStringList();
        if (row.isDialogue) {
            const QJsonArray turns = object.value(QStringLiteral("turns")).toArray();
            for (const QJsonValue &turn : turns) {
                row.turns.push_back(readTurn(turn.toObject(), QStringLiteral("say")));
            }
        } else {
            row.turns.push_back(readTurn(object, QStringLiteral("text")));
        }
        if (!row.now.isValid() || row.turns.empty() || row.title.isEmpty()) {
            qFatal("%s: not a labelled row: %s", qPrintable(fileName), line.constData());
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

RowResult runRow(const LabelledRow &row)
{
    understanding::Dialogue dialogue(row.contacts);
    RowResult result;
    for (const LabelledTurn &turn : row.turns) {
        if (turn.reply != 0) {
            dialogue.noteReply(turn.reply, QString());
            result.found += QStringLiteral("(reply %1) ").arg(turn.reply);
            continue;
        }
        const QJsonObject found = outcomeOf(dialogue.turn(turn.say, row.now));
        result.found += turn.say + QStringLiteral(" -> ") +
                        QString::fromUtf8(QJsonDocument(found).toJson(QJsonDocument::Compact)) +
                        QLatin1Char(' ');
        result.right = std::any_of(turn.accept.begin(), turn.accept.end(), [&](const QJsonValue &accepted) {
            return isAccepted(found, accepted.toObject());
        });
        result.acted = acts(found) && isNeverActing(turn.accept);
        if (!result.right) {
            return result;
        }
    }
    return result;
}

void Rates::add(const LabelledRow &row)
{
    const RowResult result = runRow(row);
    ++(row.isDialogue ? dialogues : sentences);
    if (result.right) {
        ++(row.isDialogue ? dialoguesRight : sentencesRight);
    } else {
        failures.append(QStringLiteral("%1 %2: %3").arg(row.id).arg(row.title, result.found));
    }
    if (row.isNegative()) {
        ++negatives;
        negativesActedOn += result.acted ? 1 : 0;
    }
}

QString Rates::toString() const
{
    return QStringLiteral("sentences right %1 of %2, dialogues right %3 of %4, negatives acted on %5 of %6")
        .arg(sentencesRight)
        .arg(sentences)
        .arg(dialoguesRight)
        .arg(dialogues)
        .arg(negativesActedOn)
        .arg(negatives);
}
