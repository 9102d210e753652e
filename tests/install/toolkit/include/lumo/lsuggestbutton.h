// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPushButton>

class Q_DECL_EXPORT LSuggestButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LSuggestButton(QWidget *parent = nullptr);
    explicit LSuggestButton(const QString &text, QWidget *parent = nullptr);
};
