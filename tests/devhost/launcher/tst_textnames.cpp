// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fakecontacts.h"

#include <QProcess>
#include <QtTest>

namespace {

/// The conversation in a terminal with the test plugin, which answers with the name that is called.
class TextProgram
{
public:
    TextProgram()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TESTPLUGIN_REPLIES"), QStringLiteral("ECHO"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(DEVHOST),
                        {QStringLiteral("--converse"), QStringLiteral("--language"), QStringLiteral("zh_CN"),
                         QStringLiteral("--plugin"), QStringLiteral(TEST_PLUGIN)});
    }
    ~TextProgram()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(LongestMsecs)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    /// Returns what is printed for @p sentence, up to the answer; empty if there is none.
    QString answerTo(const QString &sentence)
    {
        m_process.write(sentence.toUtf8() + '\n');
        QByteArray printed;
        const bool isAnswered = QTest::qWaitFor(
            [&] {
                printed += m_process.readAllStandardOutput();
                const int answer = printed.indexOf("助手：");
                return answer >= 0 && printed.indexOf('\n', answer) > answer;
            },
            LongestMsecs);
        return isAnswered ? QString::fromUtf8(printed) : QString();
    }

private:
    static constexpr int LongestMsecs = 20000;
    QProcess m_process;
};

} // namespace

/// The names that the contacts application knows, in the conversation in a terminal.
class TestTextNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theApplicationsNamesAreKnownAndFollowed();
};

void TestTextNames::theApplicationsNamesAreKnownAndFollowed()
{
    // Only those who know these names can take them for names.
    const QString first = QStringLiteral("张伟🐰");
    const QString second = QStringLiteral("李娜🐰");
    const QString invite = QStringLiteral("邀请%1");
    const QString answered = QStringLiteral("助手：%1");
    FakeContacts contacts({first});
    TextProgram program;
    QTRY_COMPARE(contacts.asked(), 1);
    QTRY_VERIFY(program.answerTo(invite.arg(first)).contains(answered.arg(first)));
    const QString doubted = program.answerTo(invite.arg(second));
    QVERIFY2(!doubted.isEmpty() && !doubted.contains(answered.arg(second)), qPrintable(doubted));

    contacts.change({second});
    QTRY_COMPARE(contacts.asked(), 2);
    QTRY_VERIFY(program.answerTo(invite.arg(second)).contains(answered.arg(second)));
}

QTEST_GUILESS_MAIN(TestTextNames)
#include "tst_textnames.moc"
