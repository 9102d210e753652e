// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFrame>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

class ContactsBook;

/// The conference that the user is in, with the way out of it; hidden outside conferences. Follows the
/// database.
class CurrentConference : public QFrame
{
    Q_OBJECT

public:
    /// @p book must outlive it.
    explicit CurrentConference(ContactsBook &book, QWidget *parent = nullptr);

    void reload();

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);

private:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void elide();

    ContactsBook &m_book;
    QString m_fullTitle;
    QString m_number;
    QLabel *m_title; ///< children, all of them
    QLabel *m_details;
    QPushButton *m_copy;
    QPushButton *m_leave;
};
