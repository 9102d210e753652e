// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "customizeitem.h"
#include "testcolumns.h"

#include <QtTest>

namespace {

constexpr QSize PanelSize(60, 40);

/// Paints the panel alone, on a transparent background.
QImage paint(CustomizeItem &item)
{
    item.resize(PanelSize);
    QImage image(PanelSize, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    item.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

int alphaAt(const QImage &image, const QPoint &position)
{
    return image.pixelColor(position).alpha();
}

} // namespace

class TestCustomizeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theColourAtFirst();
    void theColourThatWasSet();
    void theCorners_data();
    void theCorners();
    void theSquareBandIsPaintedOverThePanel();
    void theFocusComesWithTheTabKeyOnly();
};

void TestCustomizeItem::theColourAtFirst()
{
    CustomizeItem item;
    const QColor color = paint(item).pixelColor(30, 20);
    QCOMPARE(color.alpha(), 204);
    // Premultiplied colours lose precision.
    for (const int channel : {color.red(), color.green(), color.blue()}) {
        QVERIFY2(qAbs(channel - 247) <= 1, qPrintable(color.name()));
    }
}

void TestCustomizeItem::theColourThatWasSet()
{
    CustomizeItem item;
    item.setBackGroundColor(QColor(10, 20, 30));
    QCOMPARE(paint(item).pixelColor(30, 20), QColor(10, 20, 30));
}

void TestCustomizeItem::theCorners_data()
{
    addColumns<int, bool, bool, bool, bool>(
        {"radius", "bottomRadius", "topRadius", "upperRound", "lowerRound"});
    QTest::newRow("all round at first") << 8 << true << true << true << true;
    QTest::newRow("without bottom radius the lower ones are square") << 8 << false << true << true << false;
    QTest::newRow("without top radius nothing changes") << 8 << true << false << true << true;
    QTest::newRow("without both only the lower ones are square") << 8 << false << false << true << false;
    QTest::newRow("all square with radius 0") << 0 << true << true << false << false;
    QTest::newRow("a larger radius") << 15 << true << true << true << true;
}

void TestCustomizeItem::theCorners()
{
    QFETCH(int, radius);
    QFETCH(bool, bottomRadius);
    QFETCH(bool, topRadius);
    QFETCH(bool, upperRound);
    QFETCH(bool, lowerRound);
    CustomizeItem item;
    if (radius != 8) {
        item.setRaidus(radius);
    }
    item.setBackGroundColor(Qt::red);
    item.setBottomRadius(bottomRadius);
    item.setTopRadius(topRadius);
    const QImage image = paint(item);
    const int right = PanelSize.width() - 1;
    const int bottom = PanelSize.height() - 1;

    for (const int x : {0, right}) {
        QCOMPARE(alphaAt(image, {x, 0}), upperRound ? 0 : 255);
        QCOMPARE(alphaAt(image, {x, bottom}), lowerRound ? 0 : 255);
        // Here the arc has met the edge.
        QCOMPARE(alphaAt(image, {x, qMax(radius, 1)}), 255);
    }
    // A quarter of the radius along the edge is still outside the arc of a round corner.
    const int insideArc = radius / 4;
    QCOMPARE(alphaAt(image, {insideArc, 0}) == 255, !upperRound);
}

void TestCustomizeItem::theSquareBandIsPaintedOverThePanel()
{
    CustomizeItem item;
    item.setRaidus(10);
    item.setBackGroundColor(QColor(0, 0, 0, 100));
    item.setBottomRadius(false);
    const QImage image = paint(item);
    const int bandTop = PanelSize.height() - 10;
    QCOMPARE(alphaAt(image, {30, bandTop - 1}), 100);
    QVERIFY(alphaAt(image, {30, bandTop}) > 100);
    QVERIFY(alphaAt(image, {30, PanelSize.height() - 1}) > 100);
    QCOMPARE(alphaAt(image, {0, PanelSize.height() - 1}), 100);
    QCOMPARE(alphaAt(image, {PanelSize.width() - 1, PanelSize.height() - 1}), 100);
}

void TestCustomizeItem::theFocusComesWithTheTabKeyOnly()
{
    const CustomizeItem item;
    QCOMPARE(item.focusPolicy(), Qt::TabFocus);
}

QTEST_MAIN(TestCustomizeItem)
#include "tst_customizeitem.moc"
