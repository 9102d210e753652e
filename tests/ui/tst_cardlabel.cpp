// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardlabel.h"

#include "card/cardtext.h"
#include "card/cardtheme.h"
#include "desktoptheme.h"
#include "paintedcontrast.h"
#include "testcolumns.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QtTest>

#include <limits>

namespace {

const QString Markup =
    QStringLiteral("<a href=\"file:///etc/passwd\">周会</a><img src=\"file:///etc/hostname\">");
constexpr int Megabyte = 1024 * 1024;

CardLabel *makeLabel(const QString &text, QWidget *parent)
{
    return CardText::label(text, LFontSizeManager::T6, CardTheme::ValueAlpha, parent);
}

/// The tool tip shown when the mouse rests on @p label.
QString shownToolTip(QWidget &label)
{
    QToolTip::hideText();
    if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); })) {
        return QStringLiteral("the former tool tip stays");
    }
    QHelpEvent help(QEvent::ToolTip, QPoint(5, 5), label.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&label, &help);
    return QToolTip::text();
}

QImage painted(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

} // namespace

/// Texts from outside, shown literally whatever the toolkit.
class TestCardLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void markupIsPaintedAsCharacters();
    void aTextThatDoesNotFitIsElided();
    void aLabelThatIsNotElidedKeepsItsWidth();
    void onlyAnElidedTextHasAToolTip_data();
    void onlyAnElidedTextHasAToolTip();
    void aToolTipShowsMarkupAsCharacters_data();
    void aToolTipShowsMarkupAsCharacters();
    void aLongTextStaysWholeButIsNotShownWhole();
    void theDotsOfALongTextDoNotSplitACharacter();
    void aMegabyteTakesNoTime();
    void aFixedColourGetsALegibleGround_data();
    void aFixedColourGetsALegibleGround();
    void theChipIsRoundAndItsTextLegible();
};

void TestCardLabel::cleanup()
{
    QToolTip::hideText();
    DesktopTheme::set(DesktopTheme::Light);
}

void TestCardLabel::markupIsPaintedAsCharacters()
{
    QWidget parent;
    CardLabel *label = makeLabel(Markup, &parent);
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QCOMPARE(label->text(), Markup);
    QLabel plain(&parent);
    plain.setTextFormat(Qt::PlainText);
    plain.setText(Markup);
    plain.setFont(label->font());
    plain.setPalette(label->palette());
    QCOMPARE(label->wholeWidth(), plain.sizeHint().width());
    label->resize(label->wholeWidth() + 10, label->sizeHint().height());
    plain.resize(label->size());
    QCOMPARE(painted(*label), painted(plain));
}

void TestCardLabel::aTextThatDoesNotFitIsElided()
{
    QWidget parent;
    const QString text(40, QLatin1Char('m'));
    CardLabel *label = makeLabel(text, &parent);
    QVERIFY(label->minimumSizeHint().width() < label->wholeWidth() / 4);
    QCOMPARE(label->sizeHint().width(), qMin(260, label->wholeWidth()));
    QCOMPARE(label->text(), text);

    label->resize(100, label->sizeHint().height());
    QLabel expected(label->fontMetrics().elidedText(text, Qt::ElideRight, 100), &parent);
    expected.setFont(label->font());
    expected.setPalette(label->palette());
    expected.resize(label->size());
    QCOMPARE(painted(*label), painted(expected));

    // An elided text starts at the left, whatever the alignment.
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(painted(*label), painted(expected));
}

void TestCardLabel::aLabelThatIsNotElidedKeepsItsWidth()
{
    QWidget parent;
    CardLabel *label = makeLabel(QStringLiteral("进行中"), &parent);
    label->disableEliding();
    QVERIFY(label->minimumSizeHint().width() >= label->wholeWidth());
}

void TestCardLabel::onlyAnElidedTextHasAToolTip_data()
{
    addColumns<int, QString, QString>({"width", "ownToolTip", "shown"});
    QTest::newRow("too narrow") << 100 << QString() << CardText::plainToolTip(Markup);
    QTest::newRow("wide enough") << 2000 << QString() << QString();
    QTest::newRow("too narrow with a tool tip of its own") << 100 << "mine"
                                                           << "mine";
}

void TestCardLabel::onlyAnElidedTextHasAToolTip()
{
    QFETCH(int, width);
    QFETCH(QString, ownToolTip);
    QWidget parent;
    parent.resize(2000, 40);
    CardLabel *label = makeLabel(Markup, &parent);
    label->setToolTip(ownToolTip);
    label->resize(width, 20);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTEST(shownToolTip(*label), "shown");
}

void TestCardLabel::aToolTipShowsMarkupAsCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("markup") << Markup;
    QTest::newRow("entities") << "a &amp; b";
    QTest::newRow("plain") << QStringLiteral("周会");
}

void TestCardLabel::aToolTipShowsMarkupAsCharacters()
{
    QFETCH(QString, text);
    QTextDocument shown;
    shown.setHtml(CardText::plainToolTip(text));
    QCOMPARE(shown.toPlainText(), text);
    QVERIFY(Qt::mightBeRichText(CardText::plainToolTip(text)));
    QCOMPARE(CardText::plainToolTip(QString()), QString());
}

void TestCardLabel::aLongTextStaysWholeButIsNotShownWhole()
{
    const QString text = QStringLiteral("周会").repeated(Megabyte / 2);
    QWidget parent;
    parent.resize(400, 40);
    CardLabel *label = makeLabel(text, &parent);
    label->resize(300, 20);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QCOMPARE(label->text(), text);
    QVERIFY(label->accessibleName().size() < 5000);
    QVERIFY(label->accessibleName().startsWith(text.left(1000)));

    QTextDocument toolTip;
    toolTip.setHtml(shownToolTip(*label));
    QVERIFY(toolTip.toPlainText().size() < 5000);
    QVERIFY(toolTip.toPlainText().startsWith(text.left(1000)));

    // It looks like any text that is too long for its place.
    CardLabel *shorter = makeLabel(text.left(500), &parent);
    shorter->resize(label->size());
    QCOMPARE(painted(*label), painted(*shorter));
    QCOMPARE(label->sizeHint(), shorter->sizeHint());
    QCOMPARE(label->minimumSizeHint(), shorter->minimumSizeHint());
}

void TestCardLabel::theDotsOfALongTextDoNotSplitACharacter()
{
    // Surrogate pairs, starting at an even and at an odd position.
    const QString pairs = QStringLiteral("𠀀").repeated(5000);
    for (const QString &text : {pairs, QLatin1Char('a') + pairs}) {
        const QString beginning = CardText::beginning(text);
        QVERIFY(beginning.size() < 5000);
        QVERIFY(beginning.endsWith(QChar(0x2026)));
        QVERIFY(beginning.at(beginning.size() - 2).isLowSurrogate());
    }
}

void TestCardLabel::aMegabyteTakesNoTime()
{
    const QString text = QStringLiteral("周会 <b>").repeated(Megabyte / 6);
    QWidget parent;
    QVERIFY(makeLabel(QStringLiteral("周会 <b>"), &parent)->sizeHint().isValid()); // loads the fonts
    // The best of three, since the clock includes other programs' time.
    qint64 best = std::numeric_limits<qint64>::max();
    for (int attempt = 0; attempt < 3; ++attempt) {
        QElapsedTimer timer;
        timer.start();
        CardLabel *label = makeLabel(text, &parent);
        label->resize(label->sizeHint());
        painted(*label);
        best = qMin(best, timer.elapsed());
    }
    QVERIFY2(best < 50, qPrintable(QString::number(best)));
}

void TestCardLabel::aFixedColourGetsALegibleGround_data()
{
    addColumns<int, QColor, bool>({"theme", "color", "hasGround"});
    QTest::newRow("dark on dark") << int(DesktopTheme::Dark) << CardTheme::ended() << true;
    QTest::newRow("bright on dark") << int(DesktopTheme::Dark) << CardTheme::inProgress() << false;
    QTest::newRow("dark on light") << int(DesktopTheme::Light) << CardTheme::ended() << false;
}

void TestCardLabel::aFixedColourGetsALegibleGround()
{
    QFETCH(int, theme);
    QFETCH(QColor, color);
    QFETCH(bool, hasGround);
    QWidget parent;
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));
    CardLabel *label = CardText::coloredLabel(QString(), LFontSizeManager::T8, color, &parent);
    label->resize(40, 20);
    QCOMPARE(painted(*label).pixelColor(20, 10).alpha() > 0, hasGround);
    QCOMPARE(label->palette().color(QPalette::WindowText), color);
}

void TestCardLabel::theChipIsRoundAndItsTextLegible()
{
    QWidget parent;
    DesktopTheme::set(DesktopTheme::Dark);
    CardLabel *label =
        CardText::coloredLabel(QStringLiteral("已结束"), LFontSizeManager::T8, CardTheme::ended(), &parent);
    label->resize(label->sizeHint());
    const QImage chip = painted(*label);
    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()) + 12);
    QCOMPARE(chip.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(chip.pixelColor(chip.width() - 1, chip.height() - 1).alpha(), 0);
    QCOMPARE(chip.pixelColor(chip.height() / 2, 0).alpha(), 255);
    const int inset = chip.height() / 2;
    const double contrast = PaintedContrast::ofText(chip.copy(chip.rect().adjusted(inset, 1, -inset, -1)));
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
    // The theme may change while a card is shown.
    DesktopTheme::set(DesktopTheme::Light);
    QCOMPARE(label->contentsMargins(), QMargins());
    QCOMPARE(painted(*label).pixelColor(label->height() / 2, 0).alpha(), 0);
}

QTEST_MAIN(TestCardLabel)
#include "tst_cardlabel.moc"
