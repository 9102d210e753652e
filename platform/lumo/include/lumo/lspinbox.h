// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QSpinBox>

/// A spin box for cards in a scrolling view: the wheel changes the value only while the box has the focus.
class LUMO_EXPORT LSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool enabledEmbedStyle READ enabledEmbedStyle WRITE setEnabledEmbedStyle)

public:
    explicit LSpinBox(QWidget *parent = nullptr);

    /// Arrows inside the field when true; a separate minus and plus beside it when false, the default.
    void setEnabledEmbedStyle(bool enabled);
    bool enabledEmbedStyle() const;
};
