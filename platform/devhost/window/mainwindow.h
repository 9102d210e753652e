// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conversation.h"

#include <QMainWindow>

QT_BEGIN_NAMESPACE
class QLabel;
class QSplitter;
class QStackedWidget;
QT_END_NAMESPACE
class LSuggestButton;

namespace devhost {

class Appearance;
class ApplicationLink;
class ConversationView;
class InputLine;
class Inspector;
class Speaker;
class StatusLine;

/// The host's window: the conversation, the input line, and the inspector beside it.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// Both must outlive the window.
    MainWindow(Conversation &conversation, Appearance &appearance, QWidget *parent = nullptr);

    /// Shows above the conversation why nothing will be answered.
    void showProblem(const QString &problem);
    /// Acts as if @p text had been typed and sent.
    void submit(const QString &text);

    ConversationView *view() const { return m_view; }
    InputLine *input() const { return m_input; }
    Inspector *inspector() const { return m_inspector; }

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void build();
    void buildMenus();
    void saveScript();
    void follow();
    void followApplication();
    void startOver();
    void said(int turn, const QString &shown);
    void reply(int turn, const Reply &reply);
    void inspect(int turn);
    void remember() const;
    void restore();

    Conversation &m_conversation;
    Appearance &m_appearance;
    ApplicationLink *m_application;
    StatusLine *m_status;
    Speaker *m_speaker;
    QLabel *m_problem;
    QStackedWidget *m_pages;
    ConversationView *m_view;
    InputLine *m_input;
    LSuggestButton *m_send;
    QSplitter *m_splitter;
    Inspector *m_inspector;
    QAction *m_inspectorAction = nullptr;
    QAction *m_speechAction = nullptr;
    bool m_followsLast = true;   ///< the inspector shows the newest turn
    QHash<int, QString> m_typed; ///< not yet known whether they are secrets
};

} // namespace devhost
