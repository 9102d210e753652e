// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace devhost {

/// Three animated dots while an answer is pending.
class WaitingDots final : public QWidget
{
    Q_OBJECT

public:
    explicit WaitingDots(QWidget *parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QBasicTimer m_timer;
    int m_step = 0;
};

} // namespace devhost
