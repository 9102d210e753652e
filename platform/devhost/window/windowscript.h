// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "linereader.h"

#include <QObject>

namespace devhost {

class Conversation;
class MainWindow;

/**
 * Plays a conversation in the window: one sentence or semantic JSON per line; skips empty lines and those
 * that start with "#"; "@press TEXT" clicks the last button with that text. Given a folder, it saves a
 * picture of the window after each line.
 */
class WindowScript final : public QObject
{
    Q_OBJECT

public:
    /// The arguments must outlive the script. @p folder may be empty.
    WindowScript(MainWindow &window, Conversation &conversation, std::istream &input, const QString &folder,
                 QObject *parent = nullptr);
    void start();

    /// Whether the script would say @p line, rather than skip it or click.
    static bool isSaid(const QString &line);

Q_SIGNALS:
    /// False when a picture could not be written or a button was not found.
    void finished(bool isFine);

private:
    void next();
    void press(const QString &text);
    /// Continues once the window has shown the outcome of the line.
    void settle();

    MainWindow &m_window;
    Conversation &m_conversation;
    LineReader m_reader;
    const QString m_folder;
    int m_pictures = 0;
    bool m_isFine = true;
};

} // namespace devhost
