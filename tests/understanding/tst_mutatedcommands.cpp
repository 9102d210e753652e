// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "saidthings.h"

#include <understanding/understand.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <random>

/// Commands with a piece dropped, doubled or swapped with another, as typed in haste: whatever is carried out
/// holds only the names, numbers and times that were said and leaves over no part of them.
class TestMutatedCommands : public QObject
{
    Q_OBJECT

private:
    static constexpr int Mutations = 1000;
    const QDateTime m_now{QDate(2026, 3, 11), QTime(10, 20)};

    static const QStringList &commands()
    {
        static const QStringList all = [] {
            QStringList read;
            for (const char *command : {"明天 下午 三点 二十 和 张伟 开会",
                                        "加入 会议 123456789",
                                        "后天 上午 十点半 约 李娜 和 王磊 开 视频 会议",
                                        "加入 会议 幺二三 四五六 七八九",
                                        "20号 下午 3点半 预约 会议 ， 叫上 赵云",
                                        "加入 会议 555666777 ， 密码 4321",
                                        "下周三 下午 两点 和 王总 开会",
                                        "邀请 赵云 和 马超 加入 会议",
                                        "添加 好友 13800138000",
                                        "3月20号 上午 九点 四十五 安排 会议",
                                        "会议号 880100002 密码 12 34 ， 加入",
                                        "周五 十点 一刻 和 张伟 、 李娜 开会",
                                        "今天 下午 四点 到 五点 开会 叫上 王磊",
                                        "加 工号 200002 为 好友",
                                        "把 李娜 和 赵云 拉进 会议",
                                        "查一下 后天 上午 的 会议",
                                        "4月2号 和 李娜 开会",
                                        "结束 会议",
                                        "进入 我的 会议",
                                        "8点 开会 ， 通知 马超"}) {
                read.append(QString::fromUtf8(command));
            }
            return read;
        }();
        return all;
    }

    static QJsonObject commandOf(const QString &json)
    {
        const QJsonObject intent =
            QJsonDocument::fromJson(json.toUtf8()).object().value(QStringLiteral("intent")).toObject();
        return intent.value(QStringLiteral("shouldEndSession")).toBool()
                   ? intent.value(QStringLiteral("semantic")).toArray().at(0).toObject()
                   : QJsonObject();
    }

    static QStringList valuesOf(const QJsonObject &command, const QString &name, const QString &key)
    {
        QStringList values;
        const QJsonArray slotArray = command.value(QStringLiteral("slots")).toArray();
        for (const QJsonValue &value : slotArray) {
            const QJsonObject slot = value.toObject();
            if (name.isEmpty() || slot.value(QStringLiteral("name")).toString() == name) {
                values.append(slot.value(key).toString());
            }
        }
        return values;
    }

    /// Returns the command with one of its pieces dropped, doubled, or swapped with another. The pieces are
    /// its words or, every other time, some of its characters.
    static QString mutated(const QString &command, std::mt19937 &random)
    {
        const auto below = [&](int count) {
            return std::uniform_int_distribution<int>(0, qMax(0, count - 1))(random);
        };
        QStringList pieces = command.split(QLatin1Char(' '));
        if (below(2) == 0) {
            const QString text = pieces.join(QString());
            pieces.clear();
            for (int at = 0; at < text.size();) {
                const int length = 1 + below(2);
                pieces.append(text.mid(at, length));
                at += length;
            }
        }
        const int at = below(pieces.size());
        switch (below(3)) {
        case 0:
            pieces.removeAt(at);
            break;
        case 1:
            pieces.insert(at, pieces.at(at));
            break;
        default:
            pieces.swapItemsAt(at, (at + 1 + below(pieces.size() - 1)) % pieces.size());
        }
        return pieces.join(QString());
    }

    /// Returns the sentence with everything that the command used masked out.
    static QString leftOver(QString sentence, const QJsonObject &command)
    {
        const QStringList values = valuesOf(command, QString(), QStringLiteral("value"));
        for (const QString &said : values) {
            // A time may be split over two places: 明天和张伟三点.
            int from = 0;
            for (const QChar character : said) {
                const int at = sentence.indexOf(character, from);
                if (at >= 0) {
                    sentence[at] = QLatin1Char('|');
                    from = at + 1;
                }
            }
        }
        return sentence;
    }

    /// Returns what is wrong with @p done, which @p sentence led to; empty if nothing is.
    QString faultOf(const QString &sentence, const QJsonObject &done) const
    {
        const auto normal = [&](const char *name) {
            return valuesOf(done, QString::fromLatin1(name), QStringLiteral("normValue"));
        };
        const QStringList names = normal("name");
        for (const QString &name : names) {
            if (!sentence.contains(name)) {
                return QStringLiteral("nobody said the name");
            }
        }
        const QString intent = done.value(QStringLiteral("intent")).toString();
        const bool joins = intent == QLatin1String("ENETR_ID_CONFERENCE");
        if (joins || intent == QLatin1String("ADD_BUDDY")) {
            QStringList taken = normal("id") + normal("password") + normal("account");
            QStringList said = digitsSaid(sentence);
            taken.sort();
            said.sort();
            if (taken != said) {
                return QStringLiteral("the digits are not those that were said: ") +
                       said.join(QLatin1Char(' '));
            }
            const QStringList passwords = normal("password");
            for (const QString &password : passwords) {
                if (digitsSaidBehind(sentence, QStringLiteral("密码")) != password) {
                    return QStringLiteral("nobody said that this is the password");
                }
            }
            return {};
        }
        static const QRegularExpression numeral(
            QStringLiteral("[0-9零〇二三四五六七八九十两幺半点刻号月午周]|明天|后天|今天"));
        const QString rest = leftOver(sentence, done);
        if (rest.contains(numeral)) {
            return QStringLiteral("it leaves ") + rest;
        }
        const QStringList times = normal("datetime");
        QString unnamed = sentence; // 李五 in 李五十点一刻开会
        for (const QString &name : names) {
            unnamed.replace(unnamed.lastIndexOf(name), name.size(), QStringLiteral("|"));
        }
        return times.isEmpty() ? QString() : timeNotSaid(unnamed, times.first(), m_now);
    }

private Q_SLOTS:
    /// So that an oracle that accepts everything does not pass.
    void whatWasNotSaidIsFound_data();
    void whatWasNotSaidIsFound();

    void nothingIsActedOnThatWasNotSaid_data()
    {
        QTest::addColumn<QString>("command");
        for (const QString &command : commands()) {
            QTest::newRow(command.toUtf8().constData()) << command;
        }
    }
    void nothingIsActedOnThatWasNotSaid()
    {
        QFETCH(QString, command);
        const QStringList contacts{QStringLiteral("张伟"), QStringLiteral("李娜"), QStringLiteral("王磊")};
        std::mt19937 random(20260311); // NOLINT: the same mutations in every run
        int acted = 0;
        QStringList faults;
        for (int run = 0; run < Mutations / commands().size(); ++run) {
            const QString sentence = mutated(command, random);
            const QJsonObject done = commandOf(understanding::understand(sentence, m_now, contacts));
            const QString fault = done.isEmpty() ? QString() : faultOf(sentence, done);
            acted += done.isEmpty() ? 0 : 1;
            if (!fault.isEmpty()) {
                faults.append(sentence + QStringLiteral(": ") + fault + QStringLiteral(" in ") +
                              QString::fromUtf8(QJsonDocument(done).toJson(QJsonDocument::Compact)));
            }
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
        QVERIFY2(acted > 5, qPrintable(QString::number(acted))); // otherwise the test proves nothing
    }
};

void TestMutatedCommands::whatWasNotSaidIsFound_data()
{
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("intent");
    QTest::addColumn<QString>("slot");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("normValue");
    QTest::addColumn<bool>("isSaid");
    const auto row = [](const char *sentence, const char *intent, const char *slot, const char *value,
                        const char *normValue, bool isSaid) {
        QTest::addRow("%s %s", sentence, normValue)
            << QString::fromUtf8(sentence) << QString::fromUtf8(intent) << QString::fromUtf8(slot)
            << QString::fromUtf8(value) << QString::fromUtf8(normValue) << isSaid;
    };
    constexpr auto create = "CREATE_CONFERENCE";
    constexpr auto join = "ENETR_ID_CONFERENCE";
    row("明天下午三点二十开会", create, "datetime", "明天下午三点二十", "2026-03-12T15:20:00", true);
    row("明天下午三点二十开会", create, "datetime", "明天下午三点二十", "2026-03-12T03:20:00", false);
    row("明天下午三点二十开会", create, "datetime", "明天下午三点二十", "2026-03-12T15:02:00", false);
    row("明天下午三点二十开会", create, "datetime", "明天下午三点二十", "2026-03-11T15:20:00", false);
    row("明天下午三点二十开会", create, "datetime", "明天下午三点", "2026-03-12T15:00:00", false);
    row("下周三开会", create, "datetime", "下周三", "2026-03-18", true);
    row("下周三开会", create, "datetime", "下周三", "2026-03-11", false);
    row("8点开会", create, "datetime", "8点", "2026-03-11T20:00:00", true);
    row("8点开会", create, "datetime", "8点", "2026-03-11T19:00:00", false);
    row("3月20号开会", create, "datetime", "3月20号", "2026-03-20", true);
    row("3月20号开会", create, "datetime", "3月20号", "2026-04-20", false);
    row("和张伟开会", create, "name", "张伟", "李娜", false);
    row("加入会议一二三", join, "id", "一二三", "123", true);
    row("加入会议一二三", join, "id", "一二三", "132", false);
    row("加入会议12三456", join, "id", "123", "123", false);
    row("添加好友200002", "ADD_BUDDY", "account", "200002", "200020", false);
}

void TestMutatedCommands::whatWasNotSaidIsFound()
{
    QFETCH(QString, sentence);
    QFETCH(QString, intent);
    QFETCH(QString, slot);
    QFETCH(QString, value);
    QFETCH(QString, normValue);
    const QString norm = slot == QLatin1String("datetime")
                             ? QStringLiteral("{\"suggestDatetime\":\"%1\"}").arg(normValue)
                             : normValue;
    const QJsonObject done{{QStringLiteral("intent"), intent},
                           {QStringLiteral("slots"), QJsonArray{QJsonObject{
                                                         {QStringLiteral("name"), slot},
                                                         {QStringLiteral("value"), value},
                                                         {QStringLiteral("normValue"), norm},
                                                     }}}};
    QTEST(faultOf(sentence, done).isEmpty(), "isSaid");
}

QTEST_APPLESS_MAIN(TestMutatedCommands)
#include "tst_mutatedcommands.moc"
