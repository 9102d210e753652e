// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QDateTime>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

/// Sample people and conferences for the card tests, and functions that find a card's children.
namespace CardSamples {

constexpr qint64 Minute = 60000;
constexpr qint64 Hour = 60 * Minute;

/// Thursday, 2024-03-07, at the given local time, in milliseconds since the epoch.
qint64 thursdayAt(int hour, int minute = 0);

/// A conference from 09:00 to 09:15 with 张三 and 李四, for at most 20 people, owned by a free account.
ContactDetailMsg conference();
QVector<ContactDetailMsg> conferences(int count);

UserInfo user(const QString &name, const QString &remarkName, const QString &userId, const QString &account);

/// An invitation with two candidates for 张三, three for 王五, and a single match for 赵六.
ContactInviteMemberDetail inviteDetail();
/// The same people, for a conference about to be created.
ContactCreatedConferenceDetail createdDetail();

/// All descendants of @p parent of type @p Widget that are not hidden.
template <typename Widget>
QVector<Widget *> shown(const QWidget &parent)
{
    QVector<Widget *> result;
    const auto all = parent.findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->isVisibleTo(&parent)) {
            result.append(widget);
        }
    }
    return result;
}

/// The texts of all shown labels on @p parent, except icons, in tree order.
QStringList texts(const QWidget &parent);

/// The shown control on @p parent with the accessible name @p name; null if there is none.
template <typename Widget>
Widget *named(const QWidget &parent, const QString &name)
{
    for (Widget *widget : shown<Widget>(parent)) {
        if (widget->accessibleName() == name) {
            return widget;
        }
    }
    return nullptr;
}

/// The shown button with this text; null if there is none.
QPushButton *button(const QWidget &parent, const QString &text);

} // namespace CardSamples
