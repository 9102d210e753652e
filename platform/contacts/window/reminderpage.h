// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QSpinBox;
QT_END_NAMESPACE

class ContactsBook;

/// Whether and how early the user is reminded of conferences.
class ReminderPage : public QWidget
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit ReminderPage(ContactsBook &book, QWidget *parent = nullptr);

private:
    void reload();
    void save();

    ContactsBook &m_book;
    QCheckBox *m_isOn; ///< children
    QSpinBox *m_lead;
};
