// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "names/elsewhere.h"

#include "text/characterset.h"

#include <QRegularExpression>

namespace understanding {

Elsewhere findElsewhere(const QString &text)
{
    static const CharacterSet goings(u"来去到回上下"); // with which each way of saying so begins
    if (!goings.meets(text)) {
        return {};
    }
    // 我的会议 is no such place, 我办公室开会 is one.
    static const QString noConference = QStringLiteral("(?!.{0,4}(?<!开)会)");
    static const QString owned = QStringLiteral("[我你您他她咱俺]们?的?");
    static const QString place =
        QStringLiteral("(?:办公[室区楼]|公司|单位|工位|座位|位子|家里?|楼[上下]|前台|食堂|餐厅|店里|厂里|车间"
                       "|学校|教室|宿舍|医院|仓库|机房|门口|大厅|茶水间|工地|科室|病房|实验室)(?!的)");
    static const QString room = QStringLiteral("[0-9]{3,4}(?![0-9点时:月号日年分./-])");
    static const QRegularExpression coming(
        QStringLiteral("(?:[来去到回](?:一下)?(?:(?:%1)?%2|%1|%3)|(?<!["
                       "叫拉喊带约加捎邀拽连])(?:上(?:%1)?%2|[上下]楼)|[到去]会议室里?(?=[叫喊找]))%4")
            .arg(owned, place, room, noConference));
    const QRegularExpressionMatch match = coming.match(text);
    return match.hasMatch() ? Elsewhere{match.capturedStart(), match.capturedLength()} : Elsewhere();
}

} // namespace understanding
