// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "filecontent.h"

#include <QtTest>

namespace {

struct Program
{
    const char *folder; ///< below platform/
    const char *name;   ///< base name of the translation files
    int leastTexts;
    QStringList chinese; ///< sources that may contain Chinese texts, which don't follow the user's language
};

QVector<Program> programs()
{
    // Sentences, and answers to sentences.
    const QStringList assistant{QStringLiteral("core/conversation.cpp"),
                                QStringLiteral("core/correction.cpp"),
                                QStringLiteral("core/help.cpp"),
                                QStringLiteral("service/actline.cpp"),
                                QStringLiteral("service/launchermatcher.cpp"),
                                QStringLiteral("window/mainwindow.cpp"),
                                QStringLiteral("window/warmup.cpp"),
                                QStringLiteral("window/welcomepage.cpp")};
    // An answer on the bus: the default name of a conference.
    const QStringList answers{QStringLiteral("actions/createconference.cpp")};
    return {{"devhost", "speakmate-devhost", 140, assistant}, {"contacts", "kelvane-contacts", 190, answers}};
}

} // namespace

Q_DECLARE_METATYPE(Program)

/// Checks the translations in the tree against their sources.
class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();

    void filesHoldTheTextsOfTheSources();
    void everyTextIsTranslated();
    void translationsTakeTheSameArguments();
    void onlyWhatIsNotForTheUsersLanguageIsChineseInTheSources();

private:
    QString m_sources;
    QString m_file;
    struct Message
    {
        QString source;
        QString translation;
        QString type; ///< empty for a finished translation
    };
    QVector<Message> m_messages;
};

void TestTranslations::initTestCase_data()
{
    QTest::addColumn<Program>("program");
    const QVector<Program> all = programs();
    for (const Program &program : all) {
        QTest::newRow(program.name) << program;
    }
}

/// Reads the program's translations.
void TestTranslations::init()
{
    QFETCH_GLOBAL(Program, program);
    m_sources = QStringLiteral(CONTACT_SOURCE_DIR "/platform/%1").arg(QLatin1String(program.folder));
    m_file = QStringLiteral("%1/translations/%2_zh_CN.ts").arg(m_sources, QLatin1String(program.name));
    m_messages.clear();
    QXmlStreamReader xml(contentOf(m_file));
    Message message;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            message = {xml.readElementText(), QString(), QString()};
        } else if (xml.name() == QLatin1String("translation")) {
            message.type = xml.attributes().value(QLatin1String("type")).toString();
            message.translation = xml.readElementText();
            m_messages.append(message);
        }
    }
    QVERIFY2(!xml.hasError(), qUtf8Printable(xml.errorString()));
    QVERIFY2(m_messages.size() > program.leastTexts, qPrintable(QString::number(m_messages.size())));
}

void TestTranslations::filesHoldTheTextsOfTheSources()
{
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QFileInfo(m_file).fileName());
    QVERIFY(QFile::copy(m_file, copy));
    QProcess lupdate;
    lupdate.start(QStringLiteral(LUPDATE),
                  QStringLiteral(LUPDATE_OPTIONS).split(QLatin1Char(' ')) +
                      QStringList{m_sources, QStringLiteral(CONTACT_SOURCE_DIR "/platform/language"),
                                  QStringLiteral("-ts"), copy});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    QVERIFY2(contentOf(copy) == contentOf(m_file),
             "build the target update-translations and translate the new texts");
}

void TestTranslations::everyTextIsTranslated()
{
    for (const Message &message : qAsConst(m_messages)) {
        QVERIFY2(message.type.isEmpty() && !message.translation.isEmpty(), qUtf8Printable(message.source));
    }
}

void TestTranslations::translationsTakeTheSameArguments()
{
    for (const Message &message : qAsConst(m_messages)) {
        for (int place = 1; place <= 9; ++place) {
            const QString mark = QStringLiteral("%%1").arg(place);
            QVERIFY2(message.translation.count(mark) == message.source.count(mark),
                     qUtf8Printable(message.source));
        }
        // A text with a mnemonic needs one in both languages.
        QVERIFY2(message.translation.count(QLatin1Char('&')) == message.source.count(QLatin1Char('&')),
                 qUtf8Printable(message.source));
    }
}

void TestTranslations::onlyWhatIsNotForTheUsersLanguageIsChineseInTheSources()
{
    QFETCH_GLOBAL(Program, program);
    const QRegularExpression chinese(
        QStringLiteral("\"[^\"]*[\\p{Han}\\x{3000}-\\x{303f}\\x{ff00}-\\x{ffef}]"));
    QStringList found;
    QDirIterator files(m_sources, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = QDir(m_sources).relativeFilePath(files.next());
        const QStringList lines = QString::fromUtf8(contentOf(files.filePath())).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (chinese.match(line.section(QStringLiteral("//"), 0, 0)).hasMatch() &&
                !line.trimmed().startsWith(QLatin1Char('*'))) {
                found << name;
            }
        }
    }
    found.removeDuplicates();
    found.sort();
    QCOMPARE(found, program.chinese);
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
