// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

#include <QDateTime>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

/// The people and conferences that the tests of the cards show, and how they find their way on a card.
namespace CardSamples {

constexpr qint64 Minute = 60000;
constexpr qint64 Hour = 60 * Minute;

/// 2024-03-07, a Thursday, at that local time.
qint64 thursdayAt(int hour, int minute = 0);

/// A quarter of an hour from 09:00, with 张三 and 李四, at most 20 people, whose owner does not pay.
ContactDetailMsg conference();
QVector<ContactDetailMsg> conferences(int count);

UserInfo user(const QString &name, const QString &remarkName, const QString &userId, const QString &account);

/// 张三 is one of two people, 王五 is one of three, and 赵六 was found at once.
ContactInviteMemberDetail inviteDetail();
/// The same for a conference that is to be created.
ContactCreatedConferenceDetail createdDetail();

/// All children of that type that stand directly or indirectly on @p parent and are not hidden.
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

/// The texts of all labels on @p parent, from top to bottom.
QStringList texts(const QWidget &parent);

/// The control on @p parent that assistive technology and people know by @p name; null when there is none.
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

/// The button with that text; null when there is none.
QPushButton *button(const QWidget &parent, const QString &text);

} // namespace CardSamples
