// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "customizeitem.h"

QT_BEGIN_NAMESPACE
class QCheckBox;
class QHBoxLayout;
QT_END_NAMESPACE
class ConferenceMsgStaticWidget;
class LLabel;

/**
 * A row of a selection card: one person who may be meant. A click anywhere on it, Space or Return selects or
 * deselects the person, as far as the card's selection budget allows. The check box is only a mark. Clicks do
 * not reach the card behind the row.
 *
 * A row outside a card has no budget, so it cannot be selected.
 */
class TiTleItem : public CustomizeItem
{
    Q_OBJECT

public:
    /// @p title is not displayed; it is the accessible name until the row shows a person.
    explicit TiTleItem(const QString &title, QWidget *parent = nullptr);

    /// Shows display name and account. Call once.
    void insertConferenceMsg(const UserInfo &user);
    /// Shows only the name that was asked for. Call once.
    void insertSinglePersonName(const UserInfo &user);

    [[nodiscard]] UserInfo getUserInfo() const;
    [[nodiscard]] bool isSelected() const;

    /// What a click does: selects the row if the card's budget allows, or deselects it.
    void toggleSelection();

    /// Gives @p widget the theme's text colour with @p alpha (0 to 255).
    void setWidgetColor(QWidget *widget, int alpha);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    LLabel *addLabel(const QString &text, int alpha, int spaceBehind = 0);
    void select();
    void deselect();
    void followTheme();

    QHBoxLayout *m_layout;
    LLabel *m_nameLabel = nullptr;
    LLabel *m_captionLabel = nullptr;
    LLabel *m_detailLabel = nullptr;
    bool m_selected = false;
    QCheckBox *m_checkBox;
    UserInfo m_user;
    ConferenceMsgStaticWidget *m_card;
};
