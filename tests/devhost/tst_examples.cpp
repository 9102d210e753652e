// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "realdesk.h"

#include "testcolumns.h"
#include "welcomepage.h"

using namespace devhost;

namespace {

constexpr int AsksForThePassword = -16014;
constexpr int AsksWhichOfThem = -16003;

QStringList linesOf(const QString &file)
{
    QFile text(QStringLiteral(CONTACT_SOURCE_DIR "/") + file);
    QStringList lines;
    if (text.open(QIODevice::ReadOnly)) {
        lines = QString::fromUtf8(text.readAll()).split(QLatin1Char('\n'));
        lines.removeAll(QString());
    }
    return lines;
}

QStringList allMatches(const QString &pattern, const QString &text)
{
    QStringList found;
    auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext()) {
        found << match.next().captured(1);
    }
    return found;
}

/// Returns the sentences of a document: quotes longer than a button's text and, in Chinese ones, list items.
QStringList sentencesOf(const QString &file)
{
    const QString text = linesOf(file).join(QLatin1Char('\n'));
    QStringList sentences = allMatches(QStringLiteral("[“\"]([\\x{4e00}-\\x{9fff}]{4}[^”\"]*)[”\"]"), text);
    if (file.endsWith(QLatin1String(".zh-CN.md"))) {
        sentences += allMatches(QStringLiteral("^- (.+)$"), text);
    }
    return sentences;
}

} // namespace

/**
 * Every sentence we suggest works on the sample data, in the order shown. The sentences are read from the
 * places that show them; each run uses another time of day.
 */
class TestExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void welcomePageWorksInItsOrder();
    void welcomePageWorksOneByOne();
    void documentsWork_data();
    void documentsWork();
    void exampleOfTheRefusalWorks();
    void helpWorksAndNamesWhoIsThere();
    void requestsWorkAndShowAllSeven();
    void conversationEndsAsItSays();

private:
    /// Says an example from the documents and follows its remark: "SENTENCE（REMARK）".
    static void follow(RealDesk &desk, const QString &example);
};

void TestExamples::init()
{
    QVERIFY(RealDesk::loadSample());
}

void TestExamples::follow(RealDesk &desk, const QString &example)
{
    if (example == QStringLiteral("你会什么")) {
        desk.say(example);
        QVERIFY(desk.lastTurn().display.contains(QStringLiteral("您可以说")));
        return;
    }
    const int remarkAt = example.indexOf(QStringLiteral("（"));
    const QString remark = remarkAt < 0 ? QString() : example.mid(remarkAt);
    desk.say(example.left(remarkAt));
    const int code = desk.lastTurn().code;
    const QByteArray said = QStringLiteral("%1: %2 (%3)").arg(example, desk.lastText()).arg(code).toUtf8();
    QVERIFY2(desk.lastTurn().failure.isEmpty() && !desk.lastTurn().calls.isEmpty(), said.constData());
    if (code == AsksForThePassword) {
        const QStringList password = allMatches(QStringLiteral("密码是 ?([0-9A-Za-z]+)"), remark);
        QVERIFY2(!password.isEmpty(), said.constData());
        desk.say(password.constFirst());
        QVERIFY2(desk.lastTurn().code == 0, said.constData());
    } else if (code == AsksWhichOfThem) {
        QWidget *card = nullptr;
        QTRY_VERIFY2((card = desk.lastCard()) != nullptr, said.constData());
        QVERIFY2(remark.contains(QStringLiteral("请在卡片上选")), said.constData());
        const auto labels = card->findChildren<QLabel *>();
        const QString name = allMatches(QStringLiteral("位([^，]+)，"), remark).value(0);
        const auto row = std::find_if(labels.begin(), labels.end(), [&name](const QLabel *label) {
            return label->isVisible() && label->text().contains(name);
        });
        QVERIFY2(row != labels.end(), said.constData());
        QTest::mouseClick(*row, Qt::LeftButton);
        const QSignalSpy picked(&desk.conversation(), &Conversation::repliedLater);
        auto *confirm = desk.shown<QPushButton>(QStringLiteral("确 认"));
        QVERIFY2(confirm != nullptr && confirm->isEnabled(), said.constData());
        QTest::mouseClick(confirm, Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(picked.size(), 1, 20000);
        QCOMPARE(picked.first().at(1).value<Reply>().code.toInt(), 0);
    } else {
        QVERIFY2(code == 0, said.constData());
    }
}

void TestExamples::welcomePageWorksInItsOrder()
{
    RealDesk desk;
    QStringList examples;
    const auto buttons = desk.window().findChildren<QPushButton *>(QStringLiteral("example"));
    for (const auto *button : buttons) {
        examples << button->text();
    }
    QVERIFY(examples.size() >= 4);
    for (const QString &example : qAsConst(examples)) {
        follow(desk, example);
    }
}

void TestExamples::welcomePageWorksOneByOne()
{
    const auto examples = WelcomePage::examples();
    for (const QString &example : examples) {
        QVERIFY(RealDesk::loadSample());
        RealDesk desk;
        follow(desk, example);
    }
}

void TestExamples::documentsWork_data()
{
    addColumns<QString, int>({"file", "sentences"});

    QTest::newRow("README.md") << "README.md" << 1;
    QTest::newRow("README.zh-CN.md") << "README.zh-CN.md" << 7;
    QTest::newRow("docs/tour.md") << "docs/tour.md" << 1;
}

void TestExamples::documentsWork()
{
    QFETCH(const QString, file);
    QFETCH(const int, sentences);

    const QStringList examples = sentencesOf(file);
    QVERIFY2(examples.size() >= sentences, qPrintable(QString::number(examples.size())));
    RealDesk desk;
    for (const QString &example : examples) {
        follow(desk, example);
    }
}

void TestExamples::exampleOfTheRefusalWorks()
{
    RealDesk desk;
    desk.say(QStringLiteral("今天天气怎么样"));
    const QStringList examples = allMatches(QStringLiteral("“([^”]+)”"), desk.lastText());
    QVERIFY(!examples.isEmpty());
    for (const QString &example : examples) {
        follow(desk, example + QStringLiteral("（有三位张伟，请在卡片上选）"));
    }
}

void TestExamples::helpWorksAndNamesWhoIsThere()
{
    RealDesk desk;
    // The names are known once the application has answered.
    auto *account = desk.window().findChild<QLabel *>(QStringLiteral("statusAccount"));
    QTRY_COMPARE(account->text(), QStringLiteral("王小明（100001）"));
    desk.say(QStringLiteral("你能做什么？"));
    const QString help = desk.lastTurn().display;
    QCOMPARE(help.count(QLatin1Char('\n')), 9);
    QVERIFY2(help.contains(QStringLiteral("李静")), qUtf8Printable(help));
    QVERIFY2(!help.contains(QStringLiteral("张伟")), qUtf8Printable(help));
    const QStringList examples = allMatches(QStringLiteral("“([^”]{3,})”"), help);
    QVERIFY(examples.size() >= 8);
    for (const QString &example : examples) {
        follow(desk, example);
    }
}

void TestExamples::requestsWorkAndShowAllSeven()
{
    RealDesk desk;
    const QStringList requests = linesOf(QStringLiteral("data/requests.jsonl"));
    QSet<QString> actions;
    QVector<int> questions;
    for (const QString &request : requests) {
        desk.say(request);
        const Turn turn = desk.lastTurn();
        QVERIFY2(turn.failure.isEmpty(), qUtf8Printable(request));
        for (const AbilityCall &call : turn.calls) {
            actions.insert(call.action);
        }
        if (turn.code == AsksForThePassword || turn.code == AsksWhichOfThem) {
            questions << turn.code;
        } else {
            QVERIFY2(turn.code == 0, qUtf8Printable(request + QLatin1Char(' ') + turn.display));
        }
    }
    // The password prompt and the choice appear once each.
    QCOMPARE(questions, (QVector<int>{AsksForThePassword, AsksWhichOfThem}));
    QCOMPARE(actions, (QSet<QString>{QStringLiteral("Create Conference"), QStringLiteral("Invite Members"),
                                     QStringLiteral("Join Conference"), QStringLiteral("Join My Conference"),
                                     QStringLiteral("Search Conference"), QStringLiteral("Exit Conference"),
                                     QStringLiteral("Add Friends")}));
}

void TestExamples::conversationEndsAsItSays()
{
    RealDesk desk;
    int sentences = 0;
    int answers = 0;
    const auto lines = linesOf(QStringLiteral("data/conversation.txt"));
    for (const QString &line : lines) {
        const QString mark = QStringLiteral("# => ");
        if (line.startsWith(mark)) {
            ++answers;
            QString expected = line.mid(mark.size());
            QString said = desk.lastTurn().display;
            if (expected.endsWith(QChar(0x2026))) {
                expected.chop(1);
                said.truncate(expected.size());
            }
            QCOMPARE(said, expected);
            QCOMPARE(answers, sentences);
        } else if (!line.startsWith(QLatin1Char('#'))) {
            ++sentences;
            desk.say(line);
        }
    }
    QVERIFY(sentences > 20);
    QCOMPARE(answers, sentences);
}

QTEST_MAIN(TestExamples)
#include "tst_examples.moc"
