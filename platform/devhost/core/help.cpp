// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "help.h"

#include <QRegularExpression>
#include <QVector>

namespace devhost {

namespace {

/// People of the sample directory, used until others are known.
QString nameAt(const QStringList &names, int place)
{
    static const QStringList known{QStringLiteral("孙丽"), QStringLiteral("赵磊"), QStringLiteral("周一鸣")};
    return names.size() > place ? names.at(place) : known.at(place);
}

} // namespace

bool help::isAskedFor(const QString &sentence)
{
    static const QRegularExpression wish(
        QStringLiteral("^(帮助|使用帮助|怎么用|help|(请问)?你(都|还)?(会|能)(做|干|帮我做)?(些)?什么|我(可以|"
                       "能|该)(对你)?(说|问)"
                       "(些)?什么|有(什么|哪些)功能)(呢|啊|呀|吗)?[？?。！!]?$"),
        QRegularExpression::CaseInsensitiveOption);
    return wish.match(sentence.trimmed()).hasMatch();
}

QVector<help::Topic> help::topics(const QStringList &names)
{
    const QString one = nameAt(names, 0);
    const QString another = nameAt(names, 1);
    const QString third = nameAt(names, 2);
    return {
        {QStringLiteral("查询会议"), {QStringLiteral("查询今天的会议"), QStringLiteral("查询明天的会议")}},
        {QStringLiteral("预约会议"), {QStringLiteral("预约后天下午四点的视频会议，叫上%1").arg(one)}},
        {QStringLiteral("发起会议"), {QStringLiteral("发起视频会议，叫上%1和%2").arg(one, another)}},
        {QStringLiteral("邀请成员（会议中）"), {QStringLiteral("邀请%1加入会议").arg(third)}},
        {QStringLiteral("退出或结束会议"), {QStringLiteral("结束会议")}},
        {QStringLiteral("加入我的会议"), {QStringLiteral("加入我的会议"), QStringLiteral("退出会议")}},
        {QStringLiteral("按会议号加入"), {QStringLiteral("加入会议880100004"), QStringLiteral("退出会议")}},
        {QStringLiteral("添加好友"), {QStringLiteral("加200002为好友")}},
    };
}

QString help::text(const QStringList &names)
{
    QStringList lines{QStringLiteral("您可以说：")};
    const QVector<Topic> all = topics(names);
    for (const Topic &topic : all) {
        lines << QStringLiteral("%1：%2").arg(
            topic.title, QStringLiteral("“%1”").arg(topic.examples.join(QStringLiteral("”“"))));
    }
    lines << QStringLiteral("说“算了”可以放弃正在回答的问题。");
    return lines.join(QLatin1Char('\n'));
}

} // namespace devhost
