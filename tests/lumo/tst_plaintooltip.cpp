// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <lumo/plaintooltip.h>

#include <QTextDocument>
#include <QtTest>

class TestPlainToolTip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aToolTipOfMarkupShowsItsCharacters_data();
    void aToolTipOfMarkupShowsItsCharacters();
};

void TestPlainToolTip::aToolTipOfMarkupShowsItsCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << QStringLiteral("<b>x</b><img src=\"file:///etc/hostname\">");
    QTest::newRow("entities") << "a &amp; b";
    QTest::newRow("plain") << QStringLiteral("周会");
}

void TestPlainToolTip::aToolTipOfMarkupShowsItsCharacters()
{
    QFETCH(QString, text);
    QTextDocument shown;
    shown.setHtml(plainToolTip(text));
    QCOMPARE(shown.toPlainText(), text);
    QVERIFY(Qt::mightBeRichText(plainToolTip(text)));
    QCOMPARE(plainToolTip(QString()), QString());
}

QTEST_GUILESS_MAIN(TestPlainToolTip)
#include "tst_plaintooltip.moc"
