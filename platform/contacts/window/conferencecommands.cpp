// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/conferencecommands.h"

#include "window/bookaction.h"
#include "window/calendardialog.h"
#include "window/conferencedetail.h"
#include "window/conferencedialog.h"
#include "window/question.h"

#include "actionnames.h"
#include "book/administration.h"
#include "book/contactsbook.h"
#include "core/jsonkeys.h"
#include "core/outcometext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWidget>

ConferenceCommands::ConferenceCommands(ContactsBook &book, Administration &administration, QWidget *window)
    : QObject(window)
    , m_book(book)
    , m_administration(administration)
    , m_window(window)
    , m_open(add("open", tr("Deta&ils…")))
    , m_create(add("create", tr("&New Conference…")))
    , m_join(add("join", tr("&Join")))
    , m_start(add("start", tr("&Start")))
    , m_end(add("end", tr("En&d")))
    , m_cancel(add("delete", tr("Cancel Con&ference")))
    , m_copyNumber(add("copyNumber", tr("&Copy Number"), QKeySequence::Copy))
    , m_export(add("export", tr("E&xport Calendar File…"), QKeySequence(QStringLiteral("Ctrl+E"))))
{
    const auto run = [this](QAction *action, auto slot) {
        // QAction::trigger() does not look whether the action is enabled.
        connect(action, &QAction::triggered, this, [this, action, slot] {
            if (action->isEnabled()) {
                (this->*slot)();
            }
        });
    };
    run(m_open, &ConferenceCommands::showDetail);
    run(m_create, &ConferenceCommands::askForConference);
    run(m_join, &ConferenceCommands::joinChosen);
    run(m_start, &ConferenceCommands::startChosen);
    run(m_end, &ConferenceCommands::endChosen);
    run(m_cancel, &ConferenceCommands::askAndCancel);
    run(m_copyNumber, &ConferenceCommands::copyNumberOfChosen);
    run(m_export, &ConferenceCommands::exportChosen);
    connect(&m_book, &ContactsBook::changedLately, this, &ConferenceCommands::refresh);
    refresh();
}

QAction *ConferenceCommands::add(const char *name, const QString &text, const QKeySequence &shortcut)
{
    auto *action = new QAction(text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut); // Ctrl+C in a field is the field's
    return action;
}

void ConferenceCommands::choose(const std::optional<Conference> &conference)
{
    m_chosen = conference;
    refresh();
}

void ConferenceCommands::setPasscode(const QString &passcode)
{
    m_passcode = passcode;
    m_join->setEnabled(m_options.join && !(m_options.needsPasscode && m_passcode.isEmpty()));
}

void ConferenceCommands::refresh()
{
    m_viewer = {};
    m_options = {};
    try {
        m_viewer = Viewer::of(m_book);
        if (m_chosen) {
            const auto seat = m_book.conferences().attendance(m_chosen->id, m_viewer.userId);
            m_options = ConferenceOptions::of(*m_chosen, seat, m_viewer, m_book.nowMsecs());
        }
    } catch (const std::exception &error) {
        qWarning("Cannot tell what can be done with the conference: %s", error.what());
        m_book.noteFailure(error);
    }
    m_open->setEnabled(m_chosen.has_value());
    m_create->setEnabled(m_viewer.isLoggedIn());
    m_start->setEnabled(m_options.start);
    m_end->setEnabled(m_options.end);
    m_cancel->setEnabled(m_options.cancel);
    m_copyNumber->setEnabled(m_chosen.has_value());
    m_export->setEnabled(m_chosen.has_value());
    setPasscode(m_passcode);
    Q_EMIT refreshed();
}

void ConferenceCommands::perform(const QString &action, const QJsonObject &parameters)
{
    Q_EMIT told(outcomeText(performAction(m_book, action, parameters)));
}

void ConferenceCommands::showDetail()
{
    readChosen();
    if (!m_chosen) {
        Q_EMIT told(tr("The conference no longer exists."));
        return;
    }
    auto *detail = new ConferenceDetail(m_book, *m_chosen, m_window);
    connect(detail, &ConferenceDetail::told, this, &ConferenceCommands::told);
    detail->open();
}

void ConferenceCommands::askForConference()
{
    auto *dialog = new ConferenceDialog(m_book, m_window);
    connect(dialog, &ConferenceDialog::told, this, &ConferenceCommands::told);
    connect(dialog, &ConferenceDialog::made, this, &ConferenceCommands::made);
    dialog->open();
}

void ConferenceCommands::joinChosen()
{
    QJsonObject parameters{{JsonKey::ConferenceId, m_chosen->dialNumber}};
    if (m_options.needsPasscode) {
        parameters.insert(JsonKey::Password, m_passcode);
    }
    perform(ActionName::JoinConference, parameters);
    Q_EMIT joinTried();
}

void ConferenceCommands::startChosen()
{
    readChosen();
    setState(m_options.start, QStringLiteral("running"), tr("The conference has started."));
}

void ConferenceCommands::endChosen()
{
    readChosen();
    setState(m_options.end, QStringLiteral("ended"), tr("The conference has ended."));
}

void ConferenceCommands::setState(bool isPossible, const QString &state, const QString &done)
{
    const bool isDone = isPossible && m_administration.SetConferenceState(m_chosen->dialNumber, state);
    Q_EMIT told(isDone ? done : tr("The conference has changed. Please look at its state again."));
}

void ConferenceCommands::readChosen()
{
    try {
        m_chosen = m_book.conferences().byId(m_chosen->id, m_viewer.userId);
    } catch (const std::exception &error) {
        qWarning("A conference cannot be read: %s", error.what());
        m_book.noteFailure(error);
        m_chosen.reset();
    }
    refresh();
}

void ConferenceCommands::copyNumberOfChosen()
{
    QGuiApplication::clipboard()->setText(m_chosen->dialNumber);
    Q_EMIT told(tr("The conference number was copied."));
}

void ConferenceCommands::exportChosen()
{
    askForCalendarFile(m_window, m_book, m_chosen->dialNumber,
                       [this](const QString &text) { Q_EMIT told(text); });
}

void ConferenceCommands::askAndCancel()
{
    // What is asked about, whatever is chosen when the answer comes.
    const QString conferenceId = m_chosen->confId;
    askFirst(m_window,
             tr("Cancel conference %1? Those who are invited will no longer see it either.")
                 .arg(m_chosen->dialNumber),
             tr("Cancel Conference"), [this, conferenceId] {
                 perform(ActionName::DeleteConference, {{JsonKey::ConferenceId, conferenceId}});
             });
}
