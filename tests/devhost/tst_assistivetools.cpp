// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "conversationview.h"
#include "fakeprocesstable.h"
#include "scriptedability.h"

#include <QtDBus>
#include <QtTest>
#include <QtWidgets>

#include <cstdlib>

using namespace CardSamples;
using devhost::ConversationView;

namespace {

const QString AccessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");
const QString ActionInterface = QStringLiteral("org.a11y.atspi.Action");

constexpr int NotConnected = 75;

struct Node
{
    QString service;
    QString path;
};

/// Returns the registry's root, whose children are the programs.
Node registry()
{
    return {QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("/org/a11y/atspi/accessible/root")};
}

/// Calls @p read for each structure of the list in @p answer.
template <typename Read>
void readEach(const QDBusMessage &answer, Read read)
{
    const auto list = answer.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        list.beginStructure();
        read(list);
        list.endStructure();
    }
    list.endArray();
}

} // namespace

/**
 * The conversation as a screen reader sees it: over the accessibility bus, on a display. This program is also
 * the reader, on a second connection; it never waits without running the event loop.
 */
class TestAssistiveTools : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void childrenChanged(const QDBusMessage &message) { m_changes.append(message); }

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void conversationIsReadInItsOrder();
    void cardCanBePressed();
    void separatorsAndPeopleAppearAsWhatTheyAre();
    void repliesAreAnnounced();

private:
    QDBusMessage call(const Node &node, const QString &interface, const QString &method,
                      const QVariantList &arguments = {}) const;
    QVector<Node> children(const Node &node) const;
    QString name(const Node &node) const;
    QString role(const Node &node) const;
    QStringList actions(const Node &node) const;
    /// Returns all descendants of @p node, from top to bottom.
    QVector<Node> all(const Node &node) const;
    QVector<Node> allWithRole(const Node &node, const QString &role) const;
    Node conversation() const;

    QDBusConnection m_bus{QString()};
    FakeProcessTable m_processes{QByteArray()};
    std::unique_ptr<ConversationView> m_view;
    QVector<QDBusMessage> m_changes;
};

QDBusMessage TestAssistiveTools::call(const Node &node, const QString &interface, const QString &method,
                                      const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCallWatcher watcher(m_bus.asyncCall(message, 10000));
    QEventLoop loop;
    connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    loop.exec();
    const QDBusMessage answer = watcher.reply();
    if (answer.type() != QDBusMessage::ReplyMessage) {
        qWarning("%s %s: %s", qPrintable(node.path), qPrintable(method), qPrintable(answer.errorMessage()));
    }
    return answer;
}

QVector<Node> TestAssistiveTools::children(const Node &node) const
{
    QVector<Node> nodes;
    readEach(call(node, AccessibleInterface, QStringLiteral("GetChildren")),
             [&nodes](const QDBusArgument &child) {
                 QString service;
                 QDBusObjectPath path;
                 child >> service >> path;
                 nodes.append({service, path.path()});
             });
    return nodes;
}

QString TestAssistiveTools::name(const Node &node) const
{
    const QDBusMessage answer = call(node, QStringLiteral("org.freedesktop.DBus.Properties"),
                                     QStringLiteral("Get"), {AccessibleInterface, QStringLiteral("Name")});
    return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
}

QString TestAssistiveTools::role(const Node &node) const
{
    return call(node, AccessibleInterface, QStringLiteral("GetRoleName")).arguments().value(0).toString();
}

QStringList TestAssistiveTools::actions(const Node &node) const
{
    QStringList names;
    readEach(call(node, ActionInterface, QStringLiteral("GetActions")),
             [&names](const QDBusArgument &action) {
                 QString name;
                 QString description;
                 QString keys;
                 action >> name >> description >> keys;
                 names.append(name);
             });
    return names;
}

QVector<Node> TestAssistiveTools::all(const Node &node) const
{
    QVector<Node> nodes{node};
    const auto found = children(node);
    for (const Node &child : found) {
        nodes += all(child);
    }
    return nodes;
}

QVector<Node> TestAssistiveTools::allWithRole(const Node &node, const QString &role) const
{
    QVector<Node> found;
    const auto nodes = all(node);
    for (const Node &candidate : nodes) {
        if (this->role(candidate) == role) {
            found.append(candidate);
        }
    }
    return found;
}

Node TestAssistiveTools::conversation() const
{
    const auto found = children(registry());
    for (const Node &program : found) {
        const QVector<Node> lists = allWithRole(program, QStringLiteral("list"));
        if (!lists.isEmpty()) {
            return lists.first();
        }
    }
    return {};
}

void TestAssistiveTools::initTestCase()
{
    // The first query makes Qt connect, later and from the event loop. Anything shown before that is lost.
    QAccessible::isActive();
    QTRY_VERIFY(QDBusConnection(QStringLiteral("a11y")).isConnected());
    const QString address = qEnvironmentVariable("TEST_ASSISTIVE_BUS");
    QVERIFY(!address.isEmpty());
    m_bus = QDBusConnection::connectToBus(address, QStringLiteral("reader"));
    QVERIFY(m_bus.isConnected());
    if (!QTest::qWaitFor([this] { return !children(registry()).isEmpty(); }, 400)) {
        std::_Exit(NotConnected); // see with-assistive-bus.sh
    }
    QVERIFY(QAccessible::isActive());

    m_view = std::make_unique<ConversationView>();
    m_view->resize(600, 500);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->addSaid(1, QStringLiteral("查询今天的会议"), false);
    auto *found = new ConferenceMsgStaticWidget;
    found->singleInit({conference()});
    m_view->addReply(1, QStringLiteral("为您找到一个会议"), found);
    m_view->addSaid(2, QStringLiteral("叫上张三"), false);
    auto *picker = new ConferenceMsgStaticWidget;
    picker->createMultiplePerson(createdDetail(), true);
    m_view->addReply(2, QStringLiteral("请选择"), picker);
    QTRY_VERIFY(!conversation().path.isEmpty());
}

void TestAssistiveTools::cleanupTestCase()
{
    m_view.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("reader"));
}

void TestAssistiveTools::conversationIsReadInItsOrder()
{
    const Node list = conversation();
    QCOMPARE(name(list), QStringLiteral("对话"));
    QStringList read;
    const auto found = children(list);
    for (const Node &child : found) {
        read << role(child) + QLatin1Char(' ') + name(child);
    }
    QCOMPARE(read.size(), 6);
    QCOMPARE(read.at(0), QStringLiteral("list item 查询今天的会议"));
    QCOMPARE(read.at(1), QStringLiteral("list item 为您找到一个会议"));
    QVERIFY2(read.at(2).endsWith(QStringLiteral(" 联系人")), qUtf8Printable(read.at(2)));
    QCOMPARE(read.at(3), QStringLiteral("list item 叫上张三"));
    QCOMPARE(read.at(4), QStringLiteral("list item 请选择"));
    QVERIFY(read.at(5).endsWith(QStringLiteral(" 联系人")));
}

void TestAssistiveTools::cardCanBePressed()
{
    ScriptedAbility::instance().reset();
    const Node card = children(conversation()).at(2);
    const QStringList offered = actions(card);
    const int press = offered.indexOf(QStringLiteral("Press"));
    QVERIFY2(press >= 0, qPrintable(offered.join(QLatin1Char(' '))));
    call(card, ActionInterface, QStringLiteral("DoAction"), {press});
    QTRY_COMPARE(ScriptedAbility::instance().actions(), QStringList(QStringLiteral("Open Conference List")));
}

void TestAssistiveTools::separatorsAndPeopleAppearAsWhatTheyAre()
{
    const QVector<Node> shown = children(conversation());
    QCOMPARE(allWithRole(shown.at(2), QStringLiteral("separator")).size(), 1);
    QVERIFY(allWithRole(shown.at(2), QStringLiteral("push button")).isEmpty());
    // Each of the five people appears once.
    QStringList people;
    const auto boxes = allWithRole(shown.at(5), QStringLiteral("check box"));
    for (const Node &box : boxes) {
        people << name(box);
    }
    QCOMPARE(people.size(), 5);
    QCOMPARE(allWithRole(shown.at(5), QStringLiteral("push button")).size(), 1);
}

void TestAssistiveTools::repliesAreAnnounced()
{
    const Node list = conversation();
    const Node listeners{registry().service, QStringLiteral("/org/a11y/atspi/registry")};
    QVERIFY(m_bus.connect(QString(), list.path, QStringLiteral("org.a11y.atspi.Event.Object"),
                          QStringLiteral("ChildrenChanged"), this, SLOT(childrenChanged(QDBusMessage))));
    call(listeners, QStringLiteral("org.a11y.atspi.Registry"), QStringLiteral("RegisterEvent"),
         {QStringLiteral("object:children-changed")});
    // The program learns of its listeners asynchronously.
    int turn = 2;
    QString text;
    const auto reply = [&] {
        text = QStringLiteral("第 %1 个回答").arg(++turn);
        m_view->addReply(turn, text, nullptr);
        return !m_changes.isEmpty();
    };
    QTRY_VERIFY_WITH_TIMEOUT(reply(), 10000);
    QCOMPARE(m_changes.last().arguments().value(0).toString(), QStringLiteral("add"));
    const QVector<Node> shown = children(list);
    QCOMPARE(name(shown.last()), text);
}

QTEST_MAIN(TestAssistiveTools)
#include "tst_assistivetools.moc"
