// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactservicetest.h"

#include <QTest>

namespace {

/// A handler that acts but cannot reply.
class MuteHandler : public IBusinessIntent
{
public:
    int action(const CloudIntent & /*intent*/) override { return 0; }
};

} // namespace

void ContactServiceTest::init()
{
    m_factory.reset(new DynamicRegisterIntentFactory);
    m_factory->registerIntent(QStringLiteral("SCRIPTED"),
                              [this]() -> IBusinessIntent * { return m_prepared.takeFirst(); });
    m_factory->registerIntent(QStringLiteral("MUTE"), []() -> IBusinessIntent * { return new MuteHandler; });
    m_service.reset(new ContactService(QStringLiteral("contact"), m_factory.get(), 10));
    m_log.reset(new LogCapture(LogCapture::Unexpected::Passes));
}

void ContactServiceTest::cleanup()
{
    m_service.reset();
    m_log.reset();
    QVERIFY(m_prepared.isEmpty());
    // The service deliberately leaks former handlers.
    for (const QPointer<ScriptedHandler> &handler : qAsConst(m_all)) {
        delete handler.data();
    }
    m_all.clear();
}

ScriptedHandler *ContactServiceTest::prepareHandler()
{
    auto *handler = new ScriptedHandler;
    m_prepared.append(handler);
    m_all.append(handler);
    return handler;
}

void ContactServiceTest::compareReply(const Reply *reply, int code, const char *shown, const char *spoken,
                                      int type)
{
    QVERIFY(reply != nullptr);
    QCOMPARE(reply->code, QVariant(code));
    QCOMPARE(reply->displayText, QVariant(QString::fromUtf8(shown)));
    QCOMPARE(reply->speechText, QVariant(QString::fromUtf8(spoken)));
    QCOMPARE(reply->type, type);
    QVERIFY(reply->widget == nullptr);
    QVERIFY(reply->endOfSession);
}
