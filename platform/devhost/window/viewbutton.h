// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAbstractButton>

namespace devhost {

/// What the conversation's own buttons share: a fixed square, the hand under the mouse, and @p name both as
/// tool tip and for screen readers. Derived classes paint themselves.
class ViewButton : public QAbstractButton
{
    Q_OBJECT

public:
    ViewButton(const QString &name, int extent, QWidget *parent);

    QSize sizeHint() const override { return {m_extent, m_extent}; }

private:
    int m_extent;
};

} // namespace devhost
