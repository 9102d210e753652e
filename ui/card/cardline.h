// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPushButton>

/// A separator; implemented as an inert button because callers expect one.
class CardLine final : public QPushButton
{
    Q_OBJECT

public:
    explicit CardLine(QWidget *parent);
};
