// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "abilitycall.h"
#include "logrecord.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace devhost {

/// Everything known about one turn of the conversation but its cards, with secrets masked.
struct Turn
{
    enum State { Queued, Running, Done };

    int id = 0; ///< counts from 1
    State state = Queued;
    bool isSentence = true; ///< not semantic JSON, sent as it was
    QString said;           ///< as it is shown
    QString semantic;       ///< as the inspector shows it
    int status = 0;         ///< of service()
    int code = 0;
    QString display;
    QString speech;
    int type = 0;
    bool endOfSession = true;
    QString cardClass; ///< empty without a card
    QString failure;   ///< why there is no reply; empty when there is one
    QVector<AbilityCall> calls;
    QVector<LogRecord> logs;
    QStringList performedAfterAll; ///< actions of former turns; said in this turn's answer

    // Milliseconds.
    double understandingMsecs = 0;
    double serviceMsecs = 0;
    double replyMsecs = 0;

    /// Total time of the turn's requests; the rest of serviceMsecs is the plugin's own.
    double requestMsecs() const;
};

} // namespace devhost
