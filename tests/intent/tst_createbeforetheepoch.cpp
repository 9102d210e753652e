// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "handlerrun.h"

#include <QDateTime>
#include <QTest>

/// The clock stands at 1970-01-01 07:00 in Shanghai, one hour before the epoch.
class TestCreateBeforeTheEpoch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeThatIsNotPositiveStartsAtOnce()
    {
        QVERIFY(QDateTime::currentMSecsSinceEpoch() < 0);
        CloudIntent intent = intentWith("[{'name':'name','value':'a'},{'name':'datetime','value':''}]");
        setSlotText(intent, 1, QStringLiteral("{\"suggestDatetime\":\"1970-01-01T07:30:00\"}"));
        const HandlerRun run =
            runHandler(new CreateConferenceIntent(nullptr), intent, answers("{'ret':'OK'}"));
        QCOMPARE(run.code, 0);
        QCOMPARE(run.requests.size(), 1);
        QCOMPARE(run.requests.first().parameters,
                 QStringLiteral("{\"members\":[{\"name\":\"a\",\"userId\":\"\"}]}"));
    }
};

QTEST_GUILESS_MAIN(TestCreateBeforeTheEpoch)

#include "tst_createbeforetheepoch.moc"
