// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mainwindow.h"

#include "appearance.h"
#include "appearancemenus.h"
#include "applicationlink.h"
#include "cardstops.h"
#include "cleantext.h"
#include "conversationscript.h"
#include "conversationview.h"
#include "inputline.h"
#include "inspector.h"
#include "speaker.h"
#include "statusline.h"
#include "turnmenu.h"
#include "welcomepage.h"

#include <lumo/lsuggestbutton.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSaveFile>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace devhost {

namespace {

constexpr QSize FirstSize(1080, 760);

const QLatin1String GeometryKey("window/geometry");
const QLatin1String SplitterKey("window/splitter");
const QLatin1String InspectorKey("window/inspector");
const QLatin1String SpeechKey("speech/on");

} // namespace

MainWindow::MainWindow(Conversation &conversation, Appearance &appearance, QWidget *parent)
    : QMainWindow(parent)
    , m_conversation(conversation)
    , m_appearance(appearance)
    , m_application(new ApplicationLink(this))
    , m_status(new StatusLine)
    , m_speaker(new Speaker(this))
    , m_problem(new QLabel)
    , m_pages(new QStackedWidget)
    , m_view(new ConversationView)
    , m_input(new InputLine)
    , m_send(new LSuggestButton(tr("Send")))
    , m_splitter(new QSplitter)
    , m_inspector(new Inspector)
{
    // Ends with the program's display name, or Qt adds that on screen.
    setWindowTitle(tr("Plugin Development – Voice Assistant"));
    build();
    buildMenus();
    follow();
    followApplication();
    restore();
    m_input->setFocus();
}

void MainWindow::build()
{
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setMargin(12);
    m_problem->setFrameShape(QFrame::StyledPanel);
    m_problem->hide();
    auto *welcome = new WelcomePage;
    connect(welcome, &WelcomePage::exampleChosen, this, &MainWindow::submit);
    m_pages->addWidget(welcome);
    m_pages->addWidget(m_view);
    m_input->setMinimumHeight(38);
    m_send->setMinimumSize(84, 38);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(16, 8, 16, 8);
    row->setSpacing(10);
    row->addWidget(m_input, 1);
    row->addWidget(m_send);
    auto *desk = new QWidget;
    auto *column = new QVBoxLayout(desk);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_problem);
    column->addWidget(m_pages, 1);
    column->addLayout(row);
    column->addWidget(m_status);
    m_splitter->addWidget(desk);
    m_splitter->addWidget(m_inspector);
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    m_splitter->setChildrenCollapsible(false);
    setCentralWidget(m_splitter);
    // In reading order: the conversation, then the input.
    setTabOrder(m_view, m_input);
    setTabOrder(m_input, m_send);
}

void MainWindow::buildMenus()
{
    QMenu *talk = menuBar()->addMenu(tr("&Conversation"));
    talk->addAction(tr("&New Conversation"), this, &MainWindow::startOver, QKeySequence(QKeySequence::New));
    talk->addAction(tr("Open &Contacts"), m_application, &ApplicationLink::openWindow,
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    talk->addAction(tr("&Save as Script…"), this, &MainWindow::saveScript, QKeySequence(QKeySequence::Save));
    talk->addSeparator();
    talk->addAction(tr("Go to the &Latest Turn"), m_view, &ConversationView::scrollToEnd,
                    QKeySequence(int(Qt::CTRL) + int(Qt::Key_End)));
    talk->addSeparator();
    talk->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence(QKeySequence::Quit));

    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_inspectorAction = view->addAction(tr("&Inspector"));
    m_inspectorAction->setCheckable(true);
    m_inspectorAction->setShortcut(Qt::Key_F12);
    connect(m_inspectorAction, &QAction::toggled, m_inspector, &QWidget::setVisible);
    view->addSeparator();
    addAppearanceMenus(*view, m_appearance);
    view->addSeparator();
    m_speechAction = view->addAction(tr("&Read Replies Aloud"));
    m_speechAction->setCheckable(true);
    m_speechAction->setEnabled(Speaker::isAvailable());
    connect(m_speechAction, &QAction::toggled, m_speaker, &Speaker::setOn);

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(
        tr("&What Can I Say?"), this, [this] { submit(QStringLiteral("你会什么")); },
        QKeySequence(QKeySequence::HelpContents));
    help->addAction(tr("&About"), this, [this] {
        auto *box = new QMessageBox(QMessageBox::NoIcon, tr("About"),
                                    tr("Development host for plugins of the voice assistant, version %1")
                                        .arg(QApplication::applicationVersion()),
                                    QMessageBox::Ok, this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open();
    });
}

void MainWindow::saveScript()
{
    auto *dialog = new QFileDialog(this, tr("Save the Conversation as a Script"));
    dialog->setObjectName(QStringLiteral("saveScript"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    connect(dialog, &QFileDialog::fileSelected, this, [this](const QString &path) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(scriptOf(m_conversation).toUtf8()) < 0 ||
            !file.commit()) {
            showProblem(tr("Cannot write %1.").arg(path));
        }
    });
    dialog->open();
}

void MainWindow::follow()
{
    const auto scaleCards = [this] {
        m_view->setCardScale(m_appearance.cardScale());
    };
    connect(&m_appearance, &Appearance::fontChanged, this, scaleCards);
    scaleCards();
    const auto send = [this] {
        submit(m_input->takeText());
    };
    connect(m_input, &QLineEdit::returnPressed, this, send);
    connect(m_send, &QPushButton::clicked, this, send);
    connect(m_input, &InputLine::pageWanted, m_view->verticalScrollBar(), &QAbstractSlider::triggerAction);
    connect(m_view, &ConversationView::turnActivated, this, [this](int turn) {
        m_followsLast = turn == m_conversation.lastTurn();
        inspect(turn);
    });
    connect(m_view, &ConversationView::turnMenuWanted, this,
            [this](int turn, const QString &text, const QPoint &place) {
                makeTurnMenu(m_conversation.turn(turn), text, m_conversation, this)->popup(place);
            });
    connect(m_inspector, &Inspector::semanticEntered, this, [this](const QString &semantic) {
        m_followsLast = true;
        m_conversation.sendSemantic(semantic);
    });
    connect(&m_conversation, &Conversation::said, this, &MainWindow::said);
    connect(&m_conversation, &Conversation::saidChanged, this, [this](int turn, const QString &shown) {
        m_view->changeSaid(turn, shown);
        m_input->history().remove(m_typed.value(turn));
    });
    connect(&m_conversation, &Conversation::started, this, [this](int turn) {
        m_view->setStarted(turn);
        m_view->setWaiting(turn);
    });
    connect(&m_conversation, &Conversation::replied, this, [this](int turn, const Reply &answer) {
        m_view->setWaiting(0);
        reply(turn, answer);
    });
    connect(&m_conversation, &Conversation::repliedLater, this, [this](int turn, const Reply &answer) {
        reply(turn, answer);
        // After a card's button the user goes on typing, not with whatever is next to the button.
        const QWidget *focus = QApplication::focusWidget();
        if (focus == nullptr || m_view->isAncestorOf(focus)) {
            m_input->setFocus();
        }
        if (m_inspector->shownTurn() == turn) {
            inspect(turn);
        }
    });
    connect(&m_conversation, &Conversation::failed, this, [this](int turn, const QString &reason) {
        m_view->setWaiting(0);
        m_view->addNotice(turn, reason);
    });
    connect(&m_conversation, &Conversation::finished, this, [this](int turn) {
        m_typed.remove(turn);
        m_input->setSecret(m_conversation.expectsSecret());
        if (m_followsLast) {
            inspect(turn);
        }
    });
}

void MainWindow::followApplication()
{
    connect(m_application, &ApplicationLink::changed, this, [this] {
        m_status->show(m_application->state());
        m_conversation.setHelpNames(m_application->state().names);
    });
    connect(m_application, &ApplicationLink::windowRefused, this, [this] {
        showProblem(tr("The contacts application does not answer, so its window cannot be opened."));
    });
    connect(m_status, &StatusLine::leaveWanted, this, [this] { submit(QStringLiteral("退出会议")); });
    connect(&m_conversation, &Conversation::idle, m_application, &ApplicationLink::refresh);
    connect(&m_conversation, &Conversation::repliedLater, m_application, &ApplicationLink::refresh);
    m_application->refresh();
}

void MainWindow::startOver()
{
    if (m_conversation.isBusy()) {
        return;
    }
    m_conversation.startOver();
    m_view->clear();
    m_typed.clear();
    m_followsLast = true;
    m_input->setSecret(false);
    m_input->setFocus();
    m_pages->setCurrentIndex(0);
}

void MainWindow::showProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->show();
}

void MainWindow::submit(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    m_followsLast = true;
    const bool isSecret = m_conversation.expectsSecret();
    const int turn = m_conversation.say(text);
    // A text that is not shown as it is holds a secret.
    const bool isPlain = !isSecret && m_conversation.turn(turn).said == cleanText(text);
    if (isPlain) {
        m_input->history().add(text);
        m_typed.insert(turn, text);
    }
    m_input->setFocus();
}

void MainWindow::said(int turn, const QString &shown)
{
    m_pages->setCurrentWidget(m_view);
    m_view->addSaid(turn, shown, m_view->isWaiting());
}

void MainWindow::reply(int turn, const Reply &reply)
{
    const QString text = cleanText(reply.displayText.toString());
    QWidget *card = cardOf(reply);
    const QString shown = text.isEmpty() && card == nullptr
                              ? tr("(A reply without text, code %1)").arg(reply.code.toInt())
                              : text;
    m_view->addReply(turn, shown, card);
    m_speaker->say(reply.speechText.toString());
}

void MainWindow::inspect(int turn)
{
    const Turn shown = m_conversation.turn(turn);
    if (shown.id != 0) {
        m_inspector->show(shown);
    }
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // The user may have changed something in the application meanwhile.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        m_application->refresh();
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    remember();
    QMainWindow::closeEvent(event);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    QWidget *const focus = focusWidget();
    const bool isInView = focus != nullptr && focus != m_view && m_view->isAncestorOf(focus);
    const bool isOnCard = isInView && m_view->entries().positionOfCardWith(*focus) >= 0;
    if ((isOnCard || (next && focus == m_view)) && m_view->moveFocus(next)) {
        return true;
    }
    if (isOnCard && !next) {
        m_view->setFocus(Qt::BacktabFocusReason);
        return true;
    }
    // The focus chain has the cards in the order of their creation; they were visited with the view.
    QWidget *const from = focus == nullptr ? this : isInView ? m_view : focus;
    QWidget *candidate = from;
    do {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (candidate == m_view && !next && m_view->isVisible() && m_view->moveFocus(false)) {
            return true;
        }
    } while (candidate != from &&
             ((candidate != m_view && m_view->isAncestorOf(candidate)) || !isTabStop(*candidate, *this)));
    candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return candidate != from;
}

void MainWindow::remember() const
{
    QSettings settings;
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(SplitterKey, m_splitter->saveState());
    settings.setValue(InspectorKey, m_inspectorAction->isChecked());
    settings.setValue(SpeechKey, m_speechAction->isChecked());
}

void MainWindow::restore()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(GeometryKey).toByteArray())) {
        resize(FirstSize);
    }
    if (!m_splitter->restoreState(settings.value(SplitterKey).toByteArray())) {
        m_splitter->setSizes({FirstSize.width() * 3 / 5, FirstSize.width() * 2 / 5});
    }
    m_inspectorAction->setChecked(settings.value(InspectorKey, true).toBool());
    m_inspector->setVisible(m_inspectorAction->isChecked());
    m_speechAction->setChecked(m_speechAction->isEnabled() && settings.value(SpeechKey, false).toBool());
}

} // namespace devhost
