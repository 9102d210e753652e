// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QTabWidget;
class QWidget;
QT_END_NAMESPACE

class ContactsBook;

/// Keeps a window's title at what it shows and to whom, e.g. "会议 – 王小明 – 联系人与会议". A child of the
/// window.
class WindowTitle final : public QObject
{
    Q_OBJECT

public:
    /// @p pages belong to @p window, @p book must outlive it.
    WindowTitle(QWidget &window, QTabWidget &pages, ContactsBook &book);

private:
    void readUser();
    void show();

    QWidget &m_window;
    QTabWidget &m_pages;
    ContactsBook &m_book;
    QString m_user;
};
