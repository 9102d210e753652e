// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "linemode.h"
#include "turnrunner.h"

namespace devhost {

/**
 * Puts one semantic JSON per line of input to the plugin, each as a dialogue of its own, and writes one JSON
 * reply per line. A line that cannot be answered gets a message with its number on the error stream and no
 * line of output; processing continues. Empty lines are skipped. Unsolicited replies go to the error stream,
 * with the number of the line before them.
 */
class Batch final : public LineMode
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

private:
    void next() override;
    /// Returns false and the reason when the line is no JSON object.
    static bool isSemantic(const QString &line, QString &reason);
    void answer(const TurnResult &result);
    QByteArray describe(const Reply &reply, const QString &pictureName);

    const Streams m_streams;
    TurnRunner m_runner;
};

} // namespace devhost
