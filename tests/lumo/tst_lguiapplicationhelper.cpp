// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testcolumns.h"
#include "themerows.h"

#include <lumo/lguiapplicationhelper.h>

#include <QApplication>
#include <QWidget>
#include <QtTest>

using Helper = LGuiApplicationHelper;

namespace {

QPalette paletteOf(const QColor &window, const QColor &text)
{
    QPalette palette;
    palette.setColor(QPalette::All, QPalette::Window, window);
    palette.setColor(QPalette::All, QPalette::WindowText, text);
    return palette;
}

/// An application object for one test function; the toolkit outlives it, as in programs that load plugins.
class Application
{
    int m_argc = 1;
    char m_name[5] = "test";
    char *m_argv[2] = {m_name, nullptr};
    QApplication m_application{m_argc, m_argv};
};

} // namespace

class TestLGuiApplicationHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutApplicationTheThemeIsUnknown();
    void theValuesOfTheThemes();
    void theThemeIsReadFromThePalette_data();
    void theThemeIsReadFromThePalette();
    void aForcedThemeGivesTheDesktopsPaletteBack();
    void theNextApplicationIsFollowedToo();
    void theThemesAreReadable_data();
    void theThemesAreReadable();
};

void TestLGuiApplicationHelper::withoutApplicationTheThemeIsUnknown()
{
    QVERIFY(qApp == nullptr);
    QCOMPARE(Helper::instance()->themeType(), Helper::UnknownType);
    Helper::instance()->setPaletteType(Helper::DarkType);
    QCOMPARE(Helper::instance()->paletteType(), Helper::UnknownType);
}

void TestLGuiApplicationHelper::theValuesOfTheThemes()
{
    QCOMPARE(int(Helper::UnknownType), 0);
    QCOMPARE(int(Helper::LightType), 1);
    QCOMPARE(int(Helper::DarkType), 2);
}

void TestLGuiApplicationHelper::theThemeIsReadFromThePalette_data()
{
    addColumns<QColor, QColor, int>({"window", "text", "theme"});
    QTest::newRow("black on white is light")
        << QColor(Qt::white) << QColor(Qt::black) << int(Helper::LightType);
    QTest::newRow("white on black is dark")
        << QColor(Qt::black) << QColor(Qt::white) << int(Helper::DarkType);
    QTest::newRow("black on grey is light")
        << QColor(110, 110, 110) << QColor(Qt::black) << int(Helper::LightType);
    QTest::newRow("no difference is light") << QColor(Qt::gray) << QColor(Qt::gray) << int(Helper::LightType);
}

void TestLGuiApplicationHelper::theThemeIsReadFromThePalette()
{
    QFETCH(QColor, window);
    QFETCH(QColor, text);
    QFETCH(int, theme);
    const Application application;
    QApplication::setPalette(paletteOf(window, text));
    QCOMPARE(int(Helper::instance()->themeType()), theme);
}

void TestLGuiApplicationHelper::aForcedThemeGivesTheDesktopsPaletteBack()
{
    const Application application;
    const QPalette desktop = paletteOf(Qt::yellow, Qt::blue);
    QApplication::setPalette(desktop);
    Helper *helper = Helper::instance();
    QWidget widget;

    helper->setPaletteType(Helper::DarkType);
    QCOMPARE(helper->paletteType(), Helper::DarkType);
    QCOMPARE(helper->themeType(), Helper::DarkType);
    QCOMPARE(widget.palette().color(QPalette::Window),
             Helper::standardPalette(Helper::DarkType).color(QPalette::Window));

    helper->setPaletteType(Helper::LightType);
    QCOMPARE(helper->themeType(), Helper::LightType);
    QCOMPARE(widget.palette().color(QPalette::Window),
             Helper::standardPalette(Helper::LightType).color(QPalette::Window));

    helper->setPaletteType(Helper::UnknownType);
    QCOMPARE(helper->paletteType(), Helper::UnknownType);
    QCOMPARE(widget.palette().color(QPalette::Window), QColor(Qt::yellow));
}

void TestLGuiApplicationHelper::theNextApplicationIsFollowedToo()
{
    {
        const Application application;
        Helper::instance()->setPaletteType(Helper::DarkType);
    }
    const Application application;
    QCOMPARE(Helper::instance()->paletteType(), Helper::UnknownType);
    QApplication::setPalette(paletteOf(Qt::white, Qt::black));
    Helper::instance()->setPaletteType(Helper::DarkType);
    QCOMPARE(Helper::instance()->themeType(), Helper::DarkType);
}

void TestLGuiApplicationHelper::theThemesAreReadable_data()
{
    addThemes();
}

/// WCAG asks for a contrast of 4.5:1 in text of normal size.
void TestLGuiApplicationHelper::theThemesAreReadable()
{
    QFETCH(int, theme);
    const auto linear = [](qreal channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const auto luminance = [linear](const QColor &color) {
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const auto contrast = [luminance](const QColor &one, const QColor &other) {
        const qreal lighter = qMax(luminance(one), luminance(other));
        const qreal darker = qMin(luminance(one), luminance(other));
        return (lighter + 0.05) / (darker + 0.05);
    };
    const QPalette palette = Helper::standardPalette(static_cast<Helper::ColorType>(theme));
    QCOMPARE(int(Helper::toColorType(palette)), theme);
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        const QColor faint = palette.color(QPalette::Disabled, role);
        QCOMPARE(faint.rgb(), palette.color(QPalette::Active, role).rgb());
        QVERIFY2(qAbs(faint.alphaF() - 0.4) < 0.01, qPrintable(QString::number(faint.alphaF())));
    }
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::Link, QPalette::Window},
        {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::PlaceholderText, QPalette::Window},
    };
    for (const auto &[text, ground] : pairs) {
        const qreal found = contrast(palette.color(text), palette.color(ground));
        QVERIFY2(found >= 4.5, qPrintable(QStringLiteral("role %1: %2").arg(text).arg(found)));
    }
}

QTEST_APPLESS_MAIN(TestLGuiApplicationHelper)
#include "tst_lguiapplicationhelper.moc"
