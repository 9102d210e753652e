// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "viewbutton.h"

namespace devhost {

/// A round button with an arrow that scrolls to the conversation's end. Opaque, since it lies over bubbles.
class EndButton final : public ViewButton
{
    Q_OBJECT

public:
    explicit EndButton(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace devhost
