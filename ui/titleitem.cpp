// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "titleitem.h"

#include "card/cardinput.h"
#include "card/cardlabel.h"
#include "card/cardmeasures.h"
#include "card/cardtext.h"
#include "card/cardtheme.h"
#include "card/selectionbudget.h"
#include "card/titleitemaccessible.h"
#include "conferencemsgstaticwidget.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QSize RowSize(330, 40);
constexpr int SpaceAfterName = 20;
constexpr int SpaceBeforeMark = 6;
constexpr int LeastTextWidth = 110;

constexpr qreal FocusWidth = 2;
constexpr qreal PickedWidth = 1;

} // namespace

TiTleItem::TiTleItem(const QString &title, QWidget *parent)
    : CustomizeItem(parent)
    , m_layout(new QHBoxLayout)
    , m_checkBox(new QCheckBox(this))
    , m_card(qobject_cast<ConferenceMsgStaticWidget *>(parent))
{
    TiTleItemAccessible::registerFactory();
    setFixedSize(RowSize);
    setBottomRadius(true);
    if (m_card != nullptr) {
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
    }
    m_layout->setContentsMargins(CardMeasures::Margin, CardMeasures::Margin, CardMeasures::Margin,
                                 CardMeasures::Margin);
    m_layout->setSpacing(0);
    m_layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Only now: changing an installed layout posts an event, and Qt searches everything that earlier rows
    // have posted for an equal one.
    setLayout(m_layout);
    setAccessibleName(CardText::beginning(title));

    // Only marks a selected row; the row itself takes mouse and focus.
    m_checkBox->hide();
    m_checkBox->setFocusPolicy(Qt::NoFocus);
    m_checkBox->setAttribute(Qt::WA_TransparentForMouseEvents);

    CardTheme::follow(this, &TiTleItem::followTheme);
    setDefaultBackGroundColor(CardTheme::rowGround()); // there are no texts yet
}

void TiTleItem::insertConferenceMsg(const UserInfo &user)
{
    m_user = user;
    const QString shownName = user.remarkName.isEmpty() ? user.account : user.remarkName;
    m_nameLabel = addLabel(shownName, CardTheme::ValueAlpha);
    m_layout->addSpacing(SpaceAfterName);
    if (!user.name.isEmpty() && user.name != QLatin1String(" ")) {
        m_captionLabel = addLabel(QStringLiteral("ID"), CardTheme::CaptionAlpha);
        m_layout->addSpacing(CardMeasures::SpaceAfterCaption);
    }
    m_detailLabel = addLabel(user.account, CardTheme::CaptionAlpha, SpaceBeforeMark);
    m_layout->addWidget(m_checkBox);
    setAccessibleName(CardText::beginning(shownName));
    setAccessibleDescription(CardText::beginning(user.account));
}

void TiTleItem::insertSinglePersonName(const UserInfo &user)
{
    m_user = user;
    m_nameLabel = addLabel(user.name, CardTheme::ValueAlpha);
    m_layout->addWidget(m_checkBox);
    setAccessibleName(CardText::beginning(user.name));
}

UserInfo TiTleItem::getUserInfo() const
{
    return m_user;
}

bool TiTleItem::isSelected() const
{
    return m_selected;
}

void TiTleItem::toggleSelection()
{
    if (m_selected) {
        deselect();
    } else if (m_card != nullptr && m_card->selectionBudget().take()) {
        select();
    } else {
        return;
    }
    TiTleItemAccessible::announceSelection(this);
}

void TiTleItem::setWidgetColor(QWidget *widget, int alpha)
{
    CardTheme::setText(*widget, alpha);
}

void TiTleItem::keyPressEvent(QKeyEvent *event)
{
    if (!CardInput::isActivationKey(*event)) {
        CustomizeItem::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat()) {
        toggleSelection();
    }
}

void TiTleItem::keyReleaseEvent(QKeyEvent *event)
{
    if (!CardInput::isActivationKey(*event)) {
        CustomizeItem::keyReleaseEvent(event);
    }
}

void TiTleItem::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void TiTleItem::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        toggleSelection();
    }
}

void TiTleItem::paintEvent(QPaintEvent *event)
{
    CustomizeItem::paintEvent(event);
    const auto drawFrame = [this](const QColor &ground, const QPen &pen) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(ground);
        painter.setPen(pen);
        const qreal inset = pen.widthF() / 2;
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                                CardMeasures::CornerRadius, CardMeasures::CornerRadius);
    };
    if (m_selected) {
        drawFrame(CardTheme::pickedGround(), QPen(CardTheme::focus(), PickedWidth));
    }
    if (m_card != nullptr && isEnabled() && underMouse()) {
        drawFrame(CardTheme::text(CardTheme::HoverAlpha), QPen(Qt::transparent));
    }
    // Rows take the focus from the Tab key only, so mouse users never see the frame.
    if (hasFocus()) {
        drawFrame(Qt::transparent, QPen(CardTheme::focus(), FocusWidth));
    }
}

LLabel *TiTleItem::addLabel(const QString &text, int alpha, int spaceBehind)
{
    CardLabel *label = CardText::label(text, LFontSizeManager::T6, alpha, this);
    label->setContentsMargins(0, 0, spaceBehind, 0);
    // Two long texts keep at least a third of the row each; a short text is never elided in favour of a long
    // one.
    label->setMinimumWidth(qMin(label->sizeHint().width(), LeastTextWidth));
    m_layout->addWidget(label);
    return label;
}

void TiTleItem::select()
{
    m_selected = true;
    m_layout->removeWidget(m_checkBox);
    m_layout->addWidget(m_checkBox, 1, Qt::AlignRight);
    m_checkBox->setAccessibleName(accessibleName());
    m_checkBox->setChecked(true);
    m_checkBox->show();
    update();
}

void TiTleItem::deselect()
{
    m_selected = false;
    m_layout->removeWidget(m_checkBox);
    m_checkBox->setChecked(false);
    m_checkBox->hide();
    update();
    m_card->selectionBudget().giveBack();
}

void TiTleItem::followTheme()
{
    setDefaultBackGroundColor(CardTheme::rowGround());
    CardTheme::refreshTexts(*this);
}
