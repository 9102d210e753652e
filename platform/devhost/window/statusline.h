// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

namespace devhost {

struct ApplicationState;

/// The line below the conversation: whether the application is reached, who is logged in, and the current
/// conference with a button to leave it.
class StatusLine final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget *parent = nullptr);

    void show(const ApplicationState &state);

Q_SIGNALS:
    void leaveWanted();

private:
    QLabel *m_account;
    QLabel *m_conference;
    QPushButton *m_leave;
};

} // namespace devhost
