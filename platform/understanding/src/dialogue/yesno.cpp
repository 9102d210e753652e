// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/yesno.h"

#include "text/rulefile.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace understanding {

YesNo readYesNo(const Sentence &sentence)
{
    static const QHash<QString, YesNo> answers = [] {
        QHash<QString, YesNo> loaded;
        const QStringList lines = ruleLines(QStringLiteral("yesno.tsv"));
        for (const QString &line : lines) {
            const YesNo meaning = line.startsWith(QLatin1String("yes\t")) ? YesNo::Yes : YesNo::No;
            const QStringList words =
                line.section(QLatin1Char('\t'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                loaded.insert(word, meaning);
            }
        }
        return loaded;
    }();
    static const QString particles = QStringLiteral("吧啊呀呢哦啦哈嘞呗会议");
    QString text;
    std::copy_if(sentence.text().cbegin(), sentence.text().cend(), std::back_inserter(text),
                 [](QChar character) { return character.isLetterOrNumber(); });
    while (!text.isEmpty()) {
        const auto answer = answers.constFind(text);
        if (answer != answers.cend()) {
            return *answer;
        }
        if (!particles.contains(text.at(text.size() - 1))) {
            break;
        }
        text.chop(1);
    }
    return YesNo::Unclear;
}

} // namespace understanding
