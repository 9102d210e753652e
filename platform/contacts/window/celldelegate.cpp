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

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle *style = cell.widget ? cell.widget->style() : QApplication::style();
    // The ground is as wide as the cell, what stands on it is not.
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    if (cell.state.testFlag(QStyle::State_Selected)) {
        const QColor text = cell.palette.color(cell.state.testFlag(QStyle::State_Active) ? QPalette::Active
                                                                                         : QPalette::Inactive,
                                               QPalette::HighlightedText);
        cell.palette.setColor(QPalette::All, QPalette::Text, text);
    }
    cell.state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
    cell.backgroundBrush = Qt::NoBrush;
    cell.rect.adjust(Padding, 0, -Padding, 0);
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index)
        .grownBy(QMargins(Padding, 0, Padding, 0))
        .expandedTo(QSize(0, RowHeight));
}
