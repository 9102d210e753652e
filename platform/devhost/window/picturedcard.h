// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "cardrecord.h"

#include <QWidget>

namespace devhost {

/// Shows a released card as it last looked. Its tool tip says that it can no longer be used.
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
