// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/endedconferences.h"

#include "window/conferencecolumns.h"
#include "window/keptselection.h"
#include "window/sortedconferences.h"
#include "window/tablepage.h"

#include "book/contactsbook.h"

#include <QHeaderView>
#include <QToolButton>
#include <QVBoxLayout>

EndedConferences::EndedConferences(ContactsBook &book, QWidget *parent)
    : QWidget(parent)
    , m_model(new ConferenceModel(book, ConferenceModel::Span::Ended, this))
    , m_sorted(new SortedConferences(m_model, this))
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
    m_table->setModel(m_sorted);
    m_table->setObjectName(QStringLiteral("endedTable"));
    m_table->setAccessibleName(tr("Conferences that have ended"));
    m_table->setHint(tr("No conference has ended within thirty days."));
    TablePage::dress(m_table, ConferenceModel::Start, Qt::DescendingOrder);
    arrangeConferenceColumns(m_table);
    m_table->hide();
    new KeptSelection(m_table, ConferenceModel::NumberRole);
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
    m_disclosure->setText(tr("Ended (%1)").arg(shown));
    m_disclosure->setEnabled(found > 0 || m_disclosure->isChecked());
}
