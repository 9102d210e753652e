// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "semantic/semantic.h"

#include <speakmate/iservice.h>

class IBusinessIntent;
class IIntentFactory;

// QObject is a base twice because the host's interface derives from it too, and both are part of the binary
// layout. Convert a service to QObject only through IService.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winaccessible-base"

/**
 * The plugin's only service. Runs the handler for the first intent of an utterance and turns the outcome into
 * the reply. Owned by ContactPlugin. Used by one thread at a time: service() on the host's worker thread,
 * getServiceReply() on the GUI thread, where it may build a card.
 */
class ContactService : public QObject, public IService
{
public:
    /// @p factory is not owned. If it is null, service() does nothing.
    ContactService(const QString &name, IIntentFactory *factory, ServicePriority priority);
    ~ContactService() override;

    QString serviceName() override;
    ServicePriority servicePriority() override;
    bool canHandle(const QString &name) override;
    IRet service(const QString &semantic) override;
    Reply *getServiceReply() override;

    /// Creates the handler for @p intent and runs it. Returns a result code.
    virtual int handleIntent(const CloudIntent &intent);

private:
    Q_DISABLE_COPY(ContactService)

    int handleIntentSafely(const CloudIntent &intent);
    void setTextReply(int code, const QString &displayText, const QString &speechText);
    bool dialogueIsOpen() const;
    void takeHandlersReply();

    QString m_name;
    IIntentFactory *m_factory;
    Reply m_reply;
    ServicePriority m_priority;
    CloudIntent m_intent;
    IBusinessIntent *m_handler = nullptr; ///< owned
    QString m_openSessionSemantic;        ///< the last turn that kept the dialogue open; never cleared
};

#pragma GCC diagnostic pop
