// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "desknames.h"
#include "sharedappearance.h"

#include <lumo/lguiapplicationhelper.h>

#include <QApplication>
#include <QSettings>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using Helper = LGuiApplicationHelper;

/// Two programs on one desktop: one lets the user choose the appearance, the other follows it.
class TestSharedAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsRememberedIsApplied();
    void whatAnotherProgramWritesIsFollowed();
    void onlyWhoFollowsFollows();
    void theSystemIsFollowedUntilSomebodyChooses();
    void nonsenseInTheFileIsTheDefault_data();
    void nonsenseInTheFileIsTheDefault();
    void whatIsNoSettingsFileIsTheDefault_data();
    void whatIsNoSettingsFileIsTheDefault();
    void theDesksFileIsTheDesks();

private:
    void write(const char *key, const QVariant &value) const
    {
        // By the literal keys, as another program would write them.
        QSettings(m_file, QSettings::NativeFormat).setValue(QLatin1String(key), value);
    }
    static QColor window() { return QApplication::palette().color(QPalette::Window); }
    static QColor standardWindow(Helper::ColorType type)
    {
        return Helper::standardPalette(type).color(QPalette::Window);
    }

    QTemporaryDir m_folder;
    QString m_file;
};

void TestSharedAppearance::init()
{
    Helper::instance()->setPaletteType(Helper::UnknownType);
    QApplication::setFont(QFont(QApplication::font().family(), 10));
    m_file = m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction()) + QLatin1Char('/') +
                               QString::fromUtf8(QTest::currentDataTag()) + QStringLiteral(".conf"));
}

void TestSharedAppearance::whatIsRememberedIsApplied()
{
    {
        SharedAppearance chosen(m_file);
        QCOMPARE(chosen.theme(), SharedAppearance::System);
        chosen.setTheme(SharedAppearance::Dark);
        chosen.setFontStep(3);
        QCOMPARE(QApplication::font().pointSizeF(), 13.0);
        chosen.setFontStep(1000);
        QCOMPARE(chosen.fontStep(), int(SharedAppearance::LargestStep));
        chosen.setFontStep(2);
    }
    QApplication::setFont(QFont(QApplication::font().family(), 10));
    Helper::instance()->setPaletteType(Helper::LightType);
    const SharedAppearance remembered(m_file);
    QCOMPARE(remembered.theme(), SharedAppearance::Dark);
    QCOMPARE(window(), standardWindow(Helper::DarkType));
    QCOMPARE(QApplication::font().pointSizeF(), 12.0);
}

void TestSharedAppearance::whatAnotherProgramWritesIsFollowed()
{
    SharedAppearance follower(m_file); // before the desk has ever stored anything
    follower.follow();
    QSignalSpy fontChanged(&follower, &SharedAppearance::fontChanged);
    QCOMPARE(window(), standardWindow(Helper::LightType));
    write("appearance/theme", 2);
    QTRY_COMPARE(window(), standardWindow(Helper::DarkType));
    QCOMPARE(follower.theme(), SharedAppearance::Dark);
    QCOMPARE(fontChanged.count(), 0);
    write("appearance/fontStep", 4);
    QTRY_COMPARE(QApplication::font().pointSizeF(), 14.0);
    QCOMPARE(fontChanged.count(), 1);
    write("appearance/theme", 1);
    QTRY_COMPARE(window(), standardWindow(Helper::LightType));
    QCOMPARE(QApplication::font().pointSizeF(), 14.0);
    write("appearance/fontStep", 0);
    QTRY_COMPARE(QApplication::font().pointSizeF(), 10.0);
}

void TestSharedAppearance::onlyWhoFollowsFollows()
{
    const SharedAppearance deaf(m_file);
    SettingsWatch watch(m_file);
    QSignalSpy written(&watch, &SettingsWatch::changed);
    write("appearance/theme", 2);
    QVERIFY(written.wait());
    QCOMPARE(window(), standardWindow(Helper::LightType));
}

void TestSharedAppearance::theSystemIsFollowedUntilSomebodyChooses()
{
    SharedAppearance follower(m_file);
    follower.follow();
    const auto setDesktop = [](const QColor &ground, const QColor &text) {
        QPalette desktop;
        desktop.setColor(QPalette::All, QPalette::Window, ground);
        desktop.setColor(QPalette::All, QPalette::WindowText, text);
        QApplication::setPalette(desktop);
    };
    setDesktop(QColor(20, 20, 20), Qt::white);
    QCOMPARE(window(), standardWindow(Helper::DarkType));
    write("appearance/theme", 1);
    QTRY_COMPARE(window(), standardWindow(Helper::LightType));
    write("appearance/theme", 0);
    QTRY_COMPARE(window(), standardWindow(Helper::DarkType));
}

void TestSharedAppearance::nonsenseInTheFileIsTheDefault_data()
{
    QTest::addColumn<QVariant>("theme");
    QTest::addColumn<QVariant>("fontStep");
    QTest::addColumn<int>("points");
    QTest::newRow("texts") << QVariant(QStringLiteral("dark")) << QVariant(QStringLiteral("large")) << 10;
    QTest::newRow("below") << QVariant(-7) << QVariant(-1000) << 8;
}

void TestSharedAppearance::nonsenseInTheFileIsTheDefault()
{
    QFETCH(QVariant, theme);
    QFETCH(QVariant, fontStep);
    QFETCH(int, points);
    write("appearance/theme", theme);
    write("appearance/fontStep", fontStep);
    const SharedAppearance appearance(m_file);
    QCOMPARE(appearance.theme(), SharedAppearance::System);
    QCOMPARE(QApplication::font().pointSizeF(), qreal(points));
}

void TestSharedAppearance::whatIsNoSettingsFileIsTheDefault_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a pipe that nobody writes into") << QStringLiteral("pipe");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("a file of more than 64 KiB") << QStringLiteral("large");
}

void TestSharedAppearance::whatIsNoSettingsFileIsTheDefault()
{
    QFETCH(QString, kind);
    write("appearance/theme", 2);
    write("appearance/fontStep", 4);
    QCOMPARE(SharedAppearance(m_file).theme(), SharedAppearance::Dark);
    Helper::instance()->setPaletteType(Helper::UnknownType);
    QApplication::setFont(QFont(QApplication::font().family(), 10));
    if (kind == QLatin1String("large")) {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::Append));
        file.write(QByteArray("; filler\n").repeated(8000));
    } else {
        QVERIFY(QFile::remove(m_file));
        const QByteArray path = QFile::encodeName(m_file);
        QCOMPARE(kind == QLatin1String("pipe") ? ::mkfifo(path.constData(), 0600)
                                               : ::mkdir(path.constData(), 0700),
                 0);
    }
    ::alarm(20); // a blocking open() of a pipe would hang forever
    const SharedAppearance appearance(m_file);
    ::alarm(0);
    QCOMPARE(appearance.theme(), SharedAppearance::System);
    QCOMPARE(appearance.fontStep(), 0);
    QCOMPARE(QApplication::font().pointSizeF(), 10.0);
}

void TestSharedAppearance::theDesksFileIsTheDesks()
{
    const QString ours = SharedAppearance::deskSettingsFile();
    // The desk finds the file through its own organization and application names.
    QCoreApplication::setOrganizationName(DeskNames::Organization);
    QCoreApplication::setApplicationName(DeskNames::Application);
    QCOMPARE(QSettings().fileName(), ours);
    QVERIFY2(ours.endsWith(QLatin1String("/kelvane/speakmate-devhost.conf")), qPrintable(ours));
}

QTEST_MAIN(TestSharedAppearance)
#include "tst_sharedappearance.moc"
