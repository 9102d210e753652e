// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/columnwidths.h"

#include "window/celldelegate.h"

#include <QEvent>
#include <QHeaderView>
#include <QStyle>
#include <QTableView>

namespace {

/// Narrower than the header's own hint, which has room for a bold text; none is here.
int headerWidth(const QTableView &table, int column)
{
    const QHeaderView *header = table.horizontalHeader();
    const QString text = table.model()->headerData(column, Qt::Horizontal).toString();
    const int margins = 3 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    const int sortMark = header->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, header);
    return header->fontMetrics().horizontalAdvance(text) + margins + sortMark;
}

int neededWidth(const QTableView &table, int column)
{
    const auto &view = static_cast<const QAbstractItemView &>(table); // where it is public
    return qMax(view.sizeHintForColumn(column), headerWidth(table, column));
}

} // namespace

ColumnWidths::ColumnWidths(QTableView *table, QVector<Limits> limits, int stretched)
    : QObject(table)
    , m_table(table)
    , m_limits(std::move(limits))
    , m_stretched(stretched)
{
    m_table->setItemDelegate(new CellDelegate(m_table));
    m_table->verticalHeader()->setDefaultSectionSize(CellDelegate::RowHeight);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->viewport()->installEventFilter(this);
    const QAbstractItemModel *model = m_table->model();
    connect(model, &QAbstractItemModel::modelReset, this, &ColumnWidths::fitSoon);
    connect(model, &QAbstractItemModel::rowsInserted, this, &ColumnWidths::fitSoon);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &ColumnWidths::fitSoon);
    connect(model, &QAbstractItemModel::layoutChanged, this, &ColumnWidths::fitSoon);
    connect(model, &QAbstractItemModel::dataChanged, this, &ColumnWidths::fitSoon);
}

bool ColumnWidths::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) {
        fit();
    } else if (event->type() == QEvent::FontChange) {
        fitSoon();
    }
    return QObject::eventFilter(watched, event);
}

void ColumnWidths::fitSoon()
{
    // A hidden table is fitted when it is shown.
    if (!m_isPending && m_table->isVisible()) {
        m_isPending = true;
        QMetaObject::invokeMethod(this, &ColumnWidths::fit, Qt::QueuedConnection);
    }
}

void ColumnWidths::fit()
{
    m_isPending = false;
    int left = m_table->viewport()->width();
    for (int column = 0; column < m_limits.size(); ++column) {
        if (column != m_stretched) {
            const Limits &limits = m_limits.at(column);
            const int width = qBound(limits.least, neededWidth(*m_table, column), limits.most);
            m_table->setColumnWidth(column, width);
            left -= width;
        }
    }
    m_table->setColumnWidth(m_stretched, qMax(m_limits.at(m_stretched).least, left));
}
