// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
class QTabWidget;
QT_END_NAMESPACE

namespace devhost {

/// The pane for plugin authors: what went in and out of the plugin in one turn, and a field to send it a
/// semantic JSON as it is.
class Inspector final : public QWidget
{
    Q_OBJECT

public:
    explicit Inspector(QWidget *parent = nullptr);

    void show(const Turn &turn);
    /// The turn that is shown, 0 for none.
    int shownTurn() const { return m_turn; }

Q_SIGNALS:
    void semanticEntered(const QString &semantic);

private:
    QPlainTextEdit *addTextTab(const QString &title, const QString &name);
    QWidget *makeSendTab();
    void copyShown() const;
    void send();

    QLabel *m_title;
    QTabWidget *m_tabs;
    QPlainTextEdit *m_semantic;
    QPlainTextEdit *m_requests;
    QPlainTextEdit *m_reply;
    QPlainTextEdit *m_log;
    QPlainTextEdit *m_entry;
    int m_turn = 0;
};

} // namespace devhost
