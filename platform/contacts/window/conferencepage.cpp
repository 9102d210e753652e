// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencepage.h"

#include "window/conferencecolumns.h"
#include "window/conferencecommands.h"
#include "window/currentconference.h"
#include "window/endedconferences.h"
#include "window/sortedconferences.h"

#include "actions/conferencetexts.h"

#include <lumo/lsuggestbutton.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QToolButton>

namespace {

std::optional<Conference> selectedIn(const QTableView &table)
{
    const QModelIndexList rows = table.selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        return std::nullopt;
    }
    return rows.constFirst().data(ConferenceModel::ConferenceRole).value<Conference>();
}

} // namespace

ConferencePage::ConferencePage(ConferenceModel *model, ContactsBook &book, Administration &administration,
                               QWidget *parent)
    : ConferencePage(model, new SortedConferences(model), book, administration, parent)
{
}

ConferencePage::ConferencePage(ConferenceModel *model, SortedConferences *sorted, ContactsBook &book,
                               Administration &administration, QWidget *parent)
    : TablePage(sorted, ConferenceModel::NumberRole, ConferenceModel::Start, parent)
    , m_model(model)
    , m_sorted(sorted)
    , m_commands(new ConferenceCommands(book, administration, this))
    , m_current(new CurrentConference(book, this))
    , m_ended(new EndedConferences(book, this))
    , m_scope(new QComboBox)
    , m_passcode(new QLineEdit)
{
    m_model->setParent(this);
    m_sorted->setParent(this);
    arrange();
    addMenus();
    setTabOrders();
    connectControls();
    chooseSelected();
    showHint();
}

void ConferencePage::arrange()
{
    table()->setAccessibleName(tr("List of conferences"));
    arrangeConferenceColumns(table());
    m_scope->setObjectName(QStringLiteral("scope"));
    m_scope->setAccessibleName(tr("Which conferences are shown"));
    m_scope->addItems({tr("My Conferences"), tr("All Conferences")});
    upperRow()->addWidget(m_scope);
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->insertWidget(0, m_current);
    column->insertWidget(column->indexOf(table()) + 1, m_ended);

    m_passcode->setObjectName(QStringLiteral("passcode"));
    m_passcode->setAccessibleName(tr("Conference passcode"));
    m_passcode->setPlaceholderText(tr("Passcode"));
    m_passcode->setEchoMode(QLineEdit::Password);
    m_passcode->setMaxLength(MaxPasscodeLength);
    m_passcode->setMaximumWidth(120);
    addButton(new LSuggestButton, m_commands->create());
    lowerRow()->addStretch(1);
    lowerRow()->addWidget(m_passcode);
    for (QAction *action :
         {m_commands->join(), m_commands->start(), m_commands->end(), m_commands->cancel()}) {
        addButton(new QPushButton, action);
    }
}

void ConferencePage::addButton(QPushButton *button, QAction *action)
{
    button->setObjectName(action->objectName());
    button->setText(action->text());
    button->setAutoDefault(false);
    button->setEnabled(action->isEnabled());
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button, [button, action] { button->setEnabled(action->isEnabled()); });
    lowerRow()->addWidget(button);
}

void ConferencePage::addMenus()
{
    auto *separator = new QAction(this);
    separator->setSeparator(true);
    for (HintedTable *view : {table(), m_ended->table()}) {
        // Also opened with the menu key.
        view->setContextMenuPolicy(Qt::ActionsContextMenu);
        view->addActions({m_commands->open(), m_commands->join(), m_commands->start(), m_commands->end(),
                          m_commands->cancel(), separator, m_commands->copyNumber(),
                          m_commands->exportCalendar()});
    }
}

void ConferencePage::setTabOrders()
{
    // As one reads: from above, and from the left.
    QWidget *last = m_current;
    const auto next = [&last](QWidget *widget) {
        setTabOrder(last, widget);
        last = widget;
    };
    for (const char *name : {"copyCurrentNumber", "leave"}) {
        next(m_current->findChild<QPushButton *>(QLatin1String(name)));
    }
    for (QWidget *widget :
         {static_cast<QWidget *>(filter()), static_cast<QWidget *>(m_scope), static_cast<QWidget *>(table()),
          static_cast<QWidget *>(m_ended->disclosure()), static_cast<QWidget *>(m_ended->table())}) {
        next(widget);
    }
    for (int i = 0; i < lowerRow()->count(); ++i) {
        if (QWidget *widget = lowerRow()->itemAt(i)->widget()) {
            next(widget);
        }
    }
}

void ConferencePage::connectControls()
{
    connect(m_scope, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const auto scope = index == 0 ? ConferenceModel::Scope::Mine : ConferenceModel::Scope::Everybody;
        m_model->setScope(scope);
        m_ended->setScope(scope);
        showHint();
    });
    connect(filter(), &QLineEdit::textChanged, this, [this](const QString &text) {
        m_sorted->setFilterFixedString(text);
        m_ended->setFilter(text);
        readEnough();
        showHint();
    });
    connect(table()->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            &ConferencePage::readEnough);
    connect(this, &TablePage::selectionChanged, this, [this] {
        if (selectedIn(*table())) {
            m_ended->table()->clearSelection(); // one conference is chosen, in one of the tables
        }
        chooseSelected();
    });
    connect(m_ended->table()->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (selectedIn(*m_ended->table())) {
            table()->clearSelection();
        }
        chooseSelected();
    });
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ConferencePage::chooseSelected);
    connect(m_model, &ConferenceModel::someEnded, m_ended, &EndedConferences::reload);
    connect(m_model, &ConferenceModel::someEnded, m_current, &CurrentConference::reload);
    connect(m_commands, &ConferenceCommands::told, this, &ConferencePage::told);
    connect(m_current, &CurrentConference::told, this, &ConferencePage::told);
    connect(m_commands, &ConferenceCommands::refreshed, this, [this] {
        m_passcode->setVisible(m_commands->isPasscodeNeeded());
        showHint();
    });
    connect(m_commands, &ConferenceCommands::joinTried, m_passcode, &QLineEdit::clear);
    connect(m_passcode, &QLineEdit::textChanged, m_commands, &ConferenceCommands::setPasscode);
    connect(m_passcode, &QLineEdit::returnPressed, m_commands->join(), &QAction::trigger);
    connect(this, &TablePage::activated, this, [this] { openCurrent(table()); });
    connect(m_ended->table(), &QAbstractItemView::activated, this, [this] { openCurrent(m_ended->table()); });
    connect(m_commands, &ConferenceCommands::made, this, &ConferencePage::selectMade);
    auto *column = static_cast<QVBoxLayout *>(layout());
    connect(m_ended, &EndedConferences::unfolded, this,
            [this, column](bool open) { column->setStretchFactor(m_ended, open ? 1 : 0); });
}

void ConferencePage::chooseSelected()
{
    const std::optional<Conference> coming = selectedIn(*table());
    const std::optional<Conference> chosen = coming ? coming : selectedIn(*m_ended->table());
    if (chosen && chosen->confId != m_lastChosenId) {
        m_lastChosenId = chosen->confId;
        m_passcode->clear(); // it was typed for another one
    }
    m_commands->choose(chosen);
}

void ConferencePage::openCurrent(QTableView *view)
{
    // The row with the focus is not always the selected one: the tab key selects none, and selecting in one
    // table clears the selection of the other.
    view->selectRow(view->currentIndex().row());
    m_commands->open()->trigger();
}

void ConferencePage::selectMade(const QString &dialNumber)
{
    filter()->clear();
    m_model->reload(); // it follows the change a moment later
    select(dialNumber);
    if (selected(ConferenceModel::NumberRole) != dialNumber) {
        m_model->setReading(ConferenceModel::Reading::Whole); // behind what was read so far
        select(dialNumber);
    }
    table()->scrollTo(table()->currentIndex());
    table()->setFocus();
}

void ConferencePage::readEnough()
{
    const QHeaderView *header = table()->horizontalHeader();
    const bool isInReadingOrder = header->sortIndicatorSection() == ConferenceModel::Start &&
                                  header->sortIndicatorOrder() == Qt::AscendingOrder &&
                                  filter()->text().isEmpty();
    m_model->setReading(isInReadingOrder ? ConferenceModel::Reading::Pages : ConferenceModel::Reading::Whole);
}

void ConferencePage::showHint()
{
    const QString hint = [this] {
        if (!filter()->text().isEmpty()) {
            return tr("No conference matches “%1”. Press Esc to clear the filter.").arg(filter()->text());
        }
        if (!m_commands->isLoggedIn() && m_scope->currentIndex() == 0) {
            return tr("Nobody is logged in. Choose an account above to see its conferences here.");
        }
        return tr("No conferences are coming up. Make one with “New Conference”.");
    }();
    table()->setHint(hint);
}
