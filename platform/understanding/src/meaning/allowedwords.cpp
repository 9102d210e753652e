// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "meaning/allowedwords.h"

#include "text/rulefile.h"
#include "words/lexicon.h"

#include <QHash>
#include <QStringList>

namespace understanding {

namespace {

WordClasses classesNamed(const QString &names)
{
    WordClasses classes;
    const QStringList all = names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (QString name : all) {
        if (name == QLatin1String("-")) {
            continue;
        }
        const WordClass wordClass = wordClassNamed(name.replace(QLatin1Char('-'), QLatin1Char(' ')));
        if (wordClass == WordClass::Count) {
            qFatal("gate.tsv: there is no section called %s.", qPrintable(name));
        }
        classes.add(wordClass);
    }
    return classes;
}

} // namespace

const AllowedWords &allowedWordsFor(const QString &intent)
{
    static const QHash<QString, AllowedWords> rows = [] {
        QHash<QString, AllowedWords> loaded;
        AllowedWords everywhere;
        const QStringList lines = ruleLines(QStringLiteral("gate.tsv"));
        for (const QString &line : lines) {
            const QStringList fields = line.split(QLatin1Char('\t'));
            AllowedWords row{classesNamed(fields.at(1)), classesNamed(fields.at(2)), fields.at(3)};
            row.beside.add(row.anchors | everywhere.beside);
            row.light += everywhere.light;
            if (fields.at(0) == QLatin1String("*")) {
                everywhere = row;
            }
            loaded.insert(fields.at(0), row);
        }
        return loaded;
    }();
    static const AllowedWords none;
    const auto row = rows.constFind(intent);
    return row == rows.cend() ? none : *row;
}

} // namespace understanding
