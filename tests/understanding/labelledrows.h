// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <vector>

/// One turn of a labelled row: a sentence with all its accepted outcomes, or a reply of the plugin.
struct LabelledTurn
{
    QString say;
    QJsonArray accept;
    int reply = 0; ///< the plugin's code; 0 for a sentence
};

/// A row of a labelled file; docs/understanding.md explains the format. A sentence is a row of one turn.
struct LabelledRow
{
    int id = 0;
    bool isDialogue = false;
    QString title; ///< the sentence, or the dialogue's name
    QDateTime now;
    QStringList contacts;
    std::vector<LabelledTurn> turns;

    /// Returns true for a sentence on which the dialogue must not act.
    bool isNegative() const;
};

/// The outcome of running a row.
struct RowResult
{
    bool right = false;
    bool acted = false; ///< carried something out although no accepted outcome does
    QString found;      ///< what was understood, turn by turn, up to the last one that ran
};

/// Reads the rows of the JSON Lines file @p fileName. Ends the program if it cannot.
std::vector<LabelledRow> readLabelledRows(const QString &fileName);

/// Runs @p row in a new conversation, up to the first wrong turn.
RowResult runRow(const LabelledRow &row);

/// Counts how many rows were right.
struct Rates
{
    int sentences = 0, sentencesRight = 0;
    int dialogues = 0, dialoguesRight = 0;
    int negatives = 0, negativesActedOn = 0;
    QStringList failures;

    void add(const LabelledRow &row);
    QString toString() const;
};

/// Every third row of a file is held out: counted, but never used for writing rules.
constexpr bool isKeptApart(std::size_t index)
{
    return index % 3 == 2;
}
