// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fakeprocesstable.h"
#include "logcapture.h"
#include "scriptedability.h"

#include <speakmate/reply.h>

#include <QDialog>
#include <QPointer>
#include <QVector>

class ConferenceMsgStaticWidget;

/**
 * A window that shows a card as a host does, with an ability library that answers OK to everything. It is a
 * dialog, because auto-default buttons there respond to the Return key. Records the card's replies.
 */
class CardHost : public QDialog
{
public:
    /// Without @p build the card stays empty.
    explicit CardHost(void (*build)(ConferenceMsgStaticWidget &card) = nullptr);
    ~CardHost() override;

    /// Null once the card is deleted.
    ConferenceMsgStaticWidget *card() const { return m_card; }
    /// Shows the window and waits until it is active.
    bool activate();

    /// The card's replies so far.
    QVector<Reply> replies() const { return m_replies; }
    QStringList replyTexts() const;

    LogCapture &log() { return m_log; }
    /// Answers every request for @p action with the word @p outcome from now on.
    static void answer(const QString &action, const QString &outcome);
    /// Makes every call for @p action fail with @p code from now on.
    static void fail(const QString &action, int code);
    static QStringList actions() { return ScriptedAbility::instance().actions(); }
    /// The parameters of the only request so far.
    static QString parameters() { return ScriptedAbility::instance().onlyRequest().parameters; }

private:
    LogCapture m_log;
    FakeProcessTable m_processes;
    QPointer<ConferenceMsgStaticWidget> m_card;
    QVector<Reply> m_replies;
};
