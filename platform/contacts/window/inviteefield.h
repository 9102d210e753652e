// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "core/person.h"

#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QCompleter;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStandardItemModel;
QT_END_NAMESPACE

class ContactsBook;

/// Picks people out of the user's contacts: what is typed is completed, whoever is picked goes to a list.
class InviteeField : public QWidget
{
    Q_OBJECT

public:
    /// @p book must outlive it. No more than @p most can be picked.
    InviteeField(ContactsBook &book, int most, QWidget *parent = nullptr);

    const QVector<Person> &people() const { return m_people; }

Q_SIGNALS:
    void changed();
    /// Something to tell the user.
    void told(const QString &text);

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void arrange();
    void complete(const QString &text);
    QVector<Person> find(const QString &text) const;
    void pickTyped();
    void pick(const QString &userId);
    void add(const Person &person);
    void removeCurrent();

    ContactsBook &m_book;
    int m_most;
    QVector<Person> m_people;
    QStandardItemModel *m_found; ///< children, all of them
    QCompleter *m_completer;
    QLineEdit *m_edit;
    QListWidget *m_list;
    QPushButton *m_remove;
};
