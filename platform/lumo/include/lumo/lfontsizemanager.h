// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QFont>

/// The size classes of the desktop's texts, from the largest (T1) to the smallest (T10). Thread-safe once
/// there is an application.
class LUMO_EXPORT LFontSizeManager
{
public:
    enum SizeType : int { T1 = 0, T2, T3, T4, T5, T6, T7, T8, T9, T10 };

    static LFontSizeManager *instance();

    /// @p base with the size of the class; everything else is kept.
    QFont get(SizeType type, const QFont &base = QFont()) const;
    /// In device independent pixels. Values outside T1 to T10 are clamped.
    int fontPixelSize(SizeType type) const;

private:
    LFontSizeManager() = default;
    Q_DISABLE_COPY(LFontSizeManager)
};
