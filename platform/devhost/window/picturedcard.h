// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "cardrecord.h"

#include <QWidget>

namespace devhost {

/// Shows a released card as it last looked. Disabled, because it cannot be used any more; its tool tip says
/// so.
class PicturedCard final : public QWidget
{
    Q_OBJECT

public:
    PicturedCard(const CardRecord &record, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
};

} // namespace devhost
