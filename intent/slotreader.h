// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QVector>

class CloudIntent;
class CloudSlot;

/// The slots that the handlers read.
namespace SlotName {
constexpr const char *Account = "account";
constexpr const char *Datetime = "datetime";
constexpr const char *Id = "id";
constexpr const char *Name = "name";
constexpr const char *Open = "open";
constexpr const char *Password = "password";
} // namespace SlotName

/// How handlers read slots: a slot is found by its "name" entry, and its text is chosen in one place.
namespace SlotReader {

/// The first slot called @p slotName, or null. Valid as long as @p intent is.
const CloudSlot *first(const CloudIntent &intent, const char *slotName);

/// What was said, in the understanding service's normal form where it gives one ("normValue"), else as it was
/// said ("value").
QString text(const CloudSlot &slot);

/// What was said, as it was said.
QString spokenValue(const CloudSlot &slot);

/// text() of the first slot called @p slotName; @p fallback when there is none.
QString firstText(const CloudIntent &intent, const char *slotName, const QString &fallback = QString());

/// text() of every slot called @p slotName, in their order, repeated ones too.
QVector<QString> allTexts(const CloudIntent &intent, const char *slotName);

} // namespace SlotReader
