// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QComboBox>

/// A combo box for cards in a scrolling view: the wheel changes the choice only while the box has the focus.
class LUMO_EXPORT LComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LComboBox(QWidget *parent = nullptr);
};
