// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/conferencerows.h"

#include "card/cardicons.h"
#include "card/cardlabel.h"
#include "card/cardline.h"
#include "card/cardmeasures.h"
#include "card/cardtext.h"
#include "card/cardtheme.h"
#include "card/conferencedurations.h"
#include "card/conferencestate.h"
#include "customizeitem.h"

#include <lumo/llabel.h>

#include <QDateTime>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int StateSpacing = 5;

constexpr Qt::Alignment ContentLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment ContentRight = Qt::AlignRight | Qt::AlignVCenter;

// Alignments in place of a stretch, 129 and 130. They have decided how the width is shared since the first
// card (the icon keeps its own, the text gets the rest); more sensible numbers would move both.
constexpr int TitleIconStretch = 1;
constexpr int TitleTextStretch = static_cast<int>(ContentLeft);
constexpr int StateStretch = static_cast<int>(ContentRight);
static_assert(TitleTextStretch == 129 && StateStretch == 130, "the cards are laid out with these");

CardLabel *valueLabel(const QString &text, QWidget *parent)
{
    return CardText::label(text, LFontSizeManager::T6, CardTheme::ValueAlpha, parent);
}

QLabel *iconLabel(const char *icon, QWidget *parent)
{
    auto *label = new LLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setPixmap(CardIcons::pixmap(icon, *label));
    return label;
}

void addValue(const ConferenceRows::CaptionedRow &row, const QString &text,
              Qt::Alignment alignment = ContentLeft)
{
    CardLabel *value = valueLabel(text, row.widget);
    // Long text takes all available width, but no more than it needs. Cap last: that measures the text, and
    // each of the other calls would make the label measure it again.
    value->setAlignment(alignment);
    value->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    value->capAtText();
    row.layout->addWidget(value);
}

QWidget *valueRow(const QString &caption, const QString &value, QWidget *parent)
{
    const ConferenceRows::CaptionedRow row = ConferenceRows::captioned(caption, parent);
    addValue(row, value);
    return row.widget;
}

QLayout *stateLayout(const ConferenceState &state, QWidget *parent)
{
    auto *layout = new QHBoxLayout;
    layout->setSpacing(StateSpacing);
    QLabel *icon = iconLabel(state.icon, parent);
    icon->setAlignment(ContentRight);
    layout->addWidget(icon, StateStretch);
    CardLabel *text = CardText::coloredLabel(state.text, LFontSizeManager::T8, state.color, parent);
    text->disableEliding();
    text->setAlignment(ContentRight);
    layout->addWidget(text, StateStretch);
    return layout;
}

} // namespace

QWidget *ConferenceRows::title(QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(CardMeasures::Spacing);
    layout->addWidget(iconLabel(CardIcons::Contacts, row), TitleIconStretch);
    CardLabel *text =
        CardText::label(QStringLiteral("联系人"), LFontSizeManager::T8, CardTheme::TitleAlpha, row);
    text->setAlignment(ContentLeft);
    layout->addWidget(text, TitleTextStretch);
    return row;
}

QWidget *ConferenceRows::status(const ContactDetailMsg &conference, bool isStatic, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(CardMeasures::Spacing);
    layout->setAlignment(Qt::AlignLeft);
    layout->addWidget(valueLabel(conference.title, row), 1);
    if (isStatic) {
        layout->addLayout(stateLayout(ConferenceState::of(conference.status), row));
    }
    return row;
}

QWidget *ConferenceRows::number(const ContactDetailMsg &conference, QWidget *parent)
{
    const CaptionedRow row = captioned(QStringLiteral("会议号"), parent);
    addValue(row, conference.conferenceDialNumber, ContentRight);
    return row.widget;
}

QWidget *ConferenceRows::beginTime(const ContactDetailMsg &conference, QWidget *parent)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(conference.startTime);
    const QString text = QStringLiteral("%1月%2日    %3")
                             .arg(QString::number(start.date().month()), QString::number(start.date().day()),
                                  start.time().toString(QStringLiteral("hh:mm:ss")));
    return valueRow(beginTimeCaption(), text, parent);
}

QWidget *ConferenceRows::timeLength(const ContactDetailMsg &conference, QWidget *parent)
{
    const QString text = QStringLiteral("%1分钟").arg(conference.duration / ConferenceDurations::Minute);
    return valueRow(timeLengthCaption(), text, parent);
}

QWidget *ConferenceRows::personNum(const ContactDetailMsg &conference, QWidget *parent)
{
    return valueRow(personNumCaption(), QStringLiteral("%1人").arg(conference.participantLimit), parent);
}

QWidget *ConferenceRows::participants(const ContactDetailMsg &conference, QWidget *parent)
{
    QString names;
    for (const UserInfo &participant : conference.participants) {
        names += participant.name + QLatin1Char(' ');
    }
    return valueRow(QStringLiteral("参与人"), names, parent);
}

ConferenceRows::CaptionedRow ConferenceRows::captioned(const QString &caption, QWidget *parent)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft);
    CardLabel *label = CardText::label(caption, LFontSizeManager::T7, CardTheme::CaptionAlpha, row);
    label->setFixedWidth(CardMeasures::CaptionWidth);
    label->setMinimumHeight(CardMeasures::CaptionMinimumHeight);
    layout->addWidget(label);
    layout->addSpacing(CardMeasures::SpaceAfterCaption);
    return {row, layout, label};
}

QVector<QWidget *> ConferenceRows::summary(const ContactDetailMsg &conference, QWidget *parent)
{
    return {status(conference, true, parent), number(conference, parent), beginTime(conference, parent)};
}

QPushButton *ConferenceRows::line(QWidget *parent)
{
    return new CardLine(parent);
}

QPushButton *ConferenceRows::separator(QWidget *parent)
{
    QPushButton *separator = line(parent);
    separator->setFixedHeight(CardMeasures::LineThickness);
    return separator;
}

QWidget *ConferenceRows::item(QWidget *parent)
{
    auto *item = new CustomizeItem(parent);
    item->setRaidus(CardMeasures::CornerRadius);
    item->setBackGroundColor(CardTheme::itemGround());
    item->setFocusPolicy(Qt::NoFocus);
    auto *layout = new QVBoxLayout(item);
    CardMeasures::apply(*layout);
    return item;
}

QString ConferenceRows::beginTimeCaption()
{
    return QStringLiteral("时间");
}

QString ConferenceRows::timeLengthCaption()
{
    return QStringLiteral("时长");
}

QString ConferenceRows::personNumCaption()
{
    return QStringLiteral("人数");
}
