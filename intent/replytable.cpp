// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "replytable.h"

#include "conferencecardinterface.h"
#include "wire/resultcodes.h"

namespace {

bool isCallFailure(int code)
{
    return code >= ResultCode::CallFailedFirst && code <= ResultCode::CallFailedLast;
}

/// Null for a @p code that handlers answer individually.
QString sharedText(int code)
{
    if (isCallFailure(code)) {
        return QStringLiteral("已尝试执行，但操作失败，请稍后重试。");
    }
    switch (code) {
    case ResultCode::NotLoggedIn:
        return QStringLiteral("已为您打开联系人。");
    case ResultCode::TimedOut:
        return QStringLiteral("抱歉，请求响应超时。");
    default:
        return QString();
    }
}

int contentType(Companion::Kind kind)
{
    const bool announcesCard = kind == Companion::CardBeforeText || kind == Companion::CardAfterText;
    return announcesCard ? Reply::TextsAndCard : Reply::Texts;
}

} // namespace

bool Replies::giveShared(int code, Reply &reply)
{
    const QString text = sharedText(code);
    if (text.isNull()) {
        return false;
    }
    reply.update(code, text, Reply::Texts);
    return true;
}

void Replies::give(int code, const QString &text, const Companion &companion, const QVariant &record,
                   Reply &reply)
{
    ConferenceCardInterface *gateway = ConferenceCardInterface::instance();
    if (companion.kind == Companion::CardBeforeText) {
        gateway->noticeSentActionSignals(companion.card, record, &reply);
    }
    reply.update(code, text, contentType(companion.kind));
    if (companion.kind == Companion::CardAfterText || companion.kind == Companion::UnannouncedCard) {
        gateway->noticeSentActionSignals(companion.card, record, &reply);
    }
    if (companion.kind == Companion::ConferenceList) {
        gateway->openConferenceList();
    }
}
