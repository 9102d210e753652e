// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "viewbutton.h"

namespace devhost {

ViewButton::ViewButton(const QString &name, int extent, QWidget *parent)
    : QAbstractButton(parent)
    , m_extent(extent)
{
    setToolTip(name);
    setAccessibleName(name);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    resize(m_extent, m_extent);
}

} // namespace devhost
