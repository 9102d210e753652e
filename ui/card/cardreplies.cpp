// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardreplies.h"

#include "wire/resultcodes.h"

#include <array>

namespace {

struct ConfirmationTexts
{
    QString nobody;
    QString one;
    QString two;
    QString more; ///< with one place: for all names, joined; with two: for the first two
    QString failure;
};

/// The wording differs from row to row (和 and 与, and starting where an invitation was meant); people know
/// it that way.
const ConfirmationTexts &textsOf(CardReplies::Purpose purpose)
{
    static const std::array<ConfirmationTexts, 3> table = {{
        {QStringLiteral("好的，已为您发起视频会议。"), QStringLiteral("好的，已为您发起和%1的视频会议。"),
         QStringLiteral("好的，已为您发起与%1和%2的视频会议。"),
         QStringLiteral("好的，已为您发起与%1的视频会议。"), QStringLiteral("抱歉无法为您开启视频会议。")},
        {QStringLiteral("好的，已为您邀请加入会议。"), QStringLiteral("好的，已为您发起和%1的视频会议。"),
         QStringLiteral("好的，已为您发起与%1和%2的视频会议。"),
         QStringLiteral("好的，已为您发起与%1的视频会议。"), QStringLiteral("抱歉无法为您邀请。")},
        {QStringLiteral("好的，已为您邀请加入会议。"), QStringLiteral("好的，已为您发起和%1的视频会议。"),
         QStringLiteral("好的，已为您发起%1和%2的视频会议。"),
         QStringLiteral("好的，已为您发起%1和%2的视频会议。"), QStringLiteral("抱歉无法为您邀请。")},
    }};
    return table.at(static_cast<std::size_t>(purpose));
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

QString CardReplies::confirmed(Purpose purpose, const QStringList &names, int code)
{
    const ConfirmationTexts &texts = textsOf(purpose);
    if (code != ResultCode::Success) {
        return texts.failure;
    }
    switch (names.size()) {
    case 0:
        return texts.nobody;
    case 1:
        return texts.one.arg(names.at(0));
    case 2:
        // Both at once: a name may look like a place itself.
        return texts.two.arg(names.at(0), names.at(1));
    default:
        return texts.more.contains(QLatin1String("%2")) ? texts.more.arg(names.at(0), names.at(1))
                                                        : texts.more.arg(joined(names));
    }
}

QString CardReplies::joined(const QStringList &names)
{
    if (names.size() < 2) {
        return names.join(QString());
    }
    return names.mid(0, names.size() - 1).join(QStringLiteral("、")) + QStringLiteral("和") + names.last();
}
