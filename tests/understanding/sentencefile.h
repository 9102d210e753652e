// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

/// One labelled sentence: what is said, when, with which contacts, and its meaning in the files' notation.
struct LabelledSentence
{
    QString sentence;
    QString meaning;
    QDateTime now;
    QStringList contacts;
    int line = 0;
};

/// Reads the rows of @p fileName; docs/understanding.md explains the format. Ends the program on a malformed
/// row.
std::vector<LabelledSentence> readSentences(const QString &fileName);

/// Returns @p semanticJson in the files' notation: "CREATE_CONFERENCE datetime=2026-03-08T15:00 name=张伟
/// open=开", or "? " and the name of a row of answers.tsv. Slots are sorted by their names, stably.
QString meaningOf(const QString &semanticJson);

/// Returns @p meaning with its slots in the order of meaningOf().
QString inOrder(const QString &meaning);
