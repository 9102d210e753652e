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
 * A window with a card in it, as a host shows it, beside an ability library that says OK to everything. It is
 * a dialog, because that is where buttons are keenest on the Return key. Records what the card answers.
 */
class CardHost : public QDialog
{
public:
    /// The card is empty without @p build.
    explicit CardHost(void (*build)(ConferenceMsgStaticWidget &card) = nullptr);
    ~CardHost() override;

    /// Null once the card is deleted.
    ConferenceMsgStaticWidget *card() const { return m_card; }
    /// Shows the window and waits until the keyboard belongs to it.
    bool activate();

    /// What the card has answered so far.
    QVector<Reply> replies() const { return m_replies; }
    QStringList replyTexts() const;

    LogCapture &log() { return m_log; }
    /// Every request for @p action is answered with this outcome word from now on.
    static void answer(const QString &action, const QString &outcome);
    /// Every request for @p action fails as a call.
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
