// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSpinBox>

class Q_DECL_EXPORT LSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit LSpinBox(QWidget *parent = nullptr);

    void setEnabledEmbedStyle(bool enabled);
};
