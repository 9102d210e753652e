// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sentencefile.h"

#include <understanding/understand.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <random>

/// Commands with a piece dropped, doubled or moved, as typed in haste: whatever is carried out contains only
/// names that were said and leaves over no part of a number or a time.
class TestMutatedCommands : public QObject
{
    Q_OBJECT

private:
    static constexpr int Mutations = 1000;

    static QJsonObject commandOf(const QString &json)
    {
        const QJsonObject intent =
            QJsonDocument::fromJson(json.toUtf8()).object().value(QStringLiteral("intent")).toObject();
        return intent.value(QStringLiteral("shouldEndSession")).toBool()
                   ? intent.value(QStringLiteral("semantic")).toArray().at(0).toObject()
                   : QJsonObject();
    }

    /// Returns the sentence with one or two characters dropped, doubled, or moved to another place.
    static QString mutated(QString sentence, std::mt19937 &random)
    {
        const auto below = [&](int count) {
            return std::uniform_int_distribution<int>(0, qMax(0, count - 1))(random);
        };
        const int length = 1 + below(2);
        const int at = below(sentence.size() - length + 1);
        const QString word = sentence.mid(at, length);
        switch (below(3)) {
        case 0:
            return sentence.remove(at, length);
        case 1:
            return sentence.insert(at, word);
        default:
            sentence.remove(at, length);
            return sentence.insert(below(sentence.size() + 1), word);
        }
    }

    /// Returns the sentence with everything that the command used masked out.
    static QString leftOver(QString sentence, const QJsonObject &command)
    {
        const QJsonArray slotArray = command.value(QStringLiteral("slots")).toArray();
        for (const QJsonValue &value : slotArray) {
            const QJsonObject slot = value.toObject();
            // A time may be split over two places: 明天和张伟三点.
            const QString said = slot.value(QStringLiteral("value")).toString();
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

private Q_SLOTS:
    void nothingIsActedOnThatWasNotSaid_data()
    {
        QTest::addColumn<QString>("command");
        for (const char *command :
             {"明天下午三点二十和张伟开会", "加入会议123456789", "后天上午十点半约李娜和王磊开视频会议",
              "加入会议幺二三四五六七八九", "20号下午3点半预约会议，叫上赵云", "加入会议555666777，密码4321",
              "下周三下午两点和王总开会", "邀请赵云和马超加入会议", "添加好友13800138000",
              "3月20号上午九点四十五安排会议"}) {
            QTest::newRow(command) << QString::fromUtf8(command);
        }
    }
    void nothingIsActedOnThatWasNotSaid()
    {
        QFETCH(QString, command);
        const QDateTime now(QDate(2026, 3, 11), QTime(10, 20));
        const QStringList contacts{QStringLiteral("张伟"), QStringLiteral("李娜"), QStringLiteral("王磊")};
        std::mt19937 random(20260311); // NOLINT: the same mutations in every run
        // 一 is left out because it also occurs in words that are no numbers (一下).
        static const QRegularExpression numeral(
            QStringLiteral("[0-9零〇二三四五六七八九十两幺半]|点|刻|[上下]午|明天|后天|周"));
        int acted = 0;
        for (int run = 0; run < Mutations / 10; ++run) {
            const QString sentence = mutated(command, random);
            const QJsonObject done = commandOf(understanding::understand(sentence, now, contacts));
            if (done.isEmpty()) {
                continue;
            }
            ++acted;
            const QJsonArray slotArray = done.value(QStringLiteral("slots")).toArray();
            for (const QJsonValue &value : slotArray) {
                const QJsonObject slot = value.toObject();
                const QString name = slot.value(QStringLiteral("name")).toString();
                const QString said = slot.value(QStringLiteral("value")).toString();
                if (name == QLatin1String("name")) {
                    QVERIFY2(sentence.contains(said), qPrintable(sentence));
                }
            }
            const QString intent = done.value(QStringLiteral("intent")).toString();
            if (intent == QLatin1String("CREATE_CONFERENCE") || intent == QLatin1String("QUERY_CONFERENCE")) {
                const QString rest = leftOver(sentence, done);
                QVERIFY2(!rest.contains(numeral),
                         qPrintable(sentence + QStringLiteral(" leaves ") + rest + QStringLiteral(" from ") +
                                    QString::fromUtf8(QJsonDocument(done).toJson(QJsonDocument::Compact))));
            }
            if (intent == QLatin1String("ENETR_ID_CONFERENCE")) {
                QString digits;
                QString taken;
                for (const QChar character : sentence) {
                    const int value = QStringLiteral("零幺二三四五六七八九").indexOf(character);
                    if (character.isDigit()) {
                        digits += character;
                    } else if (value >= 0) {
                        digits += QString::number(value);
                    }
                }
                for (const QJsonValue &value : slotArray) {
                    taken += value.toObject().value(QStringLiteral("normValue")).toString();
                }
                QVERIFY2(taken.size() == digits.size(), qPrintable(sentence + QLatin1Char(' ') + taken));
            }
        }
        QVERIFY2(acted > 5, qPrintable(QString::number(acted))); // otherwise the test proves nothing
    }
};

QTEST_APPLESS_MAIN(TestMutatedCommands)
#include "tst_mutatedcommands.moc"
