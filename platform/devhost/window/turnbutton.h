// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "viewbutton.h"

namespace devhost {

/// Three dots beside a bubble that open the menu of its turn. Not in the Tab order: the Menu key does the
/// same.
class TurnButton final : public ViewButton
{
    Q_OBJECT

public:
    explicit TurnButton(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace devhost
