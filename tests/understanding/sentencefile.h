// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

/// One labelled sentence: what is said, when and among whom, and what it means in the files' notation.
struct LabelledSentence
{
    QString sentence;
    QString meaning;
    QDateTime now;
    QStringList contacts;
    int line = 0;
};

/// The rows of @p fileName, which docs/understanding.md explains. Ends the program on a row that cannot be
/// read.
std::vector<LabelledSentence> readSentences(const QString &fileName);

/// @p semanticJson in the notation of the files: "CREATE_CONFERENCE open=开 name=张伟
/// datetime=2026-03-08T15:00", or "? " and the row of answers.tsv. Names keep their order, the other slots
/// are sorted.
QString meaningOf(const QString &semanticJson);

/// @p meaning with its slots in the order of meaningOf().
QString inOrder(const QString &meaning);
