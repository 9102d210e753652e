// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "statusline.h"

#include "applicationlink.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace devhost {

namespace {

constexpr int LongestTitle = 30;

QLabel *makeLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QString accountText(const ApplicationState &state)
{
    if (!state.isReached) {
        return StatusLine::tr("The contacts application is not running");
    }
    return state.user.isEmpty() ? StatusLine::tr("Not logged in") : state.user;
}

} // namespace

StatusLine::StatusLine(QWidget *parent)
    : QWidget(parent)
    , m_account(makeLabel(QStringLiteral("statusAccount"), this))
    , m_conference(makeLabel(QStringLiteral("statusConference"), this))
    , m_leave(new QPushButton(tr("Leave"), this))
{
    m_leave->setObjectName(QStringLiteral("statusLeave"));
    m_leave->setFlat(true);
    connect(m_leave, &QPushButton::clicked, this, &StatusLine::leaveWanted);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 0, 16, 4);
    layout->addWidget(m_account);
    layout->addStretch(1);
    layout->addWidget(m_conference);
    layout->addWidget(m_leave);
    // Keeps the height that the button needs.
    setMinimumHeight(layout->contentsMargins().bottom() + m_leave->sizeHint().height());
    show(ApplicationState());
}

void StatusLine::show(const ApplicationState &state)
{
    m_account->setText(accountText(state));
    const bool isInside = !state.conferenceNumber.isEmpty();
    m_conference->setVisible(isInside);
    m_leave->setVisible(isInside);
    m_conference->setText(
        tr("In a conference: %1  %2").arg(state.conferenceTitle.left(LongestTitle), state.conferenceNumber));
    m_conference->setToolTip(state.conferenceTitle.toHtmlEscaped());
}

} // namespace devhost
