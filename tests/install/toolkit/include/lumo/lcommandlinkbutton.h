// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPushButton>

class Q_DECL_EXPORT LCommandLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LCommandLinkButton(QWidget *parent = nullptr);
    explicit LCommandLinkButton(const QString &text, QWidget *parent = nullptr);
};
