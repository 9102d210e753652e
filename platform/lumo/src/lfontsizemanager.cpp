// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/lfontsizemanager.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int PixelSizes[] = {38, 30, 24, 20, 17, 14, 13, 12, 11, 10};
static_assert(std::size(PixelSizes) == LFontSizeManager::T10 + 1, "one size for each class");
} // namespace

LFontSizeManager *LFontSizeManager::instance()
{
    static LFontSizeManager manager;
    return &manager;
}

QFont LFontSizeManager::get(SizeType type, const QFont &base) const
{
    QFont font = base;
    font.setPixelSize(fontPixelSize(type));
    return font;
}

int LFontSizeManager::fontPixelSize(SizeType type) const
{
    const int index = std::clamp(static_cast<int>(type), static_cast<int>(T1), static_cast<int>(T10));
    return PixelSizes[index];
}
