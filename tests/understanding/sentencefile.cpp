// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sentencefile.h"

#include "text/rulefile.h"

#include <QFile>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

QString answerName(const QString &text)
{
    const QStringList lines = understanding::ruleLines(QStringLiteral("answers.tsv"));
    for (const QString &line : lines) {
        const QStringList fields = line.split(QLatin1Char('\t'));
        const bool said = std::any_of(fields.cbegin() + 1, fields.cend(), [&](const QString &field) {
            const QStringList around = field.split(QLatin1String("%1")); // whom and what it is about
            return around.size() == 1 ? text == field
                                      : text.startsWith(around.first()) && text.endsWith(around.last());
        });
        if (said) {
            return fields.at(0);
        }
    }
    return QStringLiteral("no such answer: ") + text;
}

QString slotValue(const QJsonObject &slot)
{
    const QString text = slot.value(QStringLiteral("normValue")).toString();
    if (slot.value(QStringLiteral("name")).toString() != QLatin1String("datetime")) {
        return text;
    }
    const QJsonObject time = QJsonDocument::fromJson(text.toUtf8()).object();
    constexpr int toTheMinute = 16; // yyyy-MM-ddThh:mm
    return time.value(QStringLiteral("suggestDatetime")).toString().left(toTheMinute);
}

} // namespace

std::vector<LabelledSentence> readSentences(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("cannot read %s", qPrintable(fileName));
    }
    std::vector<LabelledSentence> sentences;
    LabelledSentence current;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        ++current.line;
        if (line.startsWith(QLatin1String("@now "))) {
            current.now = QDateTime::fromString(line.mid(5), Qt::ISODate);
        } else if (line.startsWith(QLatin1String("@contacts"))) {
            current.contacts = line.mid(9).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        } else if (!line.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            const QStringList fields = line.split(QLatin1Char('\t'));
            if (fields.size() != 2 || !current.now.isValid()) {
                qFatal("%s:%d: expected a sentence, a tab and a meaning", qPrintable(fileName), current.line);
            }
            current.sentence = fields.at(0);
            current.meaning = inOrder(fields.at(1));
            sentences.push_back(current);
        }
    }
    return sentences;
}

QString meaningOf(const QString &semanticJson)
{
    const QJsonObject result =
        QJsonDocument::fromJson(semanticJson.toUtf8()).object().value(QStringLiteral("intent")).toObject();
    if (!result.value(QStringLiteral("shouldEndSession")).toBool()) {
        return QStringLiteral("? ") + answerName(result.value(QStringLiteral("answer"))
                                                     .toObject()
                                                     .value(QStringLiteral("text"))
                                                     .toString());
    }
    const QJsonObject semantic = result.value(QStringLiteral("semantic")).toArray().at(0).toObject();
    QStringList words{semantic.value(QStringLiteral("intent")).toString()};
    const QJsonArray slotArray = semantic.value(QStringLiteral("slots")).toArray();
    for (const QJsonValue &value : slotArray) {
        const QJsonObject slot = value.toObject();
        words.append(slot.value(QStringLiteral("name")).toString() + QLatin1Char('=') + slotValue(slot));
    }
    return inOrder(words.join(QLatin1Char(' ')));
}

QString inOrder(const QString &meaning)
{
    if (meaning.startsWith(QLatin1Char('?'))) {
        return meaning;
    }
    QStringList words = meaning.split(QLatin1Char(' '));
    const auto slotName = [](const QString &word) {
        return word.section(QLatin1Char('='), 0, 0);
    };
    std::stable_sort(words.begin() + 1, words.end(),
                     [&](const QString &a, const QString &b) { return slotName(a) < slotName(b); });
    return words.join(QLatin1Char(' '));
}
