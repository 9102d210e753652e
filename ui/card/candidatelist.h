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
 * The people who may be meant, on a selection card: their rows, how many of them may be picked, who was, and
 * the button that confirms it. Empty on the other kinds of card.
 */
class CandidateList
{
public:
    /// Rows are added to @p rows of @p card; both outlive the list.
    CandidateList(ConferenceMsgStaticWidget *card, CardRowList &rows);

    /// Those who were found at once. They get no rows by this.
    void setResolvedUsers(const QVector<UserInfo> &users) { m_resolvedUsers = users; }
    /// When the conference that they are picked for starts: milliseconds since the epoch, 0 for now.
    void setStartTime(qint64 msecs) { m_startTime = msecs; }
    [[nodiscard]] qint64 startTime() const { return m_startTime; }

    SelectionBudget &budget() { return m_budget; }

    /// Adds the card's title row above the candidates.
    void addTitle(QWidget *title);
    void addRow(const UserInfo &user);
    void addRows(const QVector<UserInfo> &users);
    void addRows(const QVector<DuplicateUsers> &groups);
    QPushButton *addConfirmButton();
    /// Null until it is added, and once it is removed.
    [[nodiscard]] QPushButton *confirmButton() const { return m_confirmButton; }

    /// Those who were picked, and the resolved ones if they join them for that purpose.
    [[nodiscard]] QVector<UserInfo> members(const Confirmation &confirmation) const;

    /// @return false when a confirmation is under way already: a library that lets events through while it
    /// waits could bring a second click.
    [[nodiscard]] bool startConfirming();
    /// Ends what startConfirming() began and removes the button. If that has the focus, the card takes it for
    /// @p focusReason.
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
