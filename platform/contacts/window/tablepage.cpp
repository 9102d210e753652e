// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/tablepage.h"

#include "window/keptselection.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QShortcut>
#include <QVBoxLayout>

void HintedTable::setHint(const QString &hint)
{
    m_hint = hint;
    setAccessibleDescription(hint);
    viewport()->update();
}

void HintedTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (model() && model()->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hint);
}

TablePage::TablePage(QAbstractItemModel *model, int keyRole, int sortColumn, QWidget *parent)
    : QWidget(parent)
    , m_filter(new QLineEdit)
    , m_table(new HintedTable)
    , m_upperRow(new QHBoxLayout)
    , m_lowerRow(new QHBoxLayout)
{
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setMaxLength(100);
    auto *escape = new QShortcut(Qt::Key_Escape, m_filter, nullptr, nullptr, Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, m_filter, &QLineEdit::clear);

    m_table->setModel(model);
    dress(m_table, sortColumn, Qt::AscendingOrder);
    m_selection = new KeptSelection(m_table, keyRole);
    connect(m_table, &QAbstractItemView::activated, this, &TablePage::activated);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TablePage::selectionChanged);
    connect(m_selection, &KeptSelection::restored, this, &TablePage::selectionChanged);

    m_upperRow->addWidget(m_filter, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 10, 0, 0); // the window has a margin
    layout->setSpacing(10);
    layout->addLayout(m_upperRow);
    layout->addWidget(m_table, 1);
    layout->addLayout(m_lowerRow);
}

void TablePage::dress(QTableView *table, int sortColumn, Qt::SortOrder order)
{
    // First, because the next line sorts at once: another order may have to read everything.
    table->horizontalHeader()->setSortIndicator(sortColumn, order);
    table->setSortingEnabled(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    // As wide as what can be seen: looking at every row would take as long as there are rows.
    table->horizontalHeader()->setResizeContentsPrecision(0);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

QVariant TablePage::selected(int role) const
{
    return m_selection->selected(role);
}

void TablePage::select(const QVariant &key)
{
    m_selection->select(key);
}
