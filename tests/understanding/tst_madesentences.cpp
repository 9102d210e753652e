// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filecontent.h"
#include "labelledrows.h"
#include "testcolumns.h"

#include <QJsonObject>
#include <QtTest>

#include <functional>

/// Many kinds of conferences and many names, each put into the same orders and remarks: a word of the rules
/// that reaches into one of them shows here.
class TestMadeSentences : public QObject
{
    Q_OBJECT

private:
    /// Returns the words of a file of this folder, without its comments.
    static QStringList wordsOf(const QString &fileName)
    {
        QStringList words;
        const QByteArray content =
            contentOf(QStringLiteral(CONTACT_SOURCE_DIR "/tests/understanding/") + fileName);
        const QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (!line.startsWith(QLatin1Char('#'))) {
                words += line.split(QLatin1Char(' '), Qt::SkipEmptyParts);
            }
        }
        return words;
    }

    static LabelledRow rowOf(const QString &sentence, const QJsonArray &accept)
    {
        LabelledRow row;
        row.title = sentence;
        row.now = QDateTime(QDate(2026, 11, 22), QTime(9, 30));
        row.turns = {{sentence, accept}};
        return row;
    }

    static QJsonObject act(const char *intent, const QStringList &names, const QString &start)
    {
        QJsonObject outcome{{QStringLiteral("do"), QStringLiteral("act")},
                            {QStringLiteral("intent"), QString::fromLatin1(intent)},
                            {QStringLiteral("names"), QJsonArray::fromStringList(names)}};
        if (!start.isEmpty()) {
            outcome.insert(QStringLiteral("start"), start);
        }
        return outcome;
    }

    /// Puts each word of @p fileName into the sentence that the data row is called after.
    static Rates ratesOf(const QString &fileName, const std::function<QJsonArray(const QString &)> &accepted)
    {
        const QString sentence = QString::fromUtf8(QTest::currentDataTag());
        const QStringList words = wordsOf(fileName);
        Rates rates;
        for (const QString &word : words) {
            rates.add(rowOf(sentence.arg(word), accepted(word)));
        }
        return rates;
    }

    /// Fails when more than @p most sentences are not understood as they should be.
    static void verify(const Rates &rates, int most)
    {
        const int wrong = rates.sentences - rates.sentencesRight;
        QVERIFY(rates.sentences > 200);
        QVERIFY2(wrong <= most, qPrintable(QString::number(wrong) + QStringLiteral(" wrong: ") +
                                           rates.failures.join(QStringLiteral("; "))));
    }

private Q_SLOTS:
    void kindsAreOpened_data();
    void remarksAboutKindsAreNotActedOn_data();
    void peopleAreCalledByTheirNames_data();

    void kindsAreOpened();
    void remarksAboutKindsAreNotActedOn();
    void peopleAreCalledByTheirNames();
};

void TestMadeSentences::kindsAreOpened_data()
{
    addColumns<QString, QStringList>({"start", "names"});
    const QStringList nobody;
    const QStringList somebody{QStringLiteral("张伟")};
    QTest::newRow("后天上午十点召开%1会") << "2026-11-24T10:00:00" << nobody;
    QTest::newRow("后天上午十点开个%1会") << "2026-11-24T10:00:00" << nobody;
    QTest::newRow("后天上午十点安排一个%1会议") << "2026-11-24T10:00:00" << nobody;
    QTest::newRow("帮我约个%1会，后天上午十点") << "2026-11-24T10:00:00" << nobody;
    QTest::newRow("建一个明天三点的%1会") << "2026-11-23T15:00:00" << nobody;
    QTest::newRow("明天三点开%1会，叫上张伟") << "2026-11-23T15:00:00" << somebody;
    QTest::newRow("明天三点和张伟开%1会") << "2026-11-23T15:00:00" << somebody;
}

void TestMadeSentences::kindsAreOpened()
{
    QFETCH(QString, start);
    QFETCH(QStringList, names);
    const QJsonObject created = act("create_conference", names, start);
    verify(
        ratesOf(QStringLiteral("conferencekinds.txt"), [&](const QString &) { return QJsonArray{created}; }),
        names.isEmpty() ? 4 : 12);
}

void TestMadeSentences::remarksAboutKindsAreNotActedOn_data()
{
    QTest::addColumn<QString>("remark");
    for (const char *remark : {"昨天开了个%1会",       "%1会开完了",           "他们明天三点开%1会",
                               "%1会取消了",           "下周不开%1会了",       "听说明天下午三点有%1会",
                               "张伟说明天三点开%1会", "上周的%1会谁主持的",   "%1会已经开始了",
                               "明天三点的%1会你去吗", "李娜在开%1会",         "公司明天召开%1会",
                               "刚开完%1会，好累",     "他安排了一个%1会",     "我上午已经开过%1会",
                               "别安排%1会",           "我不想开%1会",         "%1会的纪要发了吗",
                               "去年的%1会开得不错",   "要是明天开%1会就好了", "为什么要开%1会",
                               "昨天%1会上老板说的"}) {
        QTest::newRow(remark) << QString::fromUtf8(remark);
    }
}

void TestMadeSentences::remarksAboutKindsAreNotActedOn()
{
    const QJsonArray nothing{QJsonObject{{QStringLiteral("do"), QStringLiteral("none")}},
                             QJsonObject{{QStringLiteral("do"), QStringLiteral("ask")}}};
    const Rates rates =
        ratesOf(QStringLiteral("conferencekinds.txt"), [&](const QString &) { return nothing; });
    QVERIFY(rates.negatives > 200);
    QVERIFY2(rates.negativesActedOn == 0, qPrintable(rates.failures.join(QStringLiteral("; "))));
}

void TestMadeSentences::peopleAreCalledByTheirNames_data()
{
    addColumns<QString, QString, QStringList>({"intent", "start", "others"});
    const QString create = QStringLiteral("create_conference");
    const QString invite = QStringLiteral("invite_to_conference");
    const QString tomorrow = QStringLiteral("2026-11-23T15:00:00");
    QTest::newRow("明天三点和%1开会") << create << tomorrow << QStringList();
    QTest::newRow("约%1明天下午三点开会") << create << tomorrow << QStringList();
    QTest::newRow("明天下午三点开个会，叫上%1") << create << tomorrow << QStringList();
    QTest::newRow("和%1、张伟明天三点开会") << create << tomorrow << QStringList{QStringLiteral("张伟")};
    QTest::newRow("明天三点跟%1和李娜碰一下") << create << tomorrow << QStringList{QStringLiteral("李娜")};
    QTest::newRow("邀请%1加入会议") << invite << QString() << QStringList();
    QTest::newRow("把%1拉进会议") << invite << QString() << QStringList();
    QTest::newRow("叫上%1") << invite << QString() << QStringList();
}

void TestMadeSentences::peopleAreCalledByTheirNames()
{
    QFETCH(QString, intent);
    QFETCH(QString, start);
    QFETCH(QStringList, others);
    const auto called = [&](const QString &name) {
        return QJsonArray{act(intent.toLatin1().constData(), QStringList{name} + others, start)};
    };
    verify(ratesOf(QStringLiteral("peoplenames.txt"), called), 12);
}

QTEST_APPLESS_MAIN(TestMadeSentences)
#include "tst_madesentences.moc"
