// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QComboBox>

class Q_DECL_EXPORT LComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LComboBox(QWidget *parent = nullptr);
};
