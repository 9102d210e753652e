// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/celldelegate.h"

#include <QApplication>
#include <QPainter>

namespace {

constexpr int DotExtent = 8;

QIcon dot(const QColor &color, qreal ratio)
{
    QPixmap pixmap(QSize(DotExtent, DotExtent) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(0, 0, DotExtent, DotExtent));
    return pixmap;
}

} // namespace

void CellDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Rows are picked and pointed at, not cells.
    option->state &= ~(QStyle::State_MouseOver | QStyle::State_HasFocus);
    const QVariant decoration = index.data(Qt::DecorationRole);
    if (decoration.userType() == QMetaType::QColor) {
        // On the accent colour, a dot in it could not be seen.
        const bool isSelected = option->state.testFlag(QStyle::State_Selected);
        option->icon =
            dot(isSelected ? option->palette.color(QPalette::HighlightedText) : decoration.value<QColor>(),
                qApp->devicePixelRatio());
        option->decorationSize = QSize(DotExtent, DotExtent);
    }
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, RowHeight));
}
