// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "time/timeexpression.h"
#include "words/contactindex.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace understanding {

/// What a sentence says beside its order about who cannot come, and when: 李娜不来了, 三点我有事.
struct Remarks
{
    struct Person
    {
        QString name;         ///< empty for 她 and 他们
        int position = 0;     ///< in the order, of the clause that follows
        bool all = false;     ///< 他们: all who were named before
        bool leftOut = false; ///< not to come, and not only busy
    };

    QString order; ///< the sentence without the remarks; empty if there are none
    QVector<Person> absent;
    QStringList timed; ///< the times at which somebody cannot come
    QString day;       ///< the day of 明天九点没空，十点开会, which holds for the order

    bool isEmpty() const { return order.isEmpty(); }
};

/// Finds the remarks in @p sentence, whose characters are spelt as the rules spell them in @p text.
Remarks findRemarks(const QString &sentence, const QString &text, const ContactIndex &contacts);

} // namespace understanding
