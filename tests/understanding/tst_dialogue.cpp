// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "logcapture.h"
#include "sentencefile.h"
#include "testcolumns.h"

#include <understanding/dialogue.h>

#include <QtTest>

using understanding::Dialogue;

/// Conversations, turn by turn: what the user types or the plugin answers, and the outcome.
class TestDialogue : public QObject
{
    Q_OBJECT

private:
    static constexpr int PasswordNeeded = -16014;
    const QDateTime m_now{QDate(2026, 3, 7), QTime(10, 20)};

    QString meaning(Dialogue &dialogue, const char *sentence) const
    {
        return meaningOf(dialogue.turn(QString::fromUtf8(sentence), m_now));
    }

private Q_SLOTS:
    void aConversationGoes_data()
    {
        QTest::addColumn<QStringList>("turns");
        const auto row = [](const char *name, std::initializer_list<const char *> turns) {
            QStringList list;
            for (const char *turn : turns) {
                list.append(QString::fromUtf8(turn));
            }
            QTest::newRow(name) << list;
        };
        row("a missing number is asked for and taken",
            {"加入会议", "? which-conference", "123456", "ENETR_ID_CONFERENCE id=123456"});
        row("a number is taken with its label",
            {"加入会议", "? which-conference", "会议号是幺二三四", "ENETR_ID_CONFERENCE id=1234"});
        row("a number is taken with words around",
            {"帮我入会", "? which-conference", "嗯，是 123 456 吧", "ENETR_ID_CONFERENCE id=123456"});
        row("a password that came first is kept", {"加入会议，密码1234", "? which-conference", "567890",
                                                   "ENETR_ID_CONFERENCE id=567890 password=1234"});
        row("number and password in one answer", {"加入会议", "? which-conference", "123456，密码0088",
                                                  "ENETR_ID_CONFERENCE id=123456 password=0088"});
        row("whom to invite",
            {"邀请", "? whom-to-invite", "张伟和李娜", "INVITE_CONFERENCE name=张伟 name=李娜"});
        row("whom to invite, somebody unknown",
            {"邀请成员", "? whom-to-invite", "赵云，还有马超", "INVITE_CONFERENCE name=赵云 name=马超"});
        row("whom to meet, when only a form of address was said",
            {"和兄弟明天下午三点开会", "? whom-to-invite", "张伟",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-08T15:00"});
        row("whom to meet comes behind the time, and is not forgotten",
            {"下周下午三点和兄弟开会", "? which-day", "周三", "? whom-to-invite", "李娜",
             "CREATE_CONFERENCE open=开 name=李娜 datetime=2026-03-11T15:00"});
        row("a form of address beside an answer is nothing",
            {"加入会议", "? which-conference", "123456，兄弟", "ENETR_ID_CONFERENCE id=123456"});
        row("nor beside an end", {"加入会议", "? which-conference", "算了兄弟", "? cancelled"});
        row("whom to add, a phone number",
            {"加好友", "? whom-to-add", "138 0013 8000", "ADD_BUDDY account=13800138000"});
        row("whom to add, a mail address",
            {"加好友", "? whom-to-add", "账号是lisi@example.com", "ADD_BUDDY account=lisi@example.com"});
        row("whom to add, two numbers",
            {"加好友13800138000 13900139000", "? whom-to-add", "13800138000 13900139000", "? whom-to-add",
             "13800138000", "ADD_BUDDY account=13800138000"});
        row("whom to add, a name", {"加好友", "? whom-to-add", "赵云", "ADD_BUDDY account=赵云"});
        row("a missing day is taken and the rest kept",
            {"下周下午三点和张伟开会", "? which-day", "周三",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-11T15:00"});
        row("a contradiction is mended and the day kept",
            {"明天上午13点和张伟开会", "? contradiction", "下午一点",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-08T13:00"});
        row("a date that does not exist is mended", {"2月30号下午三点开会", "? no-such-date", "3月20号",
                                                     "CREATE_CONFERENCE open=开 datetime=2026-03-20T15:00"});
        row("a time that is still wrong is asked again",
            {"上午13点开会", "? contradiction", "上午14点", "? contradiction", "下午两点",
             "CREATE_CONFERENCE open=开 datetime=2026-03-07T14:00"});
        row("a day to query is asked for",
            {"下周有什么会", "? which-day", "下周二", "QUERY_CONFERENCE datetime=2026-03-10"});

        row("an hour that no clock has is forgotten",
            {"明天25点和张伟开会", "? contradiction", "下午",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-08T15:00"});
        row("a number with something strange in it is asked for again",
            {"加入会议", "? which-conference", "123百456", "? whole-number", "123456",
             "ENETR_ID_CONFERENCE id=123456"});

        row("算了 ends a question",
            {"加入会议", "? which-conference", "算了", "? cancelled", "123456", "? not-understood"});
        row("取消 ends a question",
            {"加好友", "? whom-to-add", "取消吧", "? cancelled", "13800138000", "? not-understood"});
        row("不用了 ends a question", {"邀请", "? whom-to-invite", "不用了，谢谢", "? cancelled"});
        row("without a question 算了 is nothing", {"算了", "? not-understood"});
        row("a new full command ends a question",
            {"加入会议", "? which-conference", "明天有会吗", "QUERY_CONFERENCE datetime=2026-03-08", "123456",
             "? not-understood"});
        row("a new full command with other people and a time keeps nobody of the old one",
            {"一会儿和张伟开会", "? which-time", "明天下午三点和李娜开会",
             "CREATE_CONFERENCE open=开 name=李娜 datetime=2026-03-08T15:00"});
        row("somebody more comes with the time that was asked for",
            {"一会儿和张伟开会", "? which-time", "再加上李娜，下午五点",
             "CREATE_CONFERENCE open=开 name=张伟 name=李娜 datetime=2026-03-07T17:00"});
        row("somebody else comes in place of who was named",
            {"一会儿和张伟开会", "? which-time", "改成跟李娜，下午五点",
             "CREATE_CONFERENCE open=开 name=李娜 datetime=2026-03-07T17:00"});
        row("now answers when",
            {"一会儿和张伟开会", "? which-time", "现在", "CREATE_CONFERENCE open=开 name=张伟"});
        row("a new command that lacks something asks its own question",
            {"加入会议", "? which-conference", "加好友", "? whom-to-add", "lisi2024",
             "ADD_BUDDY account=lisi2024"});
        row("the same question is put three times",
            {"加入会议", "? which-conference", "今天天气不错", "? which-conference", "你好",
             "? which-conference", "哈哈", "? given-up", "123456", "? not-understood"});
        row("chit-chat with a number fills nothing",
            {"加入会议", "? which-conference", "我今年买了3500斤苹果", "? which-conference"});
        row("chit-chat invites nobody", {"邀请", "? whom-to-invite", "今天天气真不错", "? whom-to-invite"});
        row("chit-chat adds nobody", {"加好友", "? whom-to-add", "我不知道啊", "? whom-to-add"});
        row("an answer comes after chit-chat",
            {"加入会议", "? which-conference", "等我看看", "? which-conference", "123456",
             "ENETR_ID_CONFERENCE id=123456"});

        row("the password is for the same number",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "8888",
             "ENETR_ID_CONFERENCE id=123456 password=8888"});
        row("a password read aloud", {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password",
                                      "零零幺二", "ENETR_ID_CONFERENCE id=123456 password=0012"});
        row("a password with its label", {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password",
                                          "密码是8888", "ENETR_ID_CONFERENCE id=123456 password=8888"});
        row("a wrong password may be mended",
            {"加入会议123456，密码1", "ENETR_ID_CONFERENCE id=123456 password=1", "!password", "2222",
             "ENETR_ID_CONFERENCE id=123456 password=2222", "!password", "3333",
             "ENETR_ID_CONFERENCE id=123456 password=3333"});
        row("three passwords are enough", {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password",
                                           "1111", "ENETR_ID_CONFERENCE id=123456 password=1111", "!password",
                                           "2222", "ENETR_ID_CONFERENCE id=123456 password=2222", "!password",
                                           "3333", "ENETR_ID_CONFERENCE id=123456 password=3333", "!password",
                                           "4444", "? passwords-tried", "5555", "? not-understood"});
        row("the passwords of another conference do not count",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "1111",
             "ENETR_ID_CONFERENCE id=123456 password=1111", "!password", "2222",
             "ENETR_ID_CONFERENCE id=123456 password=2222", "!password", "加入会议654321",
             "ENETR_ID_CONFERENCE id=654321", "!password", "3333",
             "ENETR_ID_CONFERENCE id=654321 password=3333", "!password", "4444",
             "ENETR_ID_CONFERENCE id=654321 password=4444"});
        row("the password question is put three times",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "我忘了", "? which-password",
             "等等", "? which-password", "哈哈", "? given-up"});
        row("算了 ends the password question",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "算了", "? cancelled"});
        row("a command ends the password question",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "结束会议", "CLOSE_CONFERENCE",
             "8888", "? not-understood"});
        row("another number ends the password question",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "加入会议654321",
             "ENETR_ID_CONFERENCE id=654321"});
        row("a password for my conference needs its number",
            {"加入我的会议", "ENTER_MY_CONFERENCE", "!password", "8888", "? which-conference", "123456",
             "ENETR_ID_CONFERENCE id=123456 password=8888"});
        row("other replies open nothing",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!other", "8888", "? not-understood"});
        row("a doubtful end is asked about, and 好 ends the conference",
            {"会议结束了", "? confirm-close", "好的", "CLOSE_CONFERENCE", "好的", "? not-understood"});
        row("退出 says yes to the end", {"散会了", "? confirm-close", "退出吧", "CLOSE_CONFERENCE"});
        row("不 keeps the conference",
            {"会议结束了", "? confirm-close", "不是", "? cancelled", "好", "? not-understood"});
        row("what is neither yes nor no does nothing",
            {"会议结束了", "? confirm-close", "今天天气不错", "? confirm-close", "哈哈", "? confirm-close",
             "好像吧", "? given-up", "好", "? not-understood"});
        row("a doubtful conference keeps its people and its time",
            {"张伟明天三点开会", "? confirm-create-then", "对",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-08T15:00"});
        row("a command ends the doubt", {"会议结束了", "? confirm-close", "加入会议123456",
                                         "ENETR_ID_CONFERENCE id=123456", "好", "? not-understood"});
        row("a negation asks nothing", {"别把会议关掉", "? not-meant", "好", "? not-understood"});
        row("somebody else's doing asks nothing", {"他结束了会议", "? not-meant", "好", "? not-understood"});

        row("either-or keeps the day and the people",
            {"明天下午三点或者四点和张伟开会", "? either-or", "四点吧",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-08T16:00"});
        row("recurring keeps the hour and the people",
            {"每周三下午三点和张伟开会", "? recurring", "就下周三",
             "CREATE_CONFERENCE open=开 name=张伟 datetime=2026-03-11T15:00"});
        row("another zone keeps the people, not its hour",
            {"伦敦时间下午三点和李娜开会", "? other-zone", "晚上十一点",
             "CREATE_CONFERENCE open=开 name=李娜 datetime=2026-03-07T23:00"});
        row("不开了 gives the question up and leaves no conference",
            {"一会儿开个会", "? which-time", "不开了", "? cancelled", "四点", "? not-understood"});
        row("先不开了 gives up", {"一会儿开个会", "? which-time", "先不开了", "? cancelled"});
        row("算了 with an explanation gives up",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "算了，我再问问", "? cancelled",
             "8888", "? not-understood"});
        row("a number is corrected in the answer",
            {"加入会议", "? which-conference", "123456，不对，123457", "ENETR_ID_CONFERENCE id=123457"});
        row("a password is corrected in the answer",
            {"加入会议123456", "ENETR_ID_CONFERENCE id=123456", "!password", "1357 不对 1375",
             "ENETR_ID_CONFERENCE id=123456 password=1375"});
        row("a number that touches something unread is asked for again",
            {"加入会议123百456", "? whole-number", "123456", "ENETR_ID_CONFERENCE id=123456"});

        row("a password is only asked for after joining",
            {"结束会议", "CLOSE_CONFERENCE", "!unexpected", "8888", "? not-understood"});
    }
    void aConversationGoes()
    {
        QFETCH(QStringList, turns);
        Dialogue dialogue({QStringLiteral("张伟"), QStringLiteral("李娜")});
        for (int at = 0; at < turns.size();) {
            const QString &said = turns.at(at);
            if (said == QLatin1String("!password")) {
                dialogue.noteReply(PasswordNeeded, QStringLiteral("请输入密码:"));
                QVERIFY(dialogue.nextIsSecret());
                ++at;
            } else if (said == QLatin1String("!unexpected")) {
                dialogue.noteReply(PasswordNeeded, QStringLiteral("请输入密码:"));
                QVERIFY(!dialogue.nextIsSecret());
                ++at;
            } else if (said == QLatin1String("!other")) {
                dialogue.noteReply(-16007, QStringLiteral("抱歉，未查询到视频会议。"));
                QVERIFY(!dialogue.nextIsSecret());
                ++at;
            } else {
                QCOMPARE(meaningOf(dialogue.turn(said, m_now)), inOrder(turns.at(at + 1)));
                at += 2;
            }
        }
    }

    void eachTryIsClearerThanTheOneBefore()
    {
        for (const char *opening :
             {"加入会议", "邀请", "加好友", "下周开会", "2月30号开会", "上午13点开会", "凌晨开会"}) {
            Dialogue dialogue;
            QStringList texts;
            texts << dialogue.turn(QString::fromUtf8(opening), m_now);
            texts << dialogue.turn(QStringLiteral("哈哈"), m_now)
                  << dialogue.turn(QStringLiteral("哈哈"), m_now);
            QCOMPARE(texts.removeDuplicates(), 0);
        }
    }

    void aQuestionNamesWhatItIsAbout_data()
    {
        addColumns<QString, QString>({"sentence", "question"});
        const auto row = [](const char *sentence, const char *question) {
            QTest::newRow(sentence) << QString::fromUtf8(sentence) << QString::fromUtf8(question);
        };
        row("该开会了", "要现在发起会议吗？");
        row("这个家长会里加上小宇妈妈", "要现在发起与小宇妈妈的会议吗？");
        row("约张伟和李娜明天三点开会，她没空", "要预约 3月8日 15:00 与张伟、李娜的会议吗？");
        row("明年1月2号上午十点给爷爷的寿宴开个筹备会", "要预约 2027年1月2日 10:00 的会议吗？");
        row("叫张伟、李娜、王磊、孙丽、李楠、小凯还是阿强",
            "要邀请张伟、李娜、王磊、孙丽、李楠等6人加入会议吗？");
        row("叫李娜还是叫李楠", "要邀请李娜、李楠加入会议吗？");
        row("约李娜三点开会，别叫李娜", "请问要邀请谁？");
        row("要进的会议是667788", "要加入会议 667788 吗？");
        row("修车师傅的好友我要加，账号 garage_wu", "要向garage_wu发送好友申请吗？");
    }
    void aQuestionNamesWhatItIsAbout()
    {
        QFETCH(QString, sentence);
        QFETCH(QString, question);
        Dialogue dialogue;
        const QJsonObject answer = QJsonDocument::fromJson(dialogue.turn(sentence, m_now).toUtf8()).object();
        QCOMPARE(answer.value(QStringLiteral("intent"))
                     .toObject()
                     .value(QStringLiteral("answer"))
                     .toObject()
                     .value(QStringLiteral("text"))
                     .toString(),
                 question);
    }

    void aPasswordIsMasked_data()
    {
        addColumns<bool, QString, QString>({"asked", "sentence", "shown"});
        QTest::newRow("as the answer") << true << QStringLiteral("8888") << QStringLiteral("••••");
        QTest::newRow("read aloud as the answer")
            << true << QStringLiteral("八八八八") << QStringLiteral("••••");
        QTest::newRow("in a sentence") << false << QStringLiteral("加入会议123456，密码8888")
                                       << QStringLiteral("加入会议123456，密码••••");
        QTest::newRow("a number is no password")
            << false << QStringLiteral("加入会议123456") << QStringLiteral("加入会议123456");
        QTest::newRow("a command is shown while one is asked for")
            << true << QStringLiteral("结束会议") << QStringLiteral("结束会议");
        QTest::newRow("giving up is shown") << true << QStringLiteral("算了") << QStringLiteral("算了");
    }
    void aPasswordIsMasked()
    {
        QFETCH(bool, asked);
        QFETCH(QString, sentence);
        QFETCH(QString, shown);
        Dialogue dialogue;
        dialogue.turn(QStringLiteral("加入会议123456"), m_now);
        QVERIFY(!dialogue.nextIsSecret());
        if (asked) {
            dialogue.noteReply(PasswordNeeded, QStringLiteral("请输入密码:"));
        }
        QCOMPARE(dialogue.masked(sentence), shown);
    }

    void nothingIsLogged()
    {
        LogCapture log;
        Dialogue dialogue;
        dialogue.turn(QStringLiteral("加入会议123456，密码8888"), m_now);
        dialogue.noteReply(PasswordNeeded, QStringLiteral("请输入密码:"));
        dialogue.masked(QStringLiteral("9999"));
        dialogue.turn(QStringLiteral("我忘了"), m_now);
        dialogue.turn(QStringLiteral("9999"), m_now);
        dialogue.turn(QString(501, QLatin1Char('9')), m_now);
        QCOMPARE(log.lines(), QStringList());
    }

    void namesMayChangeDuringTheConversation()
    {
        Dialogue dialogue;
        QCOMPARE(meaning(dialogue, "哆啦加进来"), QStringLiteral("? not-understood"));
        dialogue.setContactNames({QStringLiteral("哆啦")});
        QCOMPARE(meaning(dialogue, "哆啦加进来"), QStringLiteral("INVITE_CONFERENCE name=哆啦"));
    }

    void aSentenceThatIsTooLongLeavesTheQuestionOpen()
    {
        Dialogue dialogue;
        dialogue.turn(QStringLiteral("加入会议"), m_now);
        QCOMPARE(meaningOf(dialogue.turn(QString(501, QChar(u'会')), m_now)), QStringLiteral("? too-long"));
        QCOMPARE(meaning(dialogue, "123456"), QStringLiteral("ENETR_ID_CONFERENCE id=123456"));
    }
};

QTEST_APPLESS_MAIN(TestDialogue)
#include "tst_dialogue.moc"
