// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace devhost {

/**
 * @p text as the host shows it: without control characters and without the invisible and bidirectional ones
 * that let a name hide or read backwards. Line breaks and joiners stay, tabs become spaces. Texts longer than
 * any reply are cut off with an ellipsis.
 */
QString cleanText(const QString &text);

} // namespace devhost
