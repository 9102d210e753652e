// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "turn.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
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

    /// Where one types what is looked for on the page in front.
    QLineEdit *searchField() const { return m_search; }

Q_SIGNALS:
    void semanticEntered(const QString &semantic);

protected:
    void changeEvent(QEvent *event) override;

private:
    QPlainTextEdit *addTextTab(const QString &title, const QString &name);
    QWidget *makeSendTab();
    QWidget *makeLogTab();
    QPlainTextEdit *shownEdit() const;
    void copyShown() const;
    /// Marks the next place from the position @p from on, or the first one.
    void search(int from);
    void filterLog();
    void followFont();
    void send();

    QLabel *m_title;
    QTabWidget *m_tabs;
    QPlainTextEdit *m_semantic;
    QPlainTextEdit *m_requests;
    QPlainTextEdit *m_reply;
    QPlainTextEdit *m_log;
    QPlainTextEdit *m_entry;
    QLineEdit *m_search;
    QLineEdit *m_logFilter;
    QString m_wholeLog;
    int m_turn = 0;
};

} // namespace devhost
