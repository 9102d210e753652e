// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardtext.h"

#include "card/themecolor.h"

#include <lumo/legibleground.h>
#include <lumo/llabel.h>

#include <QPainter>
#include <QVariant>

namespace {

constexpr auto AlphaProperty = "cardTextAlpha";
/// More than a line of the widest row has room for.
constexpr int WidestHint = 260;

class CardLabel : public LLabel
{
public:
    using LLabel::LLabel;

    QSize sizeHint() const override { return LLabel::sizeHint().boundedTo({WidestHint, QWIDGETSIZE_MAX}); }
};

/// A label whose colour stays when the theme changes.
class ColoredLabel final : public CardLabel
{
public:
    using CardLabel::CardLabel;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        paintLegibleGround(painter, rect(), palette().color(foregroundRole()));
        painter.end();
        CardLabel::paintEvent(event);
    }
};

/// Line breaks in somebody's title would make its row as tall as they like.
QString oneLine(QString text)
{
    for (QChar &character : text) {
        switch (character.unicode()) {
        case QChar::LineFeed:
        case QChar::CarriageReturn:
        case QChar::LineSeparator:
        case QChar::ParagraphSeparator:
            character = QLatin1Char(' ');
            break;
        default:
            break;
        }
    }
    return text;
}

template <typename Label>
LLabel *plainLabel(const QString &text, LFontSizeManager::SizeType size, QWidget *parent)
{
    auto *label = new Label(oneLine(text), parent);
    label->setElideMode(Qt::ElideRight);
    label->setFont(LFontSizeManager::instance()->get(size, label->font()));
    return label;
}

} // namespace

LLabel *CardText::label(const QString &text, LFontSizeManager::SizeType size, int alpha, QWidget *parent)
{
    LLabel *label = plainLabel<CardLabel>(text, size, parent);
    setColor(*label, alpha);
    return label;
}

LLabel *CardText::coloredLabel(const QString &text, LFontSizeManager::SizeType size, const QColor &color,
                               QWidget *parent)
{
    LLabel *label = plainLabel<ColoredLabel>(text, size, parent);
    QPalette palette = label->palette();
    palette.setBrush(QPalette::All, QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

void CardText::setColor(QWidget &widget, int alpha)
{
    widget.setProperty(AlphaProperty, alpha);
    ThemeColor::applyText(widget, alpha);
}

void CardText::followTheme(const QWidget &card)
{
    const auto widgets = card.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QVariant alpha = widget->property(AlphaProperty);
        if (alpha.isValid()) {
            ThemeColor::applyText(*widget, alpha.toInt());
        }
    }
}
