// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sourcerecords.h"

#include <QTest>

void compareRecords(const LogCapture &log, const char *file, const QVector<SourceRecord> &expected)
{
    QStringList actual;
    const auto all = log.records();
    for (const LogRecord &record : all) {
        if (record.file == file) {
            QCOMPARE(record.category, QByteArray("default"));
            QVERIFY(record.line > 0);
            actual.append(LogCapture::levelName(record.level) + QStringLiteral(": ") + record.text +
                          QStringLiteral(" | ") +
                          QString::fromUtf8(LogCapture::signatureOf(record.function)));
        }
    }
    QStringList wanted;
    for (const SourceRecord &record : expected) {
        wanted.append(LogCapture::levelName(record.level) + QStringLiteral(": ") + record.text +
                      QStringLiteral(" | ") + record.function);
    }
    QCOMPARE(actual.join(QLatin1Char('\n')), wanted.join(QLatin1Char('\n')));
}
