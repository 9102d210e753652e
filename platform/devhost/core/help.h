// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>

namespace devhost {

/// What can be said to the assistant.
namespace help {

/// Whether a sentence asks for it, such as "你会什么".
bool isAskedFor(const QString &sentence);

struct Topic
{
    QString title;
    QStringList examples;
};

/// One topic per request, with people of @p names as far as there are any.
QVector<Topic> topics(const QStringList &names);

/// The topics in one text.
QString text(const QStringList &names);

} // namespace help

} // namespace devhost
