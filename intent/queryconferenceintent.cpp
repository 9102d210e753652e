// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "queryconferenceintent.h"

#include "contactutils.h"
#include "replytable.h"
#include "slotreader.h"

#include <QDebug>

namespace {

bool foundAny(const ContactQueryConferenceDetail &detail)
{
    return !detail.conferences.isEmpty();
}

const QVector<ReplyRow<ContactQueryConferenceDetail>> &replies()
{
    static const QVector<ReplyRow<ContactQueryConferenceDetail>> rows{
        {ResultCode::Success, foundAny, QStringLiteral("以下是您查询的视频会议:"), nullptr,
         cardByItself(Query_List)},
        {ResultCode::Success, nullptr, QStringLiteral("抱歉，未查询到视频会议。"), nullptr, TextOnly},
        {ResultCode::ConferenceNotFound, nullptr, QStringLiteral("抱歉，未查询到视频会议。"), nullptr,
         TextOnly},
    };
    return rows;
}

} // namespace

QueryConferenceIntent::QueryConferenceIntent(QObject *parent) : QObject(parent) {}

int QueryConferenceIntent::action(const CloudIntent &intent)
{
    return handleQueryConference(intent);
}

int QueryConferenceIntent::handleQueryConference(const CloudIntent &intent)
{
    const CloudSlot *datetime = SlotReader::first(intent, SlotName::Datetime);
    if (datetime == nullptr) {
        qWarning() << "Query Conference must contain slot: " << SlotName::Datetime;
    }
    const QString timeText = datetime == nullptr ? QString() : SlotReader::text(*datetime);
    qint64 queryStartMsecs = 0;
    const QString params = ContactUtils::queryParamInit(timeText, queryStartMsecs);
    return ConferenceCardInterface::instance()->QueryVideoConference(params, queryStartMsecs,
                                                                     m_detail.conferences);
}

int QueryConferenceIntent::handleReply(int code, const CloudIntent &intent)
{
    ReplyTable::answer(code, replies(), m_detail, intent, *this);
    return code;
}
