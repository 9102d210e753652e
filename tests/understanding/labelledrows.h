// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QJsonArray>
#include <QString>
#include <QStringList>

#include <vector>

/// One turn of a labelled row: a sentence with every outcome that is right, or a reply of the plugin.
struct LabelledTurn
{
    QString say;
    QJsonArray accept;
    int reply = 0; ///< the plugin's code; 0 for a sentence
};

/// A row of a labelled file, whose format docs/understanding.md explains. A sentence is a row of one turn.
struct LabelledRow
{
    int id = 0;
    bool isDialogue = false;
    QString title; ///< the sentence, or the dialogue's name
    QDateTime now;
    QStringList contacts;
    std::vector<LabelledTurn> turns;

    /// Nothing may be carried out in any turn.
    bool isNegative() const;
};

/// What became of a row.
struct RowResult
{
    bool right = false;
    bool acted = false; ///< something was carried out where no accepted outcome carries anything out
    QString found;      ///< what was understood, turn by turn, up to the last one looked at
};

/// The rows of the JSON-lines file @p fileName. Ends the program when it cannot be read.
std::vector<LabelledRow> readLabelledRows(const QString &fileName);

/// Runs @p row in a conversation of its own, up to the first turn that is not right.
RowResult runRow(const LabelledRow &row);

/// How many of the rows were right.
struct Rates
{
    int sentences = 0, sentencesRight = 0;
    int dialogues = 0, dialoguesRight = 0;
    int negatives = 0, negativesActedOn = 0;
    QStringList failures;

    void add(const LabelledRow &row);
    QString toString() const;
};

/// Every third row of a file is kept apart: it is counted and never learned from.
constexpr bool isKeptApart(std::size_t index)
{
    return index % 3 == 2;
}
