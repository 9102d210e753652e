// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>
#include <QWidget>

/// A rounded panel. It takes the focus from the Tab key only.
class CustomizeItem : public QWidget
{
    Q_OBJECT

public:
    explicit CustomizeItem(QWidget *parent = nullptr);

    /// In pixels. The spelling is the interface's.
    void setRaidus(int radius);
    void setBackGroundColor(const QColor &color);
    /// If false, the lower corners are square.
    void setBottomRadius(bool rounded);
    /// Stored but not used for painting: the upper corners are always rounded.
    void setTopRadius(bool rounded);

protected:
    void paintEvent(QPaintEvent *event) override;

    /// The background unless setBackGroundColor() sets another one.
    void setDefaultBackGroundColor(const QColor &color);

private:
    int m_radius = 8;
    QColor m_backGroundColor;
    bool m_bottomRadius = true;
    bool m_topRadius = true;
    bool m_hasGivenColor = false;
};
