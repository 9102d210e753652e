// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lcommandlinkbutton.h>

/// The link below a list of conferences that leads to all of them. Its colour is the same in both themes; the
/// dark one puts a chip behind it.
class CardFooter final : public LCommandLinkButton
{
    Q_OBJECT

public:
    /// @p count is the number of conferences found.
    CardFooter(int count, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
