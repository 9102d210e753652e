// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactwidget.h"

#include "conferencemsgstaticwidget.h"
#include "contactdetailwidget.h"
#include "titleitem.h"

#include <QVBoxLayout>

namespace {
constexpr int EditorTitleHeight = 60;
constexpr int CardTitleHeight = 62;
} // namespace

ContactWidget::ContactWidget(SignalActionType type, QWidget *parent)
    : CustomizeItem(parent)
    , m_layout(new QVBoxLayout)
    , m_type(type)
{
}

void ContactWidget::init(SignalActionType /*type*/, const QVector<ContactDetailMsg> &list)
{
    addTitle(EditorTitleHeight);
    auto *editor = new ContactDetailWidget(this);
    editor->setFixedWidth(width());
    editor->gridLayout(list);
    m_layout->addWidget(editor);
}

void ContactWidget::initStatic(SignalActionType /*type*/, const QVector<ContactDetailMsg> &list)
{
    const QWidget *title = addTitle(CardTitleHeight);
    auto *card = new ConferenceMsgStaticWidget(this);
    card->setFixedWidth(width());
    if (list.size() < 2) {
        card->singleInit(list);
    } else {
        card->resize(size());
        card->move((width() - card->width()) / 2, (height() - title->height()) / 2);
        card->multipleInit(list);
    }
    m_layout->addWidget(card);
}

QWidget *ContactWidget::addTitle(int height)
{
    setLayout(m_layout);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setAlignment(Qt::AlignTop);
    auto *title = new TiTleItem(QStringLiteral("联系人"), this);
    title->setFixedHeight(height);
    m_layout->addWidget(title);
    return title;
}
