// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>

/// Every colour of the window that is not the palette's, by name. Where they are painted on a list,
/// legibleInLists() fits them to the theme.
namespace WindowTheme {

// The blue and the green mean the same as on the assistant's cards, so a conference looks alike in both. The
// programs share no code: change one with the other.
inline QColor notStarted()
{
    return {0, 129, 255};
}
inline QColor running()
{
    return {89, 190, 45};
}
/// Grey: the veil that the cards use would vanish on a dark list.
inline QColor ended()
{
    return {128, 128, 128};
}

} // namespace WindowTheme
