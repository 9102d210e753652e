// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "semantic/semantic.h"

#include <speakmate/iservice.h>

class IBusinessIntent;
class IIntentFactory;

// QObject is twice among the bases because the host's interface is one too and the binary layout has both;
// nobody converts a service to QObject but through IService.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Winaccessible-base"

/**
 * The plugin's one service: runs the handler of an utterance's first intent and turns the outcome into the
 * reply. Made and deleted by ContactPlugin. Like every service it is used from one thread at a time:
 * service() on the host's worker, getServiceReply() on the GUI thread, because it may build a card.
 */
class ContactService : public QObject, public IService
{
public:
    /// @p factory is not owned and may be null: then service() can do nothing.
    ContactService(const QString &name, IIntentFactory *factory, ServicePriority priority);
    ~ContactService() override;

    QString serviceName() override;
    ServicePriority servicePriority() override;
    bool canHandle(const QString &name) override;
    IRet service(const QString &semantic) override;
    Reply *getServiceReply() override;

    /// Makes the handler of @p intent and lets it act. A result code.
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
    QString m_openSessionSemantic;        ///< of the last turn that kept the dialogue open; never cleared
};

#pragma GCC diagnostic pop
