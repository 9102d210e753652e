// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <lumo/llabel.h>
#include <lumo/plaintooltip.h>

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

namespace {
const QString Markup = QStringLiteral("<b>x</b><img src=\"file:///etc/hostname\">");
} // namespace

/// Text that somebody else wrote is shown as the characters that it is made of.
class TestLLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsAreMadeForPlainText();
    void markupIsPaintedAsCharacters();
    void aTextWiderThanItsLabelIsElided_data();
    void aTextWiderThanItsLabelIsElided();
    void onlyAnElidedTextHasAToolTip_data();
    void onlyAnElidedTextHasAToolTip();
    void aToolTipOfMarkupShowsItsCharacters_data();
    void aToolTipOfMarkupShowsItsCharacters();
};

void TestLLabel::labelsAreMadeForPlainText()
{
    QCOMPARE(LLabel().textFormat(), Qt::PlainText);
    const LLabel label(Markup);
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), Markup);
    QCOMPARE(label.elideMode(), Qt::ElideNone);
}

void TestLLabel::markupIsPaintedAsCharacters()
{
    LLabel label(Markup);
    label.resize(label.sizeHint());
    QVERIFY(label.sizeHint().width() >= label.fontMetrics().horizontalAdvance(Markup));

    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    plain.setText(Markup);
    plain.resize(label.size());
    QCOMPARE(label.grab().toImage(), plain.grab().toImage());
}

void TestLLabel::aTextWiderThanItsLabelIsElided_data()
{
    QTest::addColumn<Qt::TextElideMode>("mode");
    QTest::addColumn<bool>("mayShrink");
    QTest::newRow("not elided, so the label keeps its width") << Qt::ElideNone << false;
    QTest::newRow("elided at its end") << Qt::ElideRight << true;
    QTest::newRow("elided in its middle") << Qt::ElideMiddle << true;
}

void TestLLabel::aTextWiderThanItsLabelIsElided()
{
    QFETCH(Qt::TextElideMode, mode);
    QFETCH(bool, mayShrink);
    const QString text = QString(40, QLatin1Char('m'));
    LLabel label(text);
    const int whole = label.minimumSizeHint().width();
    QVERIFY(whole >= label.fontMetrics().horizontalAdvance(text));
    label.setElideMode(mode);
    QCOMPARE(label.minimumSizeHint().width() < whole / 4, mayShrink);
    QCOMPARE(label.sizeHint().width(), whole);
    QCOMPARE(label.text(), text);
    if (!mayShrink) {
        return;
    }

    label.resize(100, label.sizeHint().height());
    QLabel expected(label.fontMetrics().elidedText(text, mode, 100));
    expected.resize(label.size());
    QCOMPARE(label.grab().toImage(), expected.grab().toImage());

    // Wherever a text is aligned to that fits, the rest of one that does not starts at the left.
    label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(label.grab().toImage(), expected.grab().toImage());
}

void TestLLabel::onlyAnElidedTextHasAToolTip_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("ownToolTip");
    QTest::addColumn<QString>("shown");
    const QString text = QString(40, QLatin1Char('m'));
    QTest::newRow("too narrow") << 100 << QString() << plainToolTip(text);
    QTest::newRow("wide enough") << 2000 << QString() << QString();
    QTest::newRow("too narrow with a tool tip of its own") << 100 << "mine"
                                                           << "mine";
}

void TestLLabel::onlyAnElidedTextHasAToolTip()
{
    QFETCH(int, width);
    QFETCH(QString, ownToolTip);
    QFETCH(QString, shown);
    LLabel label(QString(40, QLatin1Char('m')));
    label.setElideMode(Qt::ElideRight);
    label.setToolTip(ownToolTip);
    label.resize(width, 20);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());

    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&label, &help);
    QCOMPARE(QToolTip::text(), shown);
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void TestLLabel::aToolTipOfMarkupShowsItsCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << Markup;
    QTest::newRow("entities") << "a &amp; b";
    QTest::newRow("plain") << QStringLiteral("周会");
}

void TestLLabel::aToolTipOfMarkupShowsItsCharacters()
{
    QFETCH(QString, text);
    QTextDocument shown;
    shown.setHtml(plainToolTip(text));
    QCOMPARE(shown.toPlainText(), text);
    QVERIFY(Qt::mightBeRichText(plainToolTip(text)));
    QCOMPARE(plainToolTip(QString()), QString());
}

QTEST_MAIN(TestLLabel)
#include "tst_llabel.moc"
