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

/// The pane for plugin authors: a turn's input and output, and a field that sends raw semantic JSON to the
/// plugin.
class Inspector final : public QWidget
{
    Q_OBJECT

public:
    explicit Inspector(QWidget *parent = nullptr);

    void show(const Turn &turn);
    /// The turn shown, 0 for none.
    int shownTurn() const { return m_turn; }

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
    /// Marks the next hit at or after position @p from, or else the first.
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
