// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencelistwidget.h"

#include "card/cardmeasures.h"
#include "conferencemsgstaticwidget.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace {
constexpr int TopOffset = 70;
constexpr int PlaceholderCount = 100;
constexpr int PlaceholderHeight = 120;
/// More than the layout's spacing, which leaves a little room below the last row.
constexpr int HeightBetweenPlaceholders = 11;
constexpr QMargins Margins(10, 0, 20, 0);
} // namespace

ConferenceListWidget::ConferenceListWidget(QWidget *parent) : CustomizeItem(parent)
{
    setAttribute(Qt::WA_TranslucentBackground);
}

void ConferenceListWidget::multipleInit(SignalActionType /*type*/)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setAlignment(Qt::AlignTop);
    layout->setSpacing(CardMeasures::Spacing);
    layout->setContentsMargins(Margins);

    int contentHeight = 0;
    for (int i = 0; i < PlaceholderCount; ++i) {
        auto *placeholder = new ConferenceMsgStaticWidget(content);
        placeholder->setFixedHeight(PlaceholderHeight);
        layout->addWidget(placeholder);
        contentHeight += PlaceholderHeight + HeightBetweenPlaceholders;
    }
    content->setFixedHeight(contentHeight);

    m_scrollArea = new QScrollArea(this);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(content);
    // The rounded panel behind shows through; setWidget() has just switched the content's own background on.
    content->setAutoFillBackground(false);
    m_scrollArea->viewport()->setAutoFillBackground(false);
    placeScrollArea();
    m_scrollArea->show();
}

void ConferenceListWidget::resizeEvent(QResizeEvent *event)
{
    CustomizeItem::resizeEvent(event);
    placeScrollArea();
}

void ConferenceListWidget::placeScrollArea()
{
    if (m_scrollArea != nullptr) {
        m_scrollArea->setGeometry(0, TopOffset, width(), qMax(0, height() - TopOffset));
    }
}
