// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardreplies.h"

#include "wire/resultcodes.h"

namespace {

QString startedWithOne(const QString &name)
{
    return QStringLiteral("好的，已为您发起和%1的视频会议。").arg(name);
}

/// @p names must not be empty.
QString startedWith(const QStringList &names)
{
    return names.size() == 1
               ? startedWithOne(names.first())
               : QStringLiteral("好的，已为您发起与%1的视频会议。").arg(CardReplies::joined(names));
}

QString invitedNobody()
{
    return QStringLiteral("好的，已为您邀请加入会议。");
}

} // namespace

QString CardReplies::modified(int code)
{
    return code == ResultCode::Success ? QStringLiteral("会议信息修改成功。")
                                       : QStringLiteral("修改失败，请前往联系人应用修改。");
}

QString CardReplies::cancelled(int code)
{
    return code == ResultCode::Success ? QStringLiteral("已为您取消会议。")
                                       : QStringLiteral("会议取消失败，请前往联系人应用取消。");
}

QString CardReplies::created(const QStringList &names)
{
    return names.isEmpty() ? QStringLiteral("好的，已为您发起视频会议。") : startedWith(names);
}

QString CardReplies::invited(const QStringList &names)
{
    return names.isEmpty() ? invitedNobody() : startedWith(names);
}

QString CardReplies::invitedWithinLimit(const QStringList &names)
{
    switch (names.size()) {
    case 0:
        return invitedNobody();
    case 1:
        return startedWithOne(names.first());
    default:
        // Both in one call: a name may itself contain a place marker.
        return QStringLiteral("好的，已为您发起%1和%2的视频会议。").arg(names.at(0), names.at(1));
    }
}

QString CardReplies::notCreated()
{
    return QStringLiteral("抱歉无法为您开启视频会议。");
}

QString CardReplies::notInvited()
{
    return QStringLiteral("抱歉无法为您邀请。");
}

QString CardReplies::joined(const QStringList &names)
{
    if (names.size() < 2) {
        return names.join(QString());
    }
    return names.mid(0, names.size() - 1).join(QStringLiteral("、")) + QStringLiteral("和") + names.last();
}
