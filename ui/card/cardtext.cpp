// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardtext.h"

#include "card/cardlabel.h"

namespace {

/// Fills a line of the widest screen even in the narrowest letters.
constexpr int MostSeenCharacters = 2000;

void setSize(QWidget &widget, LFontSizeManager::SizeType size)
{
    widget.setFont(LFontSizeManager::instance()->get(size, widget.font()));
}

} // namespace

CardLabel *CardText::label(const QString &text, LFontSizeManager::SizeType size, int alpha, QWidget *parent)
{
    auto *label = new CardLabel(text, parent);
    setSize(*label, size);
    label->setTextAlpha(alpha);
    return label;
}

CardLabel *CardText::coloredLabel(const QString &text, LFontSizeManager::SizeType size, const QColor &color,
                                  QWidget *parent)
{
    auto *label = new ColoredCardLabel(text, color, parent);
    setSize(*label, size);
    return label;
}

bool CardText::isLong(const QString &text)
{
    return text.size() > MostSeenCharacters;
}

QString CardText::beginning(const QString &text)
{
    if (!isLong(text)) {
        return text;
    }
    // Half a surrogate pair would show as a box.
    const bool splitsPair = text.at(MostSeenCharacters - 1).isHighSurrogate();
    return text.left(MostSeenCharacters - (splitsPair ? 1 : 0)) + QChar(0x2026);
}

QString CardText::oneLine(QString text)
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

QString CardText::plainToolTip(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    return QLatin1String("<p>") + beginning(text).toHtmlEscaped() + QLatin1String("</p>");
}
