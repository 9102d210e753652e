// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardicons.h"
#include "testcolumns.h"

#include <QFile>
#include <QWidget>
#include <QtTest>

// What the resource compiler makes of image.qrc; others may register and release it.
extern int qInitResources_image();
extern int qCleanupResources_image();

class TestCardIcons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachIconIsThere_data();
    void eachIconIsThere();
    void theIconsDiffer();
    void theResourcesCanBeReleasedAndRegisteredAgain();
};

void TestCardIcons::eachIconIsThere_data()
{
    addColumns<QByteArray, QString, QColor>({"path", "file", "color"});
    QTest::newRow("in progress is green")
        << QByteArray(CardIcons::InProgress) << ":/icon/conferenceIn.svg" << QColor(89, 190, 45);
    QTest::newRow("ended is grey") << QByteArray(CardIcons::Ended) << ":/icon/conferenceEnd.svg"
                                   << QColor(143, 149, 156);
    QTest::newRow("not started is blue")
        << QByteArray(CardIcons::Waiting) << ":/icon/conferenceWaiting.svg" << QColor(0, 129, 255);
    QTest::newRow("the contacts application is blue")
        << QByteArray(CardIcons::Contacts) << ":/icon/kelvane-contacts.svg" << QColor(0, 129, 255);
}

void TestCardIcons::eachIconIsThere()
{
    QFETCH(QByteArray, path);
    QFETCH(QString, file);
    QFETCH(QColor, color);
    QCOMPARE(QString::fromLatin1(path), file);

    const QWidget widget;
    const QPixmap pixmap = CardIcons::pixmap(path.constData(), widget);
    QVERIFY(!pixmap.isNull());
    QVERIFY(QFile::exists(file));
    const qreal ratio = widget.devicePixelRatioF();
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    QCOMPARE(pixmap.size(), QSize(16, 16) * ratio);

    // The icon's ground, left of the white sign in its middle, and the room around it.
    const QImage image = pixmap.toImage();
    const int left = qRound(2 * ratio);
    const QColor ground = image.pixelColor(left, image.height() / 2);
    QVERIFY2(ground == color, qPrintable(ground.name(QColor::HexArgb)));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    int white = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            white +=
                image.pixelColor(x, y).lightness() > 200 && image.pixelColor(x, y).alpha() == 255 ? 1 : 0;
        }
    }
    QVERIFY2(white >= 8 * ratio * ratio, qPrintable(QString::number(white)));
}

void TestCardIcons::theIconsDiffer()
{
    const QWidget widget;
    const char *paths[] = {CardIcons::InProgress, CardIcons::Ended, CardIcons::Waiting, CardIcons::Contacts};
    QVector<QImage> seen;
    for (const char *path : paths) {
        const QImage image = CardIcons::pixmap(path, widget).toImage();
        QVERIFY(!seen.contains(image));
        seen.append(image);
    }
}

void TestCardIcons::theResourcesCanBeReleasedAndRegisteredAgain()
{
    qInitResources_image();
    QVERIFY(QFile::exists(QString::fromLatin1(CardIcons::Contacts)));
    qCleanupResources_image();
    QVERIFY(!QFile::exists(QString::fromLatin1(CardIcons::Contacts)));
    const QWidget widget;
    QVERIFY(!CardIcons::pixmap(CardIcons::Contacts, widget).isNull());
}

QTEST_MAIN(TestCardIcons)
#include "tst_cardicons.moc"
