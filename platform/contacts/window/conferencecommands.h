// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "window/conferenceoptions.h"

#include <QAction>
#include <QObject>

class Administration;

/**
 * What one can do with the conference that is chosen. Each action is enabled only while it can succeed: for
 * the host, for somebody who is logged in, at the right time. On the GUI thread.
 */
class ConferenceCommands : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it. Dialogs belong to @p window, which owns it, too.
    ConferenceCommands(ContactsBook &book, Administration &administration, QWidget *window);

    void choose(const std::optional<Conference> &conference);
    /// What was typed for joining.
    void setPasscode(const QString &passcode);
    /// Looks at the clock and the database anew.
    void refresh();
    bool isPasscodeNeeded() const { return m_options.needsPasscode; }
    bool isLoggedIn() const { return m_viewer.isLoggedIn(); }

    QAction *open() const { return m_open; }
    QAction *create() const { return m_create; }
    QAction *join() const { return m_join; }
    QAction *start() const { return m_start; }
    QAction *end() const { return m_end; }
    QAction *cancel() const { return m_cancel; }
    QAction *copyNumber() const { return m_copyNumber; }
    QAction *exportCalendar() const { return m_export; }

Q_SIGNALS:
    /// Something to tell the user.
    void told(const QString &text);
    /// The options are others than before, maybe.
    void refreshed();
    /// Somebody tried to join: the passcode has been used.
    void joinTried();
    /// A new conference with that number is there.
    void made(const QString &dialNumber);

private:
    QAction *add(const char *name, const QString &text, const QKeySequence &shortcut = {});
    void perform(const QString &action, const QJsonObject &parameters);
    void showDetail();
    void askForConference();
    void joinChosen();
    void startChosen();
    void endChosen();
    void setState(bool isPossible, const QString &state, const QString &done);
    /// Reads it anew: the tables follow a change a moment later.
    void readChosen();
    void copyNumberOfChosen();
    void exportChosen();
    void askAndCancel();

    ContactsBook &m_book;
    Administration &m_administration;
    QWidget *m_window; ///< the parent
    std::optional<Conference> m_chosen;
    Viewer m_viewer;
    ConferenceOptions m_options;
    QString m_passcode;
    QAction *m_open; ///< children, all of them
    QAction *m_create;
    QAction *m_join;
    QAction *m_start;
    QAction *m_end;
    QAction *m_cancel;
    QAction *m_copyNumber;
    QAction *m_export;
};
