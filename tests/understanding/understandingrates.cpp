// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "labelledrows.h"

#include <QCoreApplication>

#include <cstdio>

/// Prints the rates of labelled files: understanding-rates [--learned|--apart|--rates] FILE...
/// --learned takes only the rows to learn from, --apart only the held-out ones, --rates all of them. The last
/// two print no failed rows, so that nobody learns from one by accident.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool learned = arguments.contains(QLatin1String("--learned"));
    const bool apart = arguments.contains(QLatin1String("--apart"));
    const bool quiet = apart || arguments.contains(QLatin1String("--rates"));
    for (const QString &fileName : arguments) {
        if (fileName.startsWith(QLatin1String("--"))) {
            continue;
        }
        Rates rates;
        const std::vector<LabelledRow> rows = readLabelledRows(fileName);
        for (std::size_t at = 0; at < rows.size(); ++at) {
            if ((learned && isKeptApart(at)) || (apart && !isKeptApart(at))) {
                continue;
            }
            rates.add(rows[at]);
        }
        std::printf("%s: %s\n", qPrintable(fileName), qPrintable(rates.toString()));
        if (!quiet) {
            for (const QString &failure : qAsConst(rates.failures)) {
                std::printf("  %s\n", failure.toUtf8().constData());
            }
        }
    }
    return 0;
}
