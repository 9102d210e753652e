// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "programrun.h"
#include "programtest.h"
#include "testcolumns.h"

namespace {

const QString Chinese = QStringLiteral("speakmate-devhost: 未知选项“nonsense”。参见 --help。\n");
const QString English = QStringLiteral("speakmate-devhost: Unknown option 'nonsense'. See --help.\n");

struct Run
{
    int status;
    QString output;
    QString errors;
};

using Environment = QMap<QString, QString>;

Run run(const QStringList &arguments, const Environment &locale, const QByteArray &input = QByteArray())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG", "DISPLAY", "WAYLAND_DISPLAY"}) {
        environment.remove(QLatin1String(name));
    }
    for (auto value = locale.begin(); value != locale.end(); ++value) {
        environment.insert(value.key(), value.value());
    }
    const ProgramRun result = runProgram(QStringLiteral(DEVHOST), arguments, input, environment);
    return {result.status, QString::fromUtf8(result.output), QString::fromUtf8(result.errors)};
}

} // namespace

/// The program's language, seen from outside.
class TestChosenLanguage : public ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void localeChooses_data();
    void localeChooses();
    void optionOverrides_data();
    void optionOverrides();
    void unknownLanguageIsRefused_data();
    void unknownLanguageIsRefused();
    void helpIsInTheLanguage();
    void missingDisplayIsToldInTheLanguage();
    void terminalSpeaksTheLanguageAndTheAssistantChinese_data();
    void terminalSpeaksTheLanguageAndTheAssistantChinese();
    void lineErrorsAreInTheLanguage();
};

void TestChosenLanguage::localeChooses_data()
{
    addColumns<Environment, QString>({"locale", "told"});
    const auto row = [](const char *name, const char *settings, const QString &told) {
        Environment locale;
        const QStringList assignments = QString::fromLatin1(settings).split(QLatin1Char(' '));
        for (const QString &assignment : assignments) {
            locale.insert(assignment.section(QLatin1Char('='), 0, 0),
                          assignment.section(QLatin1Char('='), 1));
        }
        QTest::newRow(name) << locale << told;
    };
    QTest::newRow("none") << Environment{} << English;
    row("Chinese", "LANG=zh_CN.UTF-8", Chinese);
    row("Chinese of Taiwan", "LANG=zh_TW.UTF-8", Chinese);
    row("English", "LANG=en_GB.UTF-8", English);
    row("without translation", "LANG=de_DE.UTF-8", English);
    row("messages before the rest", "LANG=en_GB.UTF-8 LC_MESSAGES=zh_CN.UTF-8", Chinese);
    row("all before messages", "LC_ALL=en_GB.UTF-8 LC_MESSAGES=zh_CN.UTF-8", English);
    row("the first of a list that there is", "LANG=en_GB.UTF-8 LANGUAGE=de:zh_CN:en", Chinese);
    row("no locale, whatever the list says", "LC_ALL=C.UTF-8 LANGUAGE=zh_CN:zh", English);
    row("English before Chinese", "LANG=zh_CN.UTF-8 LANGUAGE=en_GB:zh_CN", English);
}

void TestChosenLanguage::localeChooses()
{
    QFETCH(Environment, locale);
    const Run result = run({QStringLiteral("--converse"), QStringLiteral("--nonsense")}, locale);
    QTEST(result.errors, "told");
    QCOMPARE(result.status, 2);
}

void TestChosenLanguage::optionOverrides_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("told");
    for (const char *code : {"zh_CN", "zh-CN", "zh", "zh_SG"}) {
        QTest::newRow(code) << code << Chinese;
    }
    for (const char *code : {"en", "en_US", "en-GB"}) {
        QTest::newRow(code) << code << English;
    }
}

void TestChosenLanguage::optionOverrides()
{
    QFETCH(QString, code);
    QFETCH(QString, told);
    const QString other = told == Chinese ? QStringLiteral("en_US.UTF-8") : QStringLiteral("zh_CN.UTF-8");
    const QStringList arguments{QStringLiteral("--converse"), QStringLiteral("--nonsense"),
                                QStringLiteral("--language"), code};
    QCOMPARE(run(arguments, {{QStringLiteral("LANG"), other}}).errors, told);
}

void TestChosenLanguage::unknownLanguageIsRefused_data()
{
    QTest::addColumn<QString>("code");
    for (const char *code : {"fr", "zh_TW", "Chinese", "C", "", "../zh_CN"}) {
        QTest::newRow(*code == '\0' ? "empty" : code) << code;
    }
}

void TestChosenLanguage::unknownLanguageIsRefused()
{
    QFETCH(QString, code);
    const Run result = run({QStringLiteral("--converse"), QStringLiteral("--language"), code}, {});
    QCOMPARE(result.errors, QStringLiteral("speakmate-devhost: There is no translation to '%1'; --language "
                                           "takes one of: en, zh_CN. See --help.\n")
                                .arg(code));
    QCOMPARE(result.status, 2);
}

void TestChosenLanguage::helpIsInTheLanguage()
{
    const Run chinese =
        run({QStringLiteral("--help"), QStringLiteral("--language"), QStringLiteral("zh")}, {});
    QCOMPARE(chinese.status, 0);
    const QRegularExpression sentence(QStringLiteral("[A-Za-z]{2,} [A-Za-z]{2,} [A-Za-z]{2,}"));
    QVERIFY2(!chinese.output.contains(sentence), qUtf8Printable(sentence.match(chinese.output).captured()));
    QVERIFY(chinese.output.contains(QStringLiteral("--language <CODE>")));
    const Run english = run({QStringLiteral("--help"), QStringLiteral("--language"), QStringLiteral("en")},
                            {{QStringLiteral("LANG"), QStringLiteral("zh_CN.UTF-8")}});
    QCOMPARE(english.status, 0);
    QVERIFY(!english.output.contains(QRegularExpression(QStringLiteral("\\p{Han}"))));
    QVERIFY(english.output.contains(QStringLiteral("--language <CODE>")));
}

void TestChosenLanguage::missingDisplayIsToldInTheLanguage()
{
    const Environment locale{{QStringLiteral("LANG"), QStringLiteral("zh_CN.UTF-8")},
                             {QStringLiteral("QT_QPA_PLATFORM"), QString()}};
    const Run result = run({}, locale);
    QCOMPARE(result.status, 2);
    QCOMPARE(
        result.errors,
        QStringLiteral(
            "speakmate-devhost: 没有可以打开窗口的显示器。请使用 --converse 或 --batch。参见 --help。\n"));
}

void TestChosenLanguage::terminalSpeaksTheLanguageAndTheAssistantChinese_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("said");
    QTest::addColumn<QString>("answered");
    QTest::newRow("Chinese") << "zh_CN" << QStringLiteral("你会什么  ：你\n")
                             << QStringLiteral("\n助手：您可以说：\n      查询会议：");
    QTest::newRow("English") << "en" << QStringLiteral("你会什么  : You\n")
                             << QStringLiteral("\nAssistant: 您可以说：\n           查询会议：");
}

void TestChosenLanguage::terminalSpeaksTheLanguageAndTheAssistantChinese()
{
    QFETCH(QString, code);
    QFETCH(QString, said);
    QFETCH(QString, answered);
    const Run result = run({QStringLiteral("--converse"), QStringLiteral("--language"), code,
                            QStringLiteral("--plugin"), QStringLiteral(TEST_PLUGIN)},
                           {}, QStringLiteral("你会什么\n").toUtf8());
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(said), qUtf8Printable(result.output));
    QVERIFY2(result.output.contains(answered), qUtf8Printable(result.output));
}

void TestChosenLanguage::lineErrorsAreInTheLanguage()
{
    const QStringList arguments{QStringLiteral("--batch"), QStringLiteral("-"), QStringLiteral("--plugin"),
                                QStringLiteral(TEST_PLUGIN), QStringLiteral("--language")};
    const QByteArray input("[]\n");
    const Run chinese = run(arguments + QStringList{QStringLiteral("zh")}, {}, input);
    QCOMPARE(chinese.errors, QStringLiteral("第 1 行：不是 JSON 对象\n"));
    QCOMPARE(chinese.status, 1);
    const Run english = run(arguments + QStringList{QStringLiteral("en")}, {}, input);
    QCOMPARE(english.errors, QStringLiteral("line 1: not a JSON object\n"));
    QCOMPARE(english.status, 1);
}

QTEST_MAIN(TestChosenLanguage)
#include "tst_chosenlanguage.moc"
