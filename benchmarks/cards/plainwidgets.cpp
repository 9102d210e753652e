// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "plainwidgets.h"

#include "card/cardmeasures.h"
#include "card/cardtheme.h"
#include "conferencemsgstaticwidget.h"
#include "customizecombobox.h"
#include "customizeitem.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

namespace {

/// The rounded background of a row or a card.
class RoundedGround : public QWidget
{
public:
    explicit RoundedGround(QWidget *parent) : QWidget(parent) {}

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(CardTheme::panelGround());
        painter.setPen(Qt::transparent);
        painter.drawRoundedRect(rect(), CardMeasures::CornerRadius, CardMeasures::CornerRadius);
    }
};

} // namespace

PlainWidgets::PlainWidgets(const QWidget &card)
{
    readWidget(card);
}

PlainWidgets::~PlainWidgets() = default;
PlainWidgets::PlainWidgets(PlainWidgets &&) noexcept = default;

std::unique_ptr<QWidget> PlainWidgets::build() const
{
    return std::unique_ptr<QWidget>(buildWidget(nullptr));
}

int PlainWidgets::count() const
{
    int count = m_kind == Kind::Space || m_kind == Kind::Layout ? 0 : 1;
    for (const PlainWidgets &child : m_children) {
        count += child.count();
    }
    return count;
}

void PlainWidgets::readWidget(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        m_kind = Kind::Label;
        m_texts.append(label->text());
        m_pixmap = label->pixmap(Qt::ReturnByValue);
    } else if (const auto *check = qobject_cast<const QCheckBox *>(&widget)) {
        m_kind = Kind::CheckBox;
        m_texts.append(check->text());
    } else if (const auto *button = qobject_cast<const QPushButton *>(&widget)) {
        m_kind = Kind::Button;
        m_texts.append(button->text());
        m_isFlat = button->isFlat();
    } else if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        m_kind = qobject_cast<const CustomizeComboBox *>(box) != nullptr ? Kind::DateBox : Kind::ComboBox;
        for (int i = 0; i < box->count(); ++i) {
            m_texts.append(box->itemText(i));
        }
    } else if (qobject_cast<const QSpinBox *>(&widget) != nullptr) {
        m_kind = Kind::SpinBox;
    } else if (qobject_cast<const CustomizeItem *>(&widget) != nullptr ||
               qobject_cast<const ConferenceMsgStaticWidget *>(&widget) != nullptr) {
        m_kind = Kind::Ground;
    }
    m_font = widget.font();
    m_hasPalette = widget.testAttribute(Qt::WA_SetPalette);
    m_palette = widget.palette();
    m_isHidden = widget.isHidden();
    m_fillsGround = widget.autoFillBackground();
    m_groundRole = widget.backgroundRole();
    m_minimumSize = widget.minimumSize();
    m_maximumSize = widget.maximumSize();
    if (const auto *layout = qobject_cast<const QBoxLayout *>(widget.layout())) {
        readLayout(*layout);
    }
}

void PlainWidgets::readLayout(const QBoxLayout &layout)
{
    m_hasLayout = true;
    m_isVertical = layout.direction() == QBoxLayout::TopToBottom;
    m_margins = layout.contentsMargins();
    m_spacing = layout.spacing();
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        PlainWidgets child;
        if (item->widget() != nullptr) {
            child.readWidget(*item->widget());
        } else if (const auto *inner = qobject_cast<QBoxLayout *>(item->layout())) {
            child.m_kind = Kind::Layout;
            child.readLayout(*inner);
        } else {
            child.m_kind = Kind::Space;
            child.m_space = m_isVertical ? item->sizeHint().height() : item->sizeHint().width();
        }
        child.m_stretch = layout.stretch(i);
        m_children.push_back(std::move(child));
    }
}

QWidget *PlainWidgets::buildWidget(QWidget *parent) const
{
    QWidget *widget = nullptr;
    switch (m_kind) {
    case Kind::Label: {
        auto *label = new QLabel(parent);
        label->setTextFormat(Qt::PlainText);
        if (m_pixmap.isNull()) {
            label->setText(m_texts.first());
        } else {
            label->setPixmap(m_pixmap);
        }
        widget = label;
        break;
    }
    case Kind::Button: {
        auto *button = new QPushButton(m_texts.first(), parent);
        button->setFlat(m_isFlat);
        widget = button;
        break;
    }
    case Kind::CheckBox:
        widget = new QCheckBox(m_texts.first(), parent);
        break;
    case Kind::DateBox:
    case Kind::ComboBox: {
        auto *box = new QComboBox(parent);
        box->addItems(m_texts);
        if (m_kind == Kind::DateBox) {
            auto *calendar = new QCalendarWidget(box);
            calendar->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        }
        widget = box;
        break;
    }
    case Kind::SpinBox:
        widget = new QSpinBox(parent);
        break;
    case Kind::Ground:
        widget = new RoundedGround(parent);
        break;
    default:
        widget = new QWidget(parent);
        break;
    }
    if (m_fillsGround) {
        widget->setAutoFillBackground(true);
        widget->setBackgroundRole(m_groundRole);
    }
    widget->setFont(m_font);
    if (m_hasPalette) {
        widget->setPalette(m_palette);
    }
    widget->setMinimumSize(m_minimumSize);
    widget->setMaximumSize(m_maximumSize);
    if (m_hasLayout) {
        buildLayout(*new QBoxLayout(m_isVertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, widget),
                    widget);
    }
    if (m_isHidden && parent != nullptr) {
        widget->hide();
    }
    return widget;
}

void PlainWidgets::buildLayout(QBoxLayout &layout, QWidget *parent) const
{
    layout.setContentsMargins(m_margins);
    layout.setSpacing(m_spacing);
    for (const PlainWidgets &child : m_children) {
        if (child.m_kind == Kind::Space) {
            layout.addSpacing(child.m_space);
        } else if (child.m_kind == Kind::Layout) {
            auto *inner =
                new QBoxLayout(child.m_isVertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
            layout.addLayout(inner, child.m_stretch);
            child.buildLayout(*inner, parent);
        } else {
            layout.addWidget(child.buildWidget(parent), child.m_stretch);
        }
    }
}
