// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "contactservice.h"

#include "dynamicregisterintentfactory.h"
#include "ireplyableintent.h"
#include "logcapture.h"
#include "semantictext.h"
#include "sourcerecords.h"

#include <QObject>
#include <QPointer>
#include <QVector>

#include <memory>
#include <stdexcept>

constexpr char SourceName[] = "plugin/contactservice.cpp";

inline QString serviceSignature()
{
    return QStringLiteral("virtual IRet ContactService::service(const QString&)");
}

inline QString handleIntentSignature()
{
    return QStringLiteral("virtual int ContactService::handleIntent(const CloudIntent&)");
}

/// A handler that a test scripts and observes.
class ScriptedHandler : public QObject, public IReplyableIntent
{
public:
    int action(const CloudIntent &intent) override
    {
        ++actions;
        actedOn = intent.name;
        if (throws) {
            throw std::runtime_error("out of order");
        }
        return result;
    }

    int handleReply(int code, const CloudIntent &intent) override
    {
        ++replies;
        repliedCode = code;
        repliedTo = intent.name;
        if (throwsInReply) {
            throw std::runtime_error("out of paper");
        }
        m_reply = nextReply;
        return code;
    }

    int result = 0;
    bool throws = false;
    bool throwsInReply = false;
    Reply nextReply{0, QStringLiteral("好的。"), 3};
    int actions = 0;
    int replies = 0;
    int repliedCode = 0;
    QString actedOn;
    QString repliedTo;
};

/// Base class of tests: a service with the intents "SCRIPTED", which takes a new ScriptedHandler each time,
/// and "MUTE".
class ContactServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// Fails unless @p reply has these values, no card, and ends the session.
    static void compareReply(const Reply *reply, int code, const char *shown, const char *spoken, int type);
    /// Prepares the next handler that the factory hands out; the service owns it from then on.
    ScriptedHandler *prepareHandler();

    std::unique_ptr<DynamicRegisterIntentFactory> m_factory;
    std::unique_ptr<ContactService> m_service;
    std::unique_ptr<LogCapture> m_log;

private:
    QVector<ScriptedHandler *> m_prepared;
    QVector<QPointer<ScriptedHandler>> m_all;
};
