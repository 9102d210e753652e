// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QBoxLayout>

/// The measures shared by the card and its items, in device independent pixels.
namespace CardMeasures {

constexpr int Margin = 10;
constexpr int Spacing = 10;
constexpr int CornerRadius = 8;
constexpr int LineThickness = 1; ///< of separators and dividers

// A row with a caption in front.
constexpr int CaptionWidth = 60;
constexpr int CaptionMinimumHeight = 20;
constexpr int SpaceAfterCaption = 10;

/// Gives @p layout the margins, the spacing and the alignment of a card.
inline void apply(QBoxLayout &layout)
{
    layout.setContentsMargins(Margin, Margin, Margin, Margin);
    layout.setSpacing(Spacing);
    layout.setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

} // namespace CardMeasures
