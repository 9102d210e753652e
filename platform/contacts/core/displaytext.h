// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

/**
 * A name or title as other people may see it: without control characters and without the invisible and
 * bidirectional ones that let a name hide or read backwards, white space run together, at most 100
 * characters. Joiners stay: scripts need them.
 */
QString cleanDisplayText(const QString &text);

/// Names one after the other, as the user's language separates them.
QString listOfNames(const QStringList &names);
