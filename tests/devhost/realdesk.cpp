// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "realdesk.h"

#include "bubble.h"

#include <QDBusConnection>
#include <QDBusMessage>

using namespace devhost;

namespace {

/// The plugin's configuration file, redirected so that the test doesn't depend on an installed one.
class Configuration
{
public:
    Configuration()
    {
        QFile file(m_folder.filePath(QStringLiteral("plugin.json")));
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("cannot write the plugin's configuration");
        }
        file.write("{\"Contact\":{\"TimeOut\":\"5000\",\"MaxTimeOut\":\"15000\"}}");
        file.close();
        m_redirected = std::make_unique<RedirectedFile>(
            "/etc/xdg/kelvane-speakmate-plugins/contact-plugin.json", file.fileName().toLocal8Bit());
    }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<RedirectedFile> m_redirected;
};

/// Returns the lowest visible one of @p widgets.
template <typename Widget>
Widget *lowest(const QList<Widget *> &widgets)
{
    Widget *last = nullptr;
    for (Widget *widget : widgets) {
        if (widget->isVisible() && (last == nullptr || widget->y() > last->y())) {
            last = widget;
        }
    }
    return last;
}

} // namespace

RealDesk::RealDesk() : m_conversation(host(), m_logs), m_window(m_conversation, m_appearance)
{
    m_window.resize(1100, 900);
    m_window.show();
}

PluginHost &RealDesk::host()
{
    static std::unique_ptr<Configuration> configuration;
    static std::unique_ptr<PluginHost> host;
    if (host == nullptr) {
        // The plugin's requests are read from its log.
        QLoggingCategory::setFilterRules(AbilityCall::category() + QStringLiteral(".debug=true"));
        configuration = std::make_unique<Configuration>();
        host = std::make_unique<PluginHost>();
        if (!host->load(QStringLiteral(CONTACT_PLUGIN))) {
            qFatal("%s", qUtf8Printable(host->problem().toText()));
        }
        // Unloads the plugin before QCoreApplication goes: the plugin's objects need it.
        qAddPostRoutine([] { host.reset(); });
    }
    return *host;
}

void RealDesk::say(const QString &text)
{
    m_window.input()->setText(text);
    QTest::keyClick(m_window.input(), Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!m_conversation.isBusy(), 20000);
}

QString RealDesk::lastText() const
{
    const Bubble *last = lowest(m_window.view()->findChildren<Bubble *>());
    return last == nullptr ? QString() : last->text();
}

QWidget *RealDesk::lastCard() const
{
    QList<QWidget *> cards;
    const auto widgets = m_window.view()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->inherits("ConferenceMsgStaticWidget")) {
            cards.append(widget);
        }
    }
    return lowest(cards);
}

bool RealDesk::loadSample()
{
    const QDBusMessage answer = QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        QStringLiteral("com.kelvane.meetlynx"), QStringLiteral("/com/kelvane/meetlynx/admin"),
        QStringLiteral("com.kelvane.meetlynx.Admin1"), QStringLiteral("LoadSample")));
    return answer.type() == QDBusMessage::ReplyMessage && answer.arguments().value(0).toBool();
}
