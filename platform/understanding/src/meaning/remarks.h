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
        QString name;         ///< empty for whoever was named before: 她, 换孙丽
        int position = 0;     ///< in the order, where the remark was cut out
        bool all = false;     ///< 他们: all who were named before
        bool leftOut = false; ///< not to come, and not only busy
        bool maybe = false;   ///< 李娜可能来不了
    };

    /// When somebody cannot come.
    struct Engagement
    {
        TimeExpression from;
        TimeExpression to;     ///< empty but in 三点到四点
        QStringList people;    ///< who; empty for the speaker and for pronouns
        QChar bound;           ///< 前 or 后 in 三点以前, otherwise null
        bool frame = false;    ///< stands before the order and the person, so that its day may hold for both
        bool personal = false; ///< somebody else's, before the order: is its day the order's, too?
    };

    /// The sentence without the remarks; 换孙丽 became 叫孙丽, and 她 somebody whom only a remark names.
    /// Empty if there are no remarks.
    QString order;
    QVector<Person> absent;
    QVector<Engagement> engagements;

    bool isEmpty() const { return order.isEmpty(); }
};

/// Finds the remarks in @p sentence, whose characters are spelt as the rules spell them in @p text.
Remarks findRemarks(const QString &sentence, const QString &text, const ContactIndex &contacts);

} // namespace understanding
