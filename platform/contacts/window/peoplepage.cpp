// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplepage.h"

#include "core/outcome.h"
#include "core/outcometext.h"
#include "window/addfrienddialog.h"
#include "window/befriend.h"
#include "window/peoplehint.h"
#include "window/requestbar.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

namespace {

/// An account may be as long as a name; the column for names keeps its room.
constexpr int WidestColumn = 240;
constexpr int NarrowestColumn = 64;

} // namespace

PeoplePage::PeoplePage(PeopleModel *model, ContactsBook &book, QWidget *parent)
    : TablePage(model, PeopleModel::AccountRole, PeopleModel::Account, parent)
    , m_model(model)
    , m_book(book)
    , m_scope(new QComboBox)
    , m_add(new QPushButton(tr("Add &Friend…")))
    , m_befriend(new QPushButton(tr("Add as Fr&iend")))
    , m_befriendEntry(new QAction(tr("Add as Fr&iend"), table()))
    , m_copyAccount(new QAction(tr("&Copy Account"), table()))
{
    m_model->setParent(this);
    addControls();
    addMenu();
    connectControls();
    showWhatIsPossible();
    showHint();
}

void PeoplePage::addControls()
{
    filter()->setObjectName(QStringLiteral("peopleFilter"));
    filter()->setPlaceholderText(tr("Search names, remarks and accounts"));
    filter()->setAccessibleName(tr("Search names, remarks and accounts"));
    m_scope->setObjectName(QStringLiteral("peopleScope"));
    m_scope->setAccessibleName(tr("Which people are shown"));
    m_scope->addItem(tr("All Contacts"), static_cast<int>(PeopleScope::Everybody));
    m_scope->addItem(tr("Friends"), static_cast<int>(PeopleScope::Friends));
    m_scope->addItem(tr("Requests Sent"), static_cast<int>(PeopleScope::Asked));
    m_add->setObjectName(QStringLiteral("addFriend"));
    m_add->setAutoDefault(false);
    m_befriend->setObjectName(QStringLiteral("befriend"));
    m_befriend->setAutoDefault(false);
    auto *requests = new RequestBar(m_book);
    connect(requests, &RequestBar::told, this, &PeoplePage::told);
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, requests);
    upperRow()->addWidget(m_scope);
    upperRow()->addWidget(m_add);
    lowerRow()->addWidget(m_befriend);
    lowerRow()->addStretch(1);
    // As one sees them, not as they were made.
    setTabOrder(requests->lastControl(), filter());
    setTabOrder(filter(), m_scope);
    setTabOrder(m_scope, m_add);
    setTabOrder(m_add, table());
    setTabOrder(table(), m_befriend);

    table()->setObjectName(QStringLiteral("people"));
    table()->setAccessibleName(tr("List of contacts"));
    QHeaderView *header = table()->horizontalHeader();
    header->setMinimumSectionSize(NarrowestColumn);
    header->setMaximumSectionSize(WidestColumn);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(PeopleModel::Name, QHeaderView::Stretch);
}

void PeoplePage::addMenu()
{
    m_copyAccount->setObjectName(QStringLiteral("copyAccount"));
    m_copyAccount->setShortcut(QKeySequence::Copy);
    m_copyAccount->setShortcutContext(Qt::WidgetShortcut); // Ctrl+C in a field is the field's
    m_befriendEntry->setObjectName(QStringLiteral("befriendEntry"));
    // Also opened with the menu key.
    table()->setContextMenuPolicy(Qt::ActionsContextMenu);
    table()->addActions({m_befriendEntry, m_copyAccount});
}

void PeoplePage::connectControls()
{
    connect(filter(), &QLineEdit::textChanged, m_model, &PeopleModel::setFilter);
    connect(m_scope, QOverload<int>::of(&QComboBox::activated), this,
            [this] { m_model->setScope(static_cast<PeopleScope>(m_scope->currentData().toInt())); });
    connect(m_add, &QPushButton::clicked, this, &PeoplePage::openDialog);
    connect(m_befriend, &QPushButton::clicked, this, &PeoplePage::addSelected);
    connect(m_befriendEntry, &QAction::triggered, this, &PeoplePage::addSelected);
    connect(m_copyAccount, &QAction::triggered, this, [this] {
        QGuiApplication::clipboard()->setText(selected(PeopleModel::AccountRole).toString());
        Q_EMIT told(tr("The account was copied."));
    });
    connect(this, &TablePage::selectionChanged, this, &PeoplePage::showWhatIsPossible);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &PeoplePage::showWhatIsPossible);
    connect(m_model, &PeopleModel::settled, this, &PeoplePage::showWhatIsPossible);
    connect(m_model, &PeopleModel::settled, this, &PeoplePage::showHint);
    connect(m_model, &QAbstractItemModel::modelReset, this, &PeoplePage::showHint);
}

void PeoplePage::openDialog()
{
    auto *dialog = new AddFriendDialog(m_book, this);
    connect(dialog, &AddFriendDialog::told, this, &PeoplePage::told);
    dialog->open();
}

void PeoplePage::addSelected()
{
    const BefriendResult result = befriend(m_book, selected(PeopleModel::AccountRole).toString());
    Q_EMIT told(result.word == Outcome::Ok ? result.text : outcomeText(result.word));
}

void PeoplePage::showWhatIsPossible()
{
    const QVariant friendship = selected(PeopleModel::FriendshipRole);
    const bool isNoFriend = friendship.isValid() && friendship.toInt() == static_cast<int>(Friendship::None);
    m_add->setEnabled(m_model->isLoggedIn());
    m_befriend->setEnabled(isNoFriend);
    m_befriendEntry->setEnabled(isNoFriend);
    m_copyAccount->setEnabled(friendship.isValid());
}

void PeoplePage::showHint()
{
    table()->setHint(peopleHint({m_model->isLoggedIn(), m_model->isReading(), filter()->text(),
                                 static_cast<PeopleScope>(m_scope->currentData().toInt())}));
}
