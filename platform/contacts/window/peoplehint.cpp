// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/peoplehint.h"

#include "core/displaytext.h"

QString peopleHint(const PeopleView &view)
{
    if (!view.isLoggedIn) {
        return QStringLiteral("还没有登录。\n在上方选择账号，就能看到联系人。");
    }
    if (view.isReading) {
        return QStringLiteral("正在查找…");
    }
    if (!view.text.trimmed().isEmpty()) {
        return QStringLiteral("没有找到“%1”。\n按 Esc 清除搜索。").arg(cleanDisplayText(view.text));
    }
    switch (view.scope) {
    case PeopleScope::Friends:
        return QStringLiteral("还没有好友。\n点“添加好友”发送申请。");
    case PeopleScope::Asked:
        return QStringLiteral("没有等待回答的好友申请。");
    case PeopleScope::Everybody:
        break;
    }
    return QStringLiteral("还没有联系人。\n点“添加好友”发送申请。");
}
