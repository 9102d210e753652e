// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testcolumns.h"

#include <lumo/lguiapplicationhelper.h>
#include <lumo/lsystempalette.h>

#include <QApplication>
#include <QtTest>

using Helper = LGuiApplicationHelper;

class TestLSystemPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theNearerOneIsTaken_data();
    void theNearerOneIsTaken();
    void theDesktopIsFollowed();
    void whatWasChosenStays();

private:
    static void setDesktop(const QColor &window, const QColor &text);
    static bool isOurs(Helper::ColorType type);
};

void TestLSystemPalette::init()
{
    Helper::instance()->setPaletteType(Helper::UnknownType);
}

void TestLSystemPalette::setDesktop(const QColor &window, const QColor &text)
{
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Window, window);
    palette.setColor(QPalette::All, QPalette::Button, window);
    palette.setColor(QPalette::All, QPalette::WindowText, text);
    QApplication::setPalette(palette);
}

bool TestLSystemPalette::isOurs(Helper::ColorType type)
{
    const QPalette ours = Helper::standardPalette(type);
    const QPalette now = QApplication::palette();
    return now.color(QPalette::Window) == ours.color(QPalette::Window) &&
           now.color(QPalette::Button) == ours.color(QPalette::Button) &&
           now.color(QPalette::Highlight) == ours.color(QPalette::Highlight);
}

void TestLSystemPalette::theNearerOneIsTaken_data()
{
    addColumns<QColor, QColor, int>({"window", "text", "theme"});

    QTest::newRow("grey with black texts")
        << QColor(239, 239, 239) << QColor(Qt::black) << int(Helper::LightType);
    QTest::newRow("yellow with blue texts")
        << QColor(Qt::yellow) << QColor(0, 0, 80) << int(Helper::LightType);
    QTest::newRow("nearly black") << QColor(30, 30, 30) << QColor(Qt::lightGray) << int(Helper::DarkType);
}

void TestLSystemPalette::theNearerOneIsTaken()
{
    QFETCH(const QColor, window);
    QFETCH(const QColor, text);
    QFETCH(const int, theme);

    setDesktop(window, text);
    LSystemPalette palette;
    QCOMPARE(QApplication::palette().color(QPalette::Window), window);
    palette.follow();
    QVERIFY(isOurs(static_cast<Helper::ColorType>(theme)));
}

void TestLSystemPalette::theDesktopIsFollowed()
{
    setDesktop(Qt::white, Qt::black);
    LSystemPalette palette;
    palette.follow();
    QVERIFY(isOurs(Helper::LightType));
    setDesktop(Qt::black, Qt::white);
    QVERIFY(isOurs(Helper::DarkType));
    setDesktop(Qt::darkGray, Qt::white);
    QVERIFY(isOurs(Helper::DarkType));
    setDesktop(Qt::white, Qt::black);
    QVERIFY(isOurs(Helper::LightType));
    QWindow window;
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(&window, &change);
    QVERIFY(isOurs(Helper::LightType));
}

void TestLSystemPalette::whatWasChosenStays()
{
    setDesktop(Qt::black, Qt::white);
    LSystemPalette palette;
    palette.follow();
    palette.stop();
    Helper::instance()->setPaletteType(Helper::LightType);
    QVERIFY(isOurs(Helper::LightType));
    QWindow window;
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(&window, &change);
    QVERIFY(isOurs(Helper::LightType));
    setDesktop(Qt::yellow, Qt::blue);
    QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(Qt::yellow));
    // From then on the desktop's palette counts again.
    Helper::instance()->setPaletteType(Helper::UnknownType);
    setDesktop(Qt::black, Qt::white);
    palette.follow();
    QVERIFY(isOurs(Helper::DarkType));
}

QTEST_MAIN(TestLSystemPalette)
#include "tst_lsystempalette.moc"
