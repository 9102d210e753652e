// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLabel>

class Q_DECL_EXPORT LLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LLabel(QWidget *parent = nullptr);
    explicit LLabel(const QString &text, QWidget *parent = nullptr);
};
