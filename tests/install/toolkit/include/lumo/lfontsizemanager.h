// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFont>

class Q_DECL_EXPORT LFontSizeManager
{
public:
    enum SizeType : int { T6 = 5, T7 = 6, T8 = 7 };

    static LFontSizeManager *instance();

    QFont get(SizeType type, const QFont &base) const;
};
