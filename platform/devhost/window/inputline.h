// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "inputhistory.h"

#include <QAbstractSlider>
#include <QLineEdit>

namespace devhost {

/// The input line: Up and Down recall earlier input, Escape clears it.
class InputLine final : public QLineEdit
{
    Q_OBJECT

public:
    explicit InputLine(QWidget *parent = nullptr);

    /// Clears the line and returns its text.
    QString takeText();
    InputHistory &history() { return m_history; }
    /// Whether the input is a password and not shown.
    void setSecret(bool isSecret);

Q_SIGNALS:
    /// A key that scrolls the conversation.
    void pageWanted(QAbstractSlider::SliderAction action);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    InputHistory m_history;
};

} // namespace devhost
