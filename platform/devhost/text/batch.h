// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "linereader.h"
#include "screenshots.h"
#include "turnrunner.h"

#include <QObject>

#include <ostream>

namespace devhost {

/**
 * Puts one semantic JSON per line of input to the plugin, each as a dialogue of its own, and writes one JSON
 * reply per line. A line that cannot be answered gets a message with its number on the error stream and no
 * line of output; the rest goes on. Empty lines are skipped. Replies that come by themselves go to the error
 * stream, with the number of the line before them.
 *
 * Lives on the GUI thread; waits there for input, which is for a program without a window.
 */
class Batch final : public QObject
{
    Q_OBJECT

public:
    struct Streams
    {
        std::istream &input;
        std::ostream &output;
        std::ostream &errors;
    };

    /// @p host and the streams must outlive the batch.
    Batch(PluginHost &host, const Streams &streams, const Screenshots &screenshots,
          QObject *parent = nullptr);
    void start();

Q_SIGNALS:
    void finished(devhost::ExitStatus status);

private:
    void next();
    /// False with the reason when the line is no JSON object.
    static bool isSemantic(const QString &line, QString &reason);
    void answer(const TurnResult &result);
    QByteArray describe(const Reply &reply, const QString &pictureName);
    void complain(const QString &message);

    const Streams m_streams;
    const Screenshots m_screenshots;
    LineReader m_reader;
    TurnRunner m_runner;
    ExitStatus m_status = EverythingAnswered;
    int m_laterReplies = 0;
};

} // namespace devhost
