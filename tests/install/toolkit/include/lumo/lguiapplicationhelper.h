// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

class Q_DECL_EXPORT LGuiApplicationHelper : public QObject
{
    Q_OBJECT

public:
    static LGuiApplicationHelper *instance();

    /// 1 is light.
    int themeType() const;
};
