// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "text/rulefile.h"

#include <QFile>

// The linker drops a static library's resources unless something refers to them. The macro must stand outside
// any namespace.
static void keepRules()
{
    Q_INIT_RESOURCE(rules);
}

namespace understanding {

QStringList ruleLines(const QString &name)
{
    keepRules();
    QFile file(QStringLiteral(":/understanding/rules/") + name);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The rule file %s is not compiled in.", qPrintable(name));
    }
    QStringList lines;
    const QStringList all = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : all) {
        const QString content = line.trimmed();
        if (!content.isEmpty() && !content.startsWith(QLatin1Char('#'))) {
            lines.append(content);
        }
    }
    return lines;
}

} // namespace understanding
