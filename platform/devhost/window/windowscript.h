// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "linereader.h"

#include <QObject>

namespace devhost {

class Conversation;
class MainWindow;

/**
 * Plays a conversation in the window: a sentence or semantic JSON per line, "#" and empty lines left out,
 * "@press TEXT" for a click on the last button with that text. With a folder it pictures the window after
 * each line.
 */
class WindowScript final : public QObject
{
    Q_OBJECT

public:
    /// What is given must outlive the script. @p folder may be empty.
    WindowScript(MainWindow &window, Conversation &conversation, std::istream &input, const QString &folder,
                 QObject *parent = nullptr);
    void start();

    /// Whether a script says @p line, rather than leaving it out or clicking.
    static bool isSaid(const QString &line);

Q_SIGNALS:
    /// False when a picture could not be written or a button was not there.
    void finished(bool isFine);

private:
    void next();
    void press(const QString &text);
    /// Goes on when the window has shown what came of the line.
    void settle();

    MainWindow &m_window;
    Conversation &m_conversation;
    LineReader m_reader;
    const QString m_folder;
    int m_pictures = 0;
    bool m_isFine = true;
};

} // namespace devhost
