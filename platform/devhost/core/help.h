// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

namespace devhost {

/// What can be said to the assistant.
namespace help {

/// Whether a sentence asks for help, such as "你会什么".
bool isAskedFor(const QString &sentence);

struct Topic
{
    QString title;
    QStringList examples;
};

/// One topic per request, with people from @p names where there are any.
QVector<Topic> topics(const QStringList &names);

/// All topics as one text.
QString text(const QStringList &names);

} // namespace help

} // namespace devhost
