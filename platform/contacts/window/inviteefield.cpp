// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/inviteefield.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"
#include "window/celldelegate.h"

#include <lumo/plaintooltip.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int MostFound = 20;
constexpr int ListHeight = 3 * CellDelegate::RowHeight + 2;

QString textOf(const Person &person)
{
    return QStringLiteral("%1  %2").arg(cleanDisplayText(person.shownName()), person.account);
}

/// The only one of @p people whom @p text names exactly, or the only one at all.
std::optional<Person> meantBy(const QString &text, const QVector<Person> &people)
{
    QVector<Person> exact;
    for (const Person &person : people) {
        const QStringList names{person.name, person.remarkName, person.account};
        if (names.contains(text, Qt::CaseInsensitive)) {
            exact.append(person);
        }
    }
    const QVector<Person> &candidates = exact.isEmpty() ? people : exact;
    return candidates.size() == 1 ? std::optional<Person>(candidates.constFirst()) : std::nullopt;
}

} // namespace

InviteeField::InviteeField(ContactsBook &book, int most, QWidget *parent)
    : QWidget(parent)
    , m_book(book)
    , m_most(most)
    , m_found(new QStandardItemModel(this))
    , m_completer(new QCompleter(m_found, this))
    , m_edit(new QLineEdit)
    , m_list(new QListWidget)
    , m_remove(new QPushButton(tr("Re&move")))
{
    arrange();
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(m_edit); // not setCompleter(), which would write into the field
    m_edit->installEventFilter(this);
    m_completer->popup()->setItemDelegate(new CellDelegate(m_completer->popup()));
    m_completer->popup()->installEventFilter(this); // it gets the keys while it is open
    m_list->installEventFilter(this);
    connect(m_edit, &QLineEdit::textEdited, this, &InviteeField::complete);
    connect(m_completer, QOverload<const QModelIndex &>::of(&QCompleter::activated), this,
            [this](const QModelIndex &index) { pick(index.data(Qt::UserRole).toString()); });
    connect(m_remove, &QPushButton::clicked, this, &InviteeField::removeCurrent);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_remove->setEnabled(row >= 0); });
}

void InviteeField::arrange()
{
    m_edit->setObjectName(QStringLiteral("invitee"));
    m_edit->setAccessibleName(tr("People to invite"));
    m_edit->setPlaceholderText(tr("Name, remark or account"));
    m_edit->setMaxLength(100);
    m_list->setObjectName(QStringLiteral("invitees"));
    m_list->setAccessibleName(tr("People chosen"));
    m_list->setFixedHeight(ListHeight);
    m_list->setItemDelegate(new CellDelegate(m_list));
    m_remove->setObjectName(QStringLiteral("removeInvitee"));
    m_remove->setAutoDefault(false);
    m_remove->setEnabled(false);
    auto *chosen = new QHBoxLayout;
    chosen->addWidget(m_list, 1);
    chosen->addWidget(m_remove, 0, Qt::AlignTop);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit);
    layout->addLayout(chosen);
    setFocusProxy(m_edit);
}

bool InviteeField::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent *>(event)->key();
    const QAbstractItemView *popup = m_completer->popup();
    // A row that was chosen in the popup is the completer's to report.
    const bool isTyped = watched == m_edit || (watched == popup && !popup->selectionModel()->hasSelection());
    if (isTyped && (key == Qt::Key_Return || key == Qt::Key_Enter) && !m_edit->text().isEmpty()) {
        pickTyped(); // does not press the dialog's button
        return true;
    }
    if (watched == m_list && (key == Qt::Key_Delete || key == Qt::Key_Backspace)) {
        removeCurrent();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

QVector<Person> InviteeField::find(const QString &text) const
{
    const QString start = text.trimmed();
    if (start.isEmpty()) {
        return {};
    }
    QVector<Person> found;
    try {
        const std::optional<Person> user = m_book.session().user();
        if (user) {
            found = m_book.people().contactsStartingWith(user->userId, start, MostFound);
        }
    } catch (const std::exception &error) {
        qWarning("The contacts cannot be searched: %s", error.what());
        m_book.noteFailure(error);
    }
    const auto isPicked = [this](const Person &person) {
        return std::any_of(m_people.cbegin(), m_people.cend(),
                           [&person](const Person &picked) { return picked.userId == person.userId; });
    };
    found.erase(std::remove_if(found.begin(), found.end(), isPicked), found.end());
    return found;
}

void InviteeField::complete(const QString &text)
{
    const QVector<Person> people = find(text);
    m_found->clear();
    for (const Person &person : people) {
        auto *item = new QStandardItem(textOf(person));
        item->setData(person.userId, Qt::UserRole);
        m_found->appendRow(item);
    }
    if (people.isEmpty()) {
        m_completer->popup()->hide();
    } else {
        m_completer->complete();
    }
}

void InviteeField::pickTyped()
{
    const QVector<Person> people = find(m_edit->text());
    const std::optional<Person> meant = meantBy(m_edit->text().trimmed(), people);
    if (meant) {
        add(*meant);
    } else {
        Q_EMIT told(people.isEmpty() ? tr("“%1” is not among your contacts.").arg(m_edit->text())
                                     : tr("Several contacts match. Please choose from the list."));
    }
}

void InviteeField::pick(const QString &userId)
{
    const QVector<Person> people = find(m_edit->text());
    const auto picked = std::find_if(people.cbegin(), people.cend(),
                                     [&userId](const Person &person) { return person.userId == userId; });
    if (picked != people.cend()) {
        add(*picked);
    }
}

void InviteeField::add(const Person &person)
{
    if (m_people.size() >= m_most) {
        Q_EMIT told(tr("No more than %1 people can be invited.").arg(m_most));
        return;
    }
    m_people.append(person);
    auto *item = new QListWidgetItem(textOf(person), m_list);
    item->setToolTip(plainToolTip(textOf(person)));
    m_edit->clear();
    m_completer->popup()->hide();
    Q_EMIT changed();
}

void InviteeField::removeCurrent()
{
    const int row = m_list->currentRow();
    if (row >= 0) {
        m_people.removeAt(row);
        delete m_list->takeItem(row);
        Q_EMIT changed();
    }
}
