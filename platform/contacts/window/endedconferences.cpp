// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/endedconferences.h"

#include "window/conferencecolumns.h"
#include "window/tablepage.h"

#include "book/contactsbook.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QToolButton>
#include <QVBoxLayout>

EndedConferences::EndedConferences(ContactsBook &book, QWidget *parent)
    : QWidget(parent)
    , m_model(new ConferenceModel(book, ConferenceModel::Span::Ended, this))
    , m_sorted(new QSortFilterProxyModel(this))
    , m_disclosure(new QToolButton)
    , m_table(new HintedTable)
{
    m_disclosure->setObjectName(QStringLiteral("ended"));
    m_disclosure->setCheckable(true);
    m_disclosure->setAutoRaise(true);
    m_disclosure->setFocusPolicy(Qt::StrongFocus);
    m_disclosure->setArrowType(Qt::RightArrow);
    m_disclosure->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addTable();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_disclosure, 0, Qt::AlignLeft);
    layout->addWidget(m_table, 1);
    connect(m_disclosure, &QToolButton::toggled, this, [this](bool open) {
        m_disclosure->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
        m_table->setVisible(open);
        if (!open) {
            m_table->clearSelection();
        }
        readWhatIsNeeded();
        Q_EMIT unfolded(open);
    });
    // After the model, which was made first and reads anew on the same signal.
    connect(&book, &ContactsBook::changedLately, this, &EndedConferences::count);
    count();
}

void EndedConferences::addTable()
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(ConferenceModel::SortRole);
    m_sorted->setSortLocaleAware(true);
    m_sorted->setFilterRole(ConferenceModel::SearchRole);
    m_sorted->setFilterKeyColumn(0);
    m_sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_table->setModel(m_sorted);
    m_table->setObjectName(QStringLiteral("endedTable"));
    m_table->setAccessibleName(QStringLiteral("已结束的会议"));
    m_table->setHint(QStringLiteral("最近三十天没有已结束的会议。"));
    TablePage::dress(m_table, ConferenceModel::Start, Qt::DescendingOrder);
    arrangeConferenceColumns(m_table);
    m_table->hide();
    connect(m_sorted, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        const QModelIndexList rows = m_table->selectionModel()->selectedRows();
        m_selectedNumber = rows.isEmpty() ? QVariant() : rows.constFirst().data(ConferenceModel::NumberRole);
    });
    connect(m_sorted, &QAbstractItemModel::modelReset, this, [this] {
        const QModelIndexList found =
            m_selectedNumber.isValid() && m_sorted->rowCount() > 0
                ? m_sorted->match(m_sorted->index(0, 0), ConferenceModel::NumberRole, m_selectedNumber, 1,
                                  Qt::MatchExactly)
                : QModelIndexList();
        if (!found.isEmpty()) {
            m_table->selectRow(found.constFirst().row());
        }
    });
}

void EndedConferences::setScope(ConferenceModel::Scope scope)
{
    m_model->setScope(scope);
    count();
}

void EndedConferences::setFilter(const QString &text)
{
    m_filter = text;
    readWhatIsNeeded();
    m_sorted->setFilterFixedString(text);
    count();
}

void EndedConferences::readWhatIsNeeded()
{
    m_model->setReading(m_filter.isEmpty() ? ConferenceModel::Reading::Pages
                                           : ConferenceModel::Reading::Whole);
    m_model->setActive(m_disclosure->isChecked() || !m_filter.isEmpty());
}

void EndedConferences::reload()
{
    m_model->reload();
    count();
}

void EndedConferences::count()
{
    const int found = m_filter.isEmpty() ? m_model->endedCount() : m_sorted->rowCount();
    const QString shown = found > ConferenceModel::CountLimit
                              ? QStringLiteral("%1+").arg(int(ConferenceModel::CountLimit))
                              : QString::number(found);
    m_disclosure->setText(QStringLiteral("已结束 (%1)").arg(shown));
    m_disclosure->setEnabled(found > 0 || m_disclosure->isChecked());
}
