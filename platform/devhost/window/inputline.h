// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "inputhistory.h"

#include <QAbstractSlider>
#include <QLineEdit>

namespace devhost {

/// The line one types in: up and down go through what was typed before, Escape clears it.
class InputLine final : public QLineEdit
{
    Q_OBJECT

public:
    explicit InputLine(QWidget *parent = nullptr);

    /// Empties the line and hands over what it held.
    QString takeText();
    InputHistory &history() { return m_history; }
    /// Whether what is typed is a password: it is not shown then.
    void setSecret(bool isSecret);

Q_SIGNALS:
    /// A key for scrolling what stands above.
    void pageWanted(QAbstractSlider::SliderAction action);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    InputHistory m_history;
};

} // namespace devhost
