// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "card/selectionbudget.h"
#include "conferencerecords.h"

#include <QPointer>

QT_BEGIN_NAMESPACE
class QPushButton;
class QWidget;
QT_END_NAMESPACE
class CardRowList;
class ConferenceMsgStaticWidget;
class TiTleItem;
struct Confirmation;

/**
 * The people who may be meant, on a selection card: their rows, how many may be picked, who was picked, and
 * the button that confirms the choice. Empty on the other kinds of card.
 */
class CandidateList
{
public:
    /// Rows are added to @p rows of @p card; both outlive the list.
    CandidateList(ConferenceMsgStaticWidget *card, CardRowList &rows);

    /// Sets the people whose names matched unambiguously. Adds no rows.
    void setResolvedUsers(const QVector<UserInfo> &users) { m_resolvedUsers = users; }
    /// Sets the start of the conference, in milliseconds since the epoch; 0 for now.
    void setStartTime(qint64 msecs) { m_startTime = msecs; }
    [[nodiscard]] qint64 startTime() const { return m_startTime; }

    SelectionBudget &budget() { return m_budget; }

    /// Adds the card's title row above the candidates.
    void addTitle(QWidget *title);
    void addRow(const UserInfo &user);
    void addRows(const QVector<UserInfo> &users);
    void addRows(const QVector<DuplicateUsers> &groups);
    QPushButton *addConfirmButton();
    /// Null before it is added and after it is removed.
    [[nodiscard]] QPushButton *confirmButton() const { return m_confirmButton; }

    /// The people picked, plus the resolved ones if the purpose includes them.
    [[nodiscard]] QVector<UserInfo> members(const Confirmation &confirmation) const;

    /// @return false when a confirmation is already under way: a library that processes events while it waits
    /// could deliver a second click.
    [[nodiscard]] bool startConfirming();
    /// Ends what startConfirming() began and removes the button. If the button has the focus, the card takes
    /// it with @p focusReason.
    void endConfirming(Qt::FocusReason focusReason);

private:
    ConferenceMsgStaticWidget *m_card;
    CardRowList &m_cardRows;
    QVector<TiTleItem *> m_rows;
    QVector<UserInfo> m_resolvedUsers;
    qint64 m_startTime = 0;
    SelectionBudget m_budget;
    QPointer<QPushButton> m_confirmButton;
    bool m_isConfirming = false;
};
