// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QLabel>

/// The desktop's label. As with any QLabel, set Qt::PlainText for texts from outside the program.
class LUMO_EXPORT LLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LLabel(QWidget *parent = nullptr);
    explicit LLabel(const QString &text, QWidget *parent = nullptr);
};
