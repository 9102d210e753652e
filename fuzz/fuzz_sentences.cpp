// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Fuzzes conversations put together from pieces of sentences and arbitrary characters.

#include "fuzzsupport.h"

#include <understanding/dialogue.h>
#include <understanding/understand.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const Words Pieces = {
    "明天",   "下午", "三点",   "半",       "和",     "张伟",       "李雷",   "开",     "个",
    "会",     "视频", "会议",   "取消",     "加入",   "600100",     "密码",   "是",     "123456",
    "邀请",   "参加", "我的",   "查",       "一下",   "有",         "什么",   "下周三", "(11号)",
    "晚",     "早",   "上午",   "三月七号", "2026年", "二十分钟后", "半小时", "到",     "五点",
    "差一刻", "十",   "加",     "为",       "好友",   "不想",       "别",     "吗",     "？",
    "，",     "、",   " ",      "a",        "@b.cn",  "13:30",      "1.5",    "三个八", "一百",
    "号",     "点",   "的",     "了",       "请",     "帮我",       "把",     "叫上",   "王芳",
    "们",     "周",   "年",     "大后天",   "月底",   "除夕",       "每天",   "算了",   "第一个",
    "晚一点", "今",   "会议室", "3月",      "-",      "零",         "两",     "０",     "会议号"};

QString sentence(FuzzedDataProvider &bytes)
{
    QString result;
    for (int count = bytes.ConsumeIntegralInRange(0, 14); count > 0; --count) {
        result += anyText(bytes, Pieces);
    }
    return bytes.ConsumeIntegralInRange(0, 31) == 31 ? result.repeated(40) : result;
}

/// Requires one object: either an intent to carry out, or something to say.
void requireSemantic(const QString &json)
{
    QJsonParseError error;
    const QJsonObject intent =
        QJsonDocument::fromJson(json.toUtf8(), &error).object().value(QStringLiteral("intent")).toObject();
    require(error.error == QJsonParseError::NoError && !json.contains(QLatin1Char('\n')));
    require(intent.value(QStringLiteral("shouldEndSession")).isBool());
    const bool isCommand = intent.value(QStringLiteral("shouldEndSession")).toBool();
    require(intent.value(QStringLiteral("semantic")).toArray().size() == (isCommand ? 1 : 0));
    const QString said =
        intent.value(QStringLiteral("answer")).toObject().value(QStringLiteral("text")).toString();
    require(said.isEmpty() == isCommand);
}

} // namespace

void prepareToFuzz(int & /*argc*/, char ** /*argv*/) {}

void fuzz(FuzzedDataProvider &bytes)
{
    const QDateTime now(QDate(2026, 3, 7), QTime(10, 20));
    QStringList contacts{QStringLiteral("张伟"), QStringLiteral("a")};
    if (bytes.ConsumeBool()) {
        contacts.append(anyText(bytes, Pieces));
    }
    requireSemantic(understanding::understand(sentence(bytes), now, contacts));

    understanding::Dialogue dialogue(contacts);
    for (int turns = bytes.ConsumeIntegralInRange(1, 4); turns > 0; --turns) {
        const QString said = sentence(bytes);
        require(dialogue.masked(said).size() == said.size());
        requireSemantic(dialogue.turn(said, now));
        if (bytes.ConsumeBool()) {
            dialogue.noteReply(bytes.ConsumeBool() ? -16014 : 0, QStringLiteral("请输入密码"));
        }
    }
}
