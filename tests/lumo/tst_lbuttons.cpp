// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themerows.h"

#include <lumo/lcommandlinkbutton.h>
#include <lumo/lguiapplicationhelper.h>
#include <lumo/lsuggestbutton.h>

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QtTest>

namespace {

/// Counts the pixels of @p widget with exactly @p color.
int countPixels(QWidget &widget, const QColor &color)
{
    const QImage image = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

/// Paints its own background, and counts tool tip events.
class DerivedLink : public LCommandLinkButton
{
public:
    using LCommandLinkButton::LCommandLinkButton;

    int toolTips = 0;

protected:
    bool event(QEvent *event) override
    {
        toolTips += event->type() == QEvent::ToolTip ? 1 : 0;
        return LCommandLinkButton::event(event);
    }
    void paintEvent(QPaintEvent *event) override
    {
        {
            QPainter painter(this);
            painter.fillRect(rect(), QColor(0, 200, 0));
        }
        LCommandLinkButton::paintEvent(event);
    }
};

} // namespace

class TestLButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSuggestedButtonHasTheAccentColour_data();
    void theSuggestedButtonHasTheAccentColour();
    void theLinkIsTextInThePalettesColour();
    void theLinkIsAsWideAsItsText();
    void theLinkShowsTheFocusOfTheKeyboard();
    void theLinkIsUnderlinedUnderTheMouse();
    void aLinkThatIsTooNarrowIsSmallerBeforeItIsElided();
    void aLinkThatIsTooNarrowHasAToolTip();
    void whatADerivedLinkPaintsIsUnderTheText();
    void aDerivedLinkSeesItsEvents();
    void bothAreClickedWithTheMouseAndTheSpaceKey();
};

void TestLButtons::theSuggestedButtonHasTheAccentColour_data()
{
    addThemes();
}

void TestLButtons::theSuggestedButtonHasTheAccentColour()
{
    QFETCH(int, theme);
    LGuiApplicationHelper::instance()->setPaletteType(static_cast<LGuiApplicationHelper::ColorType>(theme));
    LSuggestButton suggested(QStringLiteral("x"));
    QPushButton plain(QStringLiteral("x"));
    for (QPushButton *button : {static_cast<QPushButton *>(&suggested), &plain}) {
        button->resize(80, 30);
    }

    const QColor accent = suggested.palette().color(QPalette::Highlight);
    const QColor pixel = suggested.grab().toImage().pixelColor(12, 15);
    QVERIFY2(qAbs(pixel.hslHue() - accent.hslHue()) < 12, qPrintable(pixel.name()));
    QVERIFY(pixel.hslSaturation() > 100);
    QVERIFY(plain.grab().toImage().pixelColor(12, 15).hslSaturation() < 60);

    // Also in an inactive window.
    QPalette marked = suggested.palette();
    marked.setColor(QPalette::Inactive, QPalette::Highlight, Qt::magenta);
    suggested.setPalette(marked);
    QWidget other;
    suggested.show();
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!suggested.isActiveWindow());
    const QColor inactive = suggested.grab().toImage().pixelColor(12, 15);
    QVERIFY2(qAbs(inactive.hslHue() - QColor(Qt::magenta).hslHue()) < 12, qPrintable(inactive.name()));

    suggested.setEnabled(false);
    QVERIFY(suggested.grab().toImage().pixelColor(12, 15).hslSaturation() < 60);
    LGuiApplicationHelper::instance()->setPaletteType(LGuiApplicationHelper::UnknownType);
}

void TestLButtons::theLinkIsTextInThePalettesColour()
{
    LCommandLinkButton link(QStringLiteral("█"));
    QVERIFY(link.isFlat());
    link.resize(link.sizeHint());
    QPalette palette = link.palette();
    palette.setColor(QPalette::ButtonText, QColor(200, 0, 0));
    palette.setColor(QPalette::WindowText, QColor(0, 200, 0));
    palette.setColor(QPalette::Button, QColor(0, 0, 200));
    link.setPalette(palette);
    QVERIFY(countPixels(link, QColor(200, 0, 0)) > 10);
    QCOMPARE(countPixels(link, QColor(0, 200, 0)), 0);
    QCOMPARE(countPixels(link, palette.color(QPalette::Button)), 0);
}

void TestLButtons::theLinkIsAsWideAsItsText()
{
    const LCommandLinkButton narrow(QStringLiteral("a"));
    const LCommandLinkButton wide(QString(20, QLatin1Char('a')));
    const int difference = wide.sizeHint().width() - narrow.sizeHint().width();
    QCOMPARE(difference, wide.fontMetrics().horizontalAdvance(wide.text()) -
                             narrow.fontMetrics().horizontalAdvance(narrow.text()));
    // Slightly taller than the text.
    QCOMPARE(narrow.sizeHint().height(),
             narrow.fontMetrics().size(Qt::TextSingleLine, narrow.text()).height() + 8);
}

void TestLButtons::theLinkShowsTheFocusOfTheKeyboard()
{
    QWidget window;
    LCommandLinkButton link(QStringLiteral("link"), &window);
    link.resize(link.sizeHint());
    QPalette palette = link.palette();
    palette.setColor(QPalette::Highlight, QColor(250, 0, 0));
    link.setPalette(palette);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    link.clearFocus();
    QCOMPARE(countPixels(link, QColor(250, 0, 0)), 0);
    link.setFocus(Qt::TabFocusReason);
    QVERIFY(link.hasFocus());
    QVERIFY(countPixels(link, QColor(250, 0, 0)) > 20);
}

void TestLButtons::theLinkIsUnderlinedUnderTheMouse()
{
    LCommandLinkButton link(QStringLiteral("link"));
    link.resize(link.sizeHint());
    const QImage before = link.grab().toImage();
    link.setAttribute(Qt::WA_UnderMouse);
    QVERIFY(link.grab().toImage() != before);
    link.setEnabled(false);
    const QImage disabledUnderMouse = link.grab().toImage();
    link.setAttribute(Qt::WA_UnderMouse, false);
    QCOMPARE(link.grab().toImage(), disabledUnderMouse);
}

void TestLButtons::aLinkThatIsTooNarrowIsSmallerBeforeItIsElided()
{
    const QString text = QString(20, QLatin1Char('m'));
    LCommandLinkButton link(text);
    QFont font = link.font();
    font.setPixelSize(20);
    link.setFont(font);
    // The link looks as it would with the smaller font, if that fits.
    font.setPixelSize(14);
    LCommandLinkButton smaller(text);
    smaller.setFont(font);
    smaller.resize(smaller.sizeHint());
    link.resize(smaller.size());
    QCOMPARE(link.grab().toImage(), smaller.grab().toImage());

    // Never smaller than the smallest size class.
    font.setPixelSize(10);
    smaller.setFont(font);
    smaller.resize(60, 20);
    link.resize(60, 20);
    QCOMPARE(link.grab().toImage(), smaller.grab().toImage());
}

void TestLButtons::aLinkThatIsTooNarrowHasAToolTip()
{
    LCommandLinkButton link(QStringLiteral("<b>all 10000 results</b>"));
    link.show();
    QVERIFY(QTest::qWaitForWindowExposed(&link));
    for (const bool narrow : {true, false}) {
        link.resize(narrow ? 40 : 2000, 30);
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), link.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&link, &help);
        QCOMPARE(QToolTip::text(),
                 narrow ? QStringLiteral("<p>&lt;b&gt;all 10000 results&lt;/b&gt;</p>") : QString());
    }
}

/// The look does not depend on an override that a derived class would replace.
void TestLButtons::whatADerivedLinkPaintsIsUnderTheText()
{
    DerivedLink link(QStringLiteral("█"));
    link.resize(link.sizeHint() + QSize(20, 0));
    QPalette palette = link.palette();
    palette.setColor(QPalette::ButtonText, QColor(200, 0, 0));
    link.setPalette(palette);
    QVERIFY(countPixels(link, QColor(0, 200, 0)) > 10);
    QVERIFY(countPixels(link, QColor(200, 0, 0)) > 10);
}

void TestLButtons::aDerivedLinkSeesItsEvents()
{
    DerivedLink link(QStringLiteral("link"));
    link.resize(link.sizeHint());
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&link, &help);
    QCOMPARE(link.toolTips, 1);
}

void TestLButtons::bothAreClickedWithTheMouseAndTheSpaceKey()
{
    LSuggestButton suggested(QStringLiteral("x"));
    LCommandLinkButton link(QStringLiteral("x"));
    for (QPushButton *button : {static_cast<QPushButton *>(&suggested), static_cast<QPushButton *>(&link)}) {
        const QSignalSpy clicked(button, &QPushButton::clicked);
        QTest::mouseClick(button, Qt::LeftButton);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(clicked.count(), 2);
    }
}

QTEST_MAIN(TestLButtons)
#include "tst_lbuttons.moc"
