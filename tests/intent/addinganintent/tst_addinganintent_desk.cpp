// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"

#include "conferencecardinterface.h"
#include "request/requesttexts.h"
#include "semantic/semantic.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

namespace {

ConferenceCardInterface *gateway()
{
    return ConferenceCardInterface::instance();
}

/// Books a conference without members @p days from now.
ContactDetailMsg booked(int days)
{
    const qint64 start = QDateTime::currentDateTime().addDays(days).toMSecsSinceEpoch();
    const QString request = RequestText::createConference(RequestText::membersNamed({}), start);
    ContactCreatedConferenceDetail detail;
    const int code = gateway()->createVideoConference(request, {}, true, start, detail);
    return code == 0 ? detail.conferences.value(0) : ContactDetailMsg();
}

bool isListed(const QString &conferenceId)
{
    QVector<ContactDetailMsg> conferences;
    gateway()->QueryVideoConference(QString(), 0, conferences);
    return std::any_of(
        conferences.cbegin(), conferences.cend(),
        [&conferenceId](const ContactDetailMsg &conference) { return conference.confId == conferenceId; });
}

/// The page's handler's reply to a conference number.
Reply replyTo(const QString &number)
{
    CloudIntent intent;
    intent.parse(QJsonObject{
        {QStringLiteral("intent"), QLatin1String(DeleteConferenceIntent::IntentName)},
        {QStringLiteral("slots"), QJsonArray{QJsonObject{{QStringLiteral("name"), QStringLiteral("id")},
                                                         {QStringLiteral("value"), number}}}}});
    DeleteConferenceIntent handler;
    handler.handleReply(handler.action(intent), intent);
    return *handler.getReply();
}

} // namespace

/// The handler of docs/adding-an-intent.md with the real ability library and the real application, which the
/// bus starts.
class TestAddingAnIntentDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theConferenceOfTheNumberIsCancelled()
    {
        const ContactDetailMsg first = booked(30);
        const ContactDetailMsg second = booked(31);
        QVERIFY(isListed(first.confId));
        QVERIFY(isListed(second.confId));
        QVERIFY(first.conferenceDialNumber != first.confId);

        const Reply reply = replyTo(second.conferenceDialNumber);
        QCOMPARE(reply.displayText.toString(), QStringLiteral("好的，已为您取消会议。"));
        QCOMPARE(reply.code, QVariant(0));
        QVERIFY(isListed(first.confId));
        QVERIFY(!isListed(second.confId));

        const Reply again = replyTo(second.conferenceDialNumber);
        QCOMPARE(again.displayText.toString(), QStringLiteral("抱歉，未查询到视频会议。"));
        QCOMPARE(again.code, QVariant(-16007));
    }

    void anIdIsNoNumber()
    {
        const ContactDetailMsg conference = booked(32);
        QVERIFY(isListed(conference.confId));
        QCOMPARE(replyTo(conference.confId).code, QVariant(-16007));
        QVERIFY(isListed(conference.confId));
    }
};

QTEST_GUILESS_MAIN(TestAddingAnIntentDesk)

#include "tst_addinganintent_desk.moc"
