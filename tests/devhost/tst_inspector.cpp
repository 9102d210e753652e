// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inspector.h"
#include "plugindesk.h"

#include <QtTest>
#include <QtWidgets>

using namespace devhost;

/// The inspector next to the conversation.
class TestInspector : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void inspectorShowsTheTurnAndSendsSemantics();
    void inspectorIndentsHighlightsFiltersAndFinds();
};

void TestInspector::inspectorShowsTheTurnAndSendsSemantics()
{
    PluginDesk desk;
    const auto text = [&desk](const char *name) {
        return desk.window.findChild<QPlainTextEdit *>(QLatin1String(name))->toPlainText();
    };
    desk.type(semantic("ECHO", QStringLiteral("回声")));
    QTRY_VERIFY(text("inspectorReply").contains(QStringLiteral("回声")));
    QVERIFY(text("inspectorSemantic").contains(QStringLiteral("\"intent\": \"ECHO\"")));
    QVERIFY(text("inspectorReply").contains(QStringLiteral("type      3")));
    QVERIFY(text("inspectorLog").contains(QStringLiteral("debug default: service ECHO on another thread")));
    QVERIFY(text("inspectorRequests").contains(QStringLiteral("（没有请求）")));

    desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorEntry"))
        ->setPlainText(semantic("ECHO", QStringLiteral("原样")));
    desk.window.findChild<QPushButton *>(QStringLiteral("inspectorSend"))->click();
    QTRY_VERIFY(text("inspectorReply").contains(QStringLiteral("原样")));

    // A click on an earlier turn shows that turn again.
    const auto bubbles = desk.window.view()->findChildren<Bubble *>();
    for (Bubble *bubble : bubbles) {
        if (bubble->text() == QStringLiteral("回声")) {
            QTest::mouseClick(bubble, Qt::LeftButton);
        }
    }
    QCOMPARE(desk.window.inspector()->shownTurn(), 1);
    QVERIFY(text("inspectorReply").contains(QStringLiteral("回声")));
}

void TestInspector::inspectorIndentsHighlightsFiltersAndFinds()
{
    PluginDesk desk;
    desk.type(semantic("ECHO", QStringLiteral("回声")));
    QTRY_VERIFY(desk.isIdle());
    auto *json = desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorSemantic"));
    QTRY_VERIFY(json->toPlainText().contains(QStringLiteral("\n  \"intent\": {\n    \"")));
    const QFontMetrics metrics(json->font());
    QCOMPARE(metrics.horizontalAdvance(QLatin1Char('i')), metrics.horizontalAdvance(QLatin1Char('W')));
    const QTextBlock line = json->document()->find(QStringLiteral("\"intent\": {")).block();
    QTRY_VERIFY(!line.layout()->formats().isEmpty());
    const QColor key = line.layout()->formats().first().format.foreground().color();
    QVERIFY(key != json->palette().color(QPalette::Text));

    auto *log = desk.window.findChild<QPlainTextEdit *>(QStringLiteral("inspectorLog"));
    auto *filter = desk.window.findChild<QLineEdit *>(QStringLiteral("inspectorLogFilter"));
    const QString whole = log->toPlainText();
    QVERIFY(whole.contains(QStringLiteral("service ECHO")));
    filter->setText(QStringLiteral("another echo"));
    QCOMPARE(log->toPlainText().count(QStringLiteral("service ECHO")), 1);
    filter->setText(QStringLiteral("gibt es nicht"));
    QCOMPARE(log->toPlainText(), QString());
    filter->clear();
    QCOMPARE(log->toPlainText(), whole);

    auto *search = desk.window.findChild<QLineEdit *>(QStringLiteral("inspectorSearch"));
    QVERIFY(search != nullptr);
    search->setFocus();
    QTest::keyClicks(search, QStringLiteral("intent"));
    QCOMPARE(json->textCursor().selectedText(), QStringLiteral("intent"));
    const int first = json->textCursor().position();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(json->textCursor().position() > first);
}

QTEST_MAIN(TestInspector)
#include "tst_inspector.moc"
