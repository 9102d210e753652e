// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/candidatelist.h"

#include "card/cardbuttons.h"
#include "card/cardrowlist.h"
#include "card/confirmation.h"
#include "conferencemsgstaticwidget.h"
#include "titleitem.h"

#include <QPushButton>

#include <utility>

namespace {
constexpr int SpaceAfterTitle = 10;
constexpr int SpaceAfterCandidate = 2;
constexpr int SpaceBeforeConfirm = 8;
constexpr int ConfirmHeight = 36;
} // namespace

CandidateList::CandidateList(ConferenceMsgStaticWidget *card, CardRowList &rows)
    : m_card(card)
    , m_cardRows(rows)
{
}

void CandidateList::addTitle(QWidget *title)
{
    m_cardRows.add(title);
    m_cardRows.addSpacing(SpaceAfterTitle);
}

void CandidateList::addRow(const UserInfo &user)
{
    auto *row = new TiTleItem(user.name, m_card);
    row->insertConferenceMsg(user);
    m_rows.append(row);
    m_cardRows.add(m_cardRows.listed(row));
    m_cardRows.addSpacing(SpaceAfterCandidate);
}

void CandidateList::addRows(const QVector<UserInfo> &users)
{
    for (const UserInfo &user : users) {
        addRow(user);
    }
}

void CandidateList::addRows(const QVector<DuplicateUsers> &groups)
{
    for (const DuplicateUsers &group : groups) {
        addRows(group.users);
    }
}

QPushButton *CandidateList::addConfirmButton()
{
    m_cardRows.addSpacing(SpaceBeforeConfirm);
    m_confirmButton = new QPushButton(QStringLiteral("确 认"), m_card);
    m_confirmButton->setFixedHeight(ConfirmHeight);
    CardButtons::prepare(*m_confirmButton, m_card);
    m_cardRows.add(m_cardRows.listed(m_confirmButton));
    return m_confirmButton;
}

QVector<UserInfo> CandidateList::members(const Confirmation &confirmation) const
{
    QVector<UserInfo> members;
    for (const TiTleItem *row : m_rows) {
        if (row->isSelected()) {
            members.append(row->getUserInfo());
        }
    }
    if (confirmation.resolvedUsers == Confirmation::ResolvedUsers::Join) {
        members += m_resolvedUsers;
    }
    return members;
}

bool CandidateList::startConfirming()
{
    return !std::exchange(m_isConfirming, true);
}

void CandidateList::endConfirming(Qt::FocusReason focusReason)
{
    m_isConfirming = false;
    if (!m_confirmButton.isNull()) {
        m_cardRows.remove(m_confirmButton, focusReason);
        m_confirmButton.clear();
    }
}
