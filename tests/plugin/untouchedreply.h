// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTest>
#include <QVariant>

/// Fails the running test unless @p reply is as constructed. A template, since the host's and the documented
/// Reply are different types.
template <typename AnyReply>
void compareUntouched(const AnyReply &reply)
{
    QCOMPARE(reply.code, QVariant(-1));
    QVERIFY(!reply.displayText.isValid());
    QVERIFY(!reply.speechText.isValid());
    QVERIFY(reply.widget == nullptr);
    QCOMPARE(reply.type, 0);
    QVERIFY(reply.endOfSession);
}
