// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAbstractButton>

namespace devhost {

/// Base of the conversation's own buttons: a fixed square, a pointing hand, and @p name as tool tip and
/// accessible name. Derived classes paint themselves.
class ViewButton : public QAbstractButton
{
    Q_OBJECT

public:
    ViewButton(const QString &name, int extent, QWidget *parent);

    QSize sizeHint() const override { return {m_extent, m_extent}; }

protected:
    // Arguments of QColor::darker(), the same as in the toolkit's style.
    static constexpr int HoverFactor = 106;
    static constexpr int PressedFactor = 114;

private:
    int m_extent;
};

} // namespace devhost
