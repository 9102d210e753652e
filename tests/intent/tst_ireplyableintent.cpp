// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "ireplyableintent.h"
#include "semantic/semantic.h"

#include <QTest>

namespace {

class Handler : public IReplyableIntent
{
public:
    int action(const CloudIntent & /*intent*/) override { return 0; }
};

} // namespace

class TestIReplyableIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byDefaultTheReplyStays();
    void updateReplyTakesAllSixFields();
};

void TestIReplyableIntent::byDefaultTheReplyStays()
{
    Handler handler;
    QCOMPARE(handler.handleReply(-16001, CloudIntent()), -16001);
    QCOMPARE(handler.handleReply(0, CloudIntent()), 0);
    QCOMPARE(handler.getReply()->code, QVariant(-1));
    QVERIFY(!handler.getReply()->displayText.isValid());
}

void TestIReplyableIntent::updateReplyTakesAllSixFields()
{
    Reply given(5, QStringLiteral("shown"), 11);
    given.speechText = QStringLiteral("spoken");
    char card = 0;
    given.widget = reinterpret_cast<QWidget *>(&card);
    given.endOfSession = false;

    Handler handler;
    handler.updateReply(given);
    QCOMPARE(handler.getReply()->code, QVariant(5));
    QCOMPARE(handler.getReply()->displayText, QVariant(QStringLiteral("shown")));
    QCOMPARE(handler.getReply()->speechText, QVariant(QStringLiteral("spoken")));
    QCOMPARE(handler.getReply()->widget, given.widget);
    QCOMPARE(handler.getReply()->type, 11);
    QVERIFY(!handler.getReply()->endOfSession);
}

QTEST_GUILESS_MAIN(TestIReplyableIntent)

#include "tst_ireplyableintent.moc"
