// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardhost.h"

#include "conferencemsgstaticwidget.h"

#include <QTest>
#include <QVBoxLayout>

namespace {
constexpr int OneInstance = 1;
constexpr int HostWidth = 400;
} // namespace

CardHost::CardHost(void (*build)(ConferenceMsgStaticWidget &))
    : m_processes(OneInstance)
    , m_card(new ConferenceMsgStaticWidget)
{
    ScriptedAbility::instance().reset();
    for (const char *action : {"Create Conference", "Invite Members", "Update Conference",
                               "Delete Conference", "Open Conference List"}) {
        answer(QString::fromLatin1(action), QStringLiteral("OK"));
    }
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_card);
    setFixedWidth(HostWidth);
    connect(m_card.data(), &ConferenceMsgStaticWidget::signalSendShowMessgae, this,
            [this](const Reply &reply) { m_replies.append(reply); });
    if (build != nullptr) {
        build(*m_card);
    }
}

CardHost::~CardHost() = default;

bool CardHost::activate()
{
    show();
    activateWindow();
    return QTest::qWaitForWindowActive(this);
}

QStringList CardHost::replyTexts() const
{
    QStringList texts;
    for (const Reply &reply : m_replies) {
        texts.append(reply.displayText.toString());
    }
    return texts;
}

void CardHost::answer(const QString &action, const QString &outcome)
{
    ScriptedAbility::instance().setAnswer(action, 0, QStringLiteral(R"({"ret":"%1"})").arg(outcome));
}

void CardHost::fail(const QString &action, int code)
{
    ScriptedAbility::instance().setAnswer(action, code, QString());
}
