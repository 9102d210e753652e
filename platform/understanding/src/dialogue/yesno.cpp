// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dialogue/yesno.h"

#include "text/characterset.h"
#include "text/rulefile.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace understanding {

YesNo readYesNo(const Sentence &sentence)
{
    static const QHash<QString, YesNo> answers = [] {
        QHash<QString, YesNo> loaded;
        const QStringList lines = ruleLines(QStringLiteral("yesno.tsv"));
        for (const QString &line : lines) {
            const YesNo meaning = line.startsWith(QLatin1String("yes\t")) ? YesNo::Yes : YesNo::No;
            const QStringList words =
                line.section(QLatin1Char('\t'), 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
            for (const QString &word : words) {
                loaded.insert(word, meaning);
            }
        }
        return loaded;
    }();
    static const CharacterSet particles(u"吧啊呀呢哦啦哈嘞呗会议");
    if (sentence.text().endsWith(QLatin1Char('?'))) { // 嗯？
        return YesNo::Unclear;
    }
    QString text;
    std::copy_if(sentence.text().cbegin(), sentence.text().cend(), std::back_inserter(text),
                 [](QChar character) { return character.isLetterOrNumber(); });
    static const QStringList agreeing = {
        QStringLiteral("好的"), QStringLiteral("是的"), QStringLiteral("可以"),
        QStringLiteral("嗯"),   QStringLiteral("好"),   QStringLiteral("对"),
        QStringLiteral("行"),   QStringLiteral("是"),   QStringLiteral("那就")};
    static const QStringList doing = {QStringLiteral("进"),   QStringLiteral("加"),   QStringLiteral("约"),
                                      QStringLiteral("定"),   QStringLiteral("订"),   QStringLiteral("建"),
                                      QStringLiteral("拉"),   QStringLiteral("开"),   QStringLiteral("发"),
                                      QStringLiteral("加入"), QStringLiteral("安排"), QStringLiteral("预约"),
                                      QStringLiteral("邀请"), QStringLiteral("发起")};
    static const QStringList asking = {QStringLiteral("麻烦帮我"), QStringLiteral("你帮我"),
                                       QStringLiteral("帮我"),     QStringLiteral("给我"),
                                       QStringLiteral("你"),       QString()};
    for (const QString &yes : agreeing) { // 对，帮我约上
        for (const QString &plea : asking) {
            if (text.startsWith(yes + plea)) {
                QString deed = text.mid(yes.size() + plea.size());
                while (deed.size() > 1 && QStringLiteral("吧上一下好").contains(deed.at(deed.size() - 1))) {
                    deed.chop(1);
                }
                if (doing.contains(deed)) {
                    return YesNo::Yes;
                }
            }
        }
    }
    while (!text.isEmpty()) {
        const auto answer = answers.constFind(text);
        if (answer != answers.cend()) {
            return *answer;
        }
        if (!particles.contains(text.at(text.size() - 1))) {
            break;
        }
        text.chop(1);
    }
    return YesNo::Unclear;
}

} // namespace understanding
