// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationscript.h"
#include "plugindesk.h"
#include "windowscript.h"

#include <QtTest>

#include <memory>
#include <sstream>

using namespace devhost;

namespace {

/// Plays @p script to its end. Returns false if a line failed.
bool plays(const QString &script, Desk &desk)
{
    std::istringstream input(script.toStdString());
    WindowScript player(desk.window, desk.conversation, input, QString());
    QSignalSpy finished(&player, &WindowScript::finished);
    player.start();
    return (!finished.isEmpty() || finished.wait()) && finished.first().first().toBool();
}

} // namespace

/// Saving a conversation as a script, and playing it.
class TestWindowScript : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void conversationIsSavedAsAScript();
    void scriptHoldsNothingThatWaits();
    void scriptPlaysSentencesAsSentences();
};

void TestWindowScript::conversationIsSavedAsAScript()
{
    auto desk = std::make_unique<PluginDesk>();
    desk->type(QStringLiteral("第一句"));
    desk->type(semantic("ECHO", QStringLiteral("原样")));
    desk->type(QStringLiteral("加入会议号902118340，密码是432187"));
    QTRY_VERIFY(desk->isIdle());
    const QString script = scriptOf(desk->conversation);
    const QStringList lines = script.trimmed().split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), QStringLiteral("第一句"));
    QCOMPARE(QJsonDocument::fromJson(lines.at(1).toUtf8()),
             QJsonDocument::fromJson(semantic("ECHO", QStringLiteral("原样")).toUtf8()));
    QVERIFY2(!script.contains(QStringLiteral("432187")), qUtf8Printable(script));
    QVERIFY(lines.at(2).startsWith(QLatin1Char('#')));

    // Playing it repeats the same turns. Only one log recorder may exist at a time.
    desk.reset();
    PluginDesk again;
    QVERIFY(plays(script, again));
    QCOMPARE(again.conversation.lastTurn(), 2);
    QCOMPARE(again.conversation.turn(2).display, QStringLiteral("原样"));
}

/// Queued input may yet turn out to be a password.
void TestWindowScript::scriptHoldsNothingThatWaits()
{
    PluginDesk desk;
    const QTemporaryDir folder;
    const QString gate = folder.filePath(QStringLiteral("go"));
    desk.type(QStringLiteral("第一句"));
    QTRY_VERIFY(desk.isIdle());
    desk.type(semantic("WAIT", gate));
    desk.type(QStringLiteral("432187"));
    QTRY_VERIFY(desk.window.view()->isWaiting());
    QCOMPARE(scriptOf(desk.conversation), QStringLiteral("第一句\n"));
    QFile go(gate);
    QVERIFY(go.open(QIODevice::WriteOnly));
    go.close();
    QTRY_VERIFY(desk.isIdle());
    QVERIFY(scriptOf(desk.conversation).endsWith(QStringLiteral("\n432187\n")));
}

void TestWindowScript::scriptPlaysSentencesAsSentences()
{
    auto desk = std::make_unique<PluginDesk>();
    desk->type(QStringLiteral("#1 会议室在哪里"));
    desk->type(QStringLiteral("  @press   按我"));
    desk->type(QStringLiteral("@pressing"));
    QTRY_VERIFY(desk->isIdle());
    const QString script = scriptOf(desk->conversation);
    QVERIFY2(!script.contains(QStringLiteral("会议室")) && !script.contains(QStringLiteral("按我")),
             qUtf8Printable(script));

    desk.reset(); // only one log recorder may exist at a time
    PluginDesk again;
    QVERIFY(plays(script, again)); // nothing was taken for a command to press a button
    QCOMPARE(again.conversation.lastTurn(), 1);
    QCOMPARE(again.conversation.turn(1).said, QStringLiteral("@pressing"));
}

QTEST_MAIN(TestWindowScript)
#include "tst_windowscript.moc"
