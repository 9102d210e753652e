// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/answers.h"

#include "text/rulefile.h"

#include <QHash>
#include <QStringList>

namespace understanding {

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

} // namespace understanding
