// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "themerows.h"

#include <lumo/lcombobox.h>
#include <lumo/lguiapplicationhelper.h>
#include <lumo/lspinbox.h>
#include <lumo/lstyle.h>
#include <lumo/lsuggestbutton.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QtTest>

namespace {

using Helper = LGuiApplicationHelper;

/// A background that no theme uses, so that unpainted pixels are recognised.
const QColor Ground(1, 200, 3);

QImage paint(QWidget &widget, const QSize &size = QSize(100, 32))
{
    widget.resize(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Ground);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

int count(const QImage &image, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return found;
}

} // namespace

class TestLStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void thePaletteOfTheStyleIsTheLightOne();
    void buttonsAreFlatRoundedAndInThePalettesColour_data();
    void buttonsAreFlatRoundedAndInThePalettesColour();
    void aFlatButtonHasNoGround();
    void fieldsHaveTheBaseColour_data();
    void fieldsHaveTheBaseColour();
    void theSignsOfTheSpinBoxSayItsStyle();
    void aStepThatIsNotPossibleIsFaint();
    void theMarkOfACheckBoxIsInTheAccentColour();
    void aRadioButtonIsSeenWhetherItIsChosenOrNot_data() { addThemes(); }
    void aRadioButtonIsSeenWhetherItIsChosenOrNot();
    void theKeyboardsFocusIsSeen_data();
    void theKeyboardsFocusIsSeen();
    void controlsAreTallEnough();
};

void TestLStyle::initTestCase()
{
    QApplication::setStyle(new LStyle);
}

void TestLStyle::cleanup()
{
    Helper::instance()->setPaletteType(Helper::UnknownType);
}

void TestLStyle::thePaletteOfTheStyleIsTheLightOne()
{
    QCOMPARE(QApplication::style()->standardPalette(), Helper::standardPalette(Helper::LightType));
}

void TestLStyle::buttonsAreFlatRoundedAndInThePalettesColour_data()
{
    addThemes();
}

void TestLStyle::buttonsAreFlatRoundedAndInThePalettesColour()
{
    QFETCH(int, theme);
    Helper::instance()->setPaletteType(static_cast<Helper::ColorType>(theme));
    QPushButton button;
    const QImage image = paint(button);
    QCOMPARE(image.pixelColor(0, 0), Ground);
    QCOMPARE(image.pixelColor(99, 31), Ground);
    const QColor face = button.palette().color(QPalette::Button);
    for (const QPoint &point :
         {QPoint(50, 1), QPoint(1, 16), QPoint(50, 16), QPoint(98, 16), QPoint(50, 30)}) {
        QCOMPARE(image.pixelColor(point), face);
    }
    for (const QPoint &point : {QPoint(50, 0), QPoint(0, 16), QPoint(99, 16), QPoint(50, 31)}) {
        QCOMPARE(image.pixelColor(point), button.palette().color(QPalette::Mid));
    }

    // Darker under the mouse, and darker still while pressed.
    button.setAttribute(Qt::WA_UnderMouse);
    const QColor hovered = paint(button).pixelColor(50, 16);
    button.setAttribute(Qt::WA_UnderMouse, false);
    QVERIFY(hovered.lightness() < face.lightness());
    button.setDown(true);
    const QColor pressed = paint(button).pixelColor(50, 16);
    QVERIFY(pressed.lightness() < hovered.lightness());
    button.setDown(false);
    button.setEnabled(false);
    QVERIFY(paint(button).pixelColor(50, 16) != face);
}

void TestLStyle::aFlatButtonHasNoGround()
{
    QPushButton button;
    button.setFlat(true);
    QCOMPARE(count(paint(button), Ground), 100 * 32);
}

void TestLStyle::fieldsHaveTheBaseColour_data()
{
    buttonsAreFlatRoundedAndInThePalettesColour_data();
}

void TestLStyle::fieldsHaveTheBaseColour()
{
    QFETCH(int, theme);
    Helper::instance()->setPaletteType(static_cast<Helper::ColorType>(theme));
    LComboBox combo;
    LSpinBox box;
    for (QWidget *field : {static_cast<QWidget *>(&combo), static_cast<QWidget *>(&box)}) {
        const QImage image = paint(*field);
        QCOMPARE(image.pixelColor(0, 0), Ground);
        QCOMPARE(image.pixelColor(50, 16), field->palette().color(QPalette::Base));
        QCOMPARE(image.pixelColor(50, 0), field->palette().color(QPalette::Mid));
    }
    QLineEdit line;
    const QImage empty = paint(line);
    QCOMPARE(empty.pixelColor(0, 0), Ground);
    QCOMPARE(empty.pixelColor(50, 16), line.palette().color(QPalette::Base));
    QCOMPARE(empty.pixelColor(50, 0), line.palette().color(QPalette::Mid));
    // The drop-down arrow.
    const QImage image = paint(combo);
    QVERIFY(count(image.copy(80, 4, 18, 24), combo.palette().color(QPalette::Base)) < 18 * 24);
}

void TestLStyle::theSignsOfTheSpinBoxSayItsStyle()
{
    LSpinBox box;
    box.setRange(0, 10);
    box.setValue(5);
    box.setEnabledEmbedStyle(true);
    const QImage arrows = paint(box);
    box.setEnabledEmbedStyle(false);
    const QImage signs = paint(box);
    QVERIFY(arrows != signs);
    box.setEnabledEmbedStyle(true);
    QCOMPARE(paint(box), arrows);
}

void TestLStyle::aStepThatIsNotPossibleIsFaint()
{
    LSpinBox box;
    box.setEnabledEmbedStyle(true);
    box.setRange(0, 10);
    box.setValue(10);
    const QImage image = paint(box);
    // The darkest pixel tells how faint a sign is.
    const auto darkest = [&image](const QRect &room) {
        int found = 255;
        for (int y = room.top(); y <= room.bottom(); ++y) {
            for (int x = room.left(); x <= room.right(); ++x) {
                found = qMin(found, image.pixelColor(x, y).lightness());
            }
        }
        return found;
    };
    QVERIFY(darkest(QRect(82, 4, 14, 11)) > darkest(QRect(82, 17, 14, 11)) + 40);
}

void TestLStyle::theMarkOfACheckBoxIsInTheAccentColour()
{
    QCheckBox box;
    const QColor accent = box.palette().color(QPalette::Highlight);
    QCOMPARE(count(paint(box), accent), 0);
    box.setChecked(true);
    const QImage checked = paint(box);
    QVERIFY(count(checked, accent) > 100);
    QVERIFY(count(checked, box.palette().color(QPalette::HighlightedText)) > 3);
}

void TestLStyle::aRadioButtonIsSeenWhetherItIsChosenOrNot()
{
    QFETCH(int, theme);
    Helper::instance()->setPaletteType(static_cast<Helper::ColorType>(theme));
    QRadioButton button;
    const QColor accent = button.palette().color(QPalette::Highlight);
    const QColor edge = button.palette().color(QPalette::Mid);
    const QImage free = paint(button);
    QCOMPARE(count(free, accent), 0);
    QVERIFY(count(free, edge) > 3);
    button.setChecked(true);
    const QImage chosen = paint(button);
    QVERIFY(count(chosen, accent) > 100);
    QVERIFY(count(chosen, button.palette().color(QPalette::HighlightedText)) > 10);
}

void TestLStyle::theKeyboardsFocusIsSeen_data()
{
    QTest::addColumn<QString>("control");
    QTest::newRow("a button") << "button";
    QTest::newRow("a flat button") << "flat";
    QTest::newRow("the suggested button") << "suggested";
    QTest::newRow("a combo box") << "combo";
    QTest::newRow("a spin box") << "spin";
}

void TestLStyle::theKeyboardsFocusIsSeen()
{
    QFETCH(QString, control);
    QWidget window;
    QWidget *widget = nullptr;
    if (control == QLatin1String("button") || control == QLatin1String("flat")) {
        widget = new QPushButton(&window);
    } else if (control == QLatin1String("suggested")) {
        widget = new LSuggestButton(&window);
    } else if (control == QLatin1String("combo")) {
        widget = new LComboBox(&window);
    } else {
        widget = new LSpinBox(&window);
    }
    if (auto *button = qobject_cast<QPushButton *>(widget)) {
        button->setFlat(control == QLatin1String("flat"));
    }
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    widget->clearFocus();
    window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    const QImage without = paint(*widget);
    widget->setFocus(Qt::MouseFocusReason);
    if (qobject_cast<QPushButton *>(widget) != nullptr) {
        QCOMPARE(paint(*widget), without);
    }
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    const QImage with = paint(*widget);
    const QColor ring = widget->palette().color(
        control == QLatin1String("suggested") ? QPalette::HighlightedText : QPalette::Highlight);
    // Both long sides, two pixels wide.
    QVERIFY(count(with, ring) > count(without, ring) + 2 * 2 * 60);
}

void TestLStyle::controlsAreTallEnough()
{
    QPushButton button(QStringLiteral("x"));
    LComboBox combo;
    LSpinBox box;
    for (const QWidget *widget :
         {static_cast<QWidget *>(&button), static_cast<QWidget *>(&combo), static_cast<QWidget *>(&box)}) {
        QVERIFY(widget->sizeHint().height() >= 32);
    }
}

QTEST_MAIN(TestLStyle)
#include "tst_lstyle.moc"
