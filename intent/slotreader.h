// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

class CloudIntent;
class CloudSlot;

/// The names of the slots that handlers read.
namespace SlotName {
constexpr const char *Account = "account";
constexpr const char *Datetime = "datetime";
constexpr const char *Id = "id";
constexpr const char *Name = "name";
constexpr const char *Open = "open";
constexpr const char *Password = "password";
} // namespace SlotName

/// Finds slots by their "name" entry and chooses which of their texts counts.
namespace SlotReader {

/// Returns the first slot called @p slotName, or null. Points into @p intent.
const CloudSlot *first(const CloudIntent &intent, const char *slotName);

/// The normal form ("normValue") if the understanding service gives one, else the words as said ("value").
QString text(const CloudSlot &slot);

/// The words as said ("value").
QString spokenValue(const CloudSlot &slot);

/// text() of the first slot called @p slotName; @p fallback if there is none.
QString firstText(const CloudIntent &intent, const char *slotName, const QString &fallback = QString());

/// text() of every slot called @p slotName, in order, including repeated ones.
QVector<QString> allTexts(const CloudIntent &intent, const char *slotName);

} // namespace SlotReader
