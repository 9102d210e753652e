// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "contactdetailwidget.h"

#include "scriptedability.h"

#include <lumo/lcombobox.h>
#include <lumo/lspinbox.h>

#include <QDateTime>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

inline ContactDetailMsg conference()
{
    ContactDetailMsg conference;
    conference.title = QStringLiteral("周会");
    conference.confId = QStringLiteral("c7");
    conference.startTime = QDateTime(QDate(2024, 3, 31), QTime(9, 30)).toMSecsSinceEpoch();
    conference.duration = 30 * 60000;
    conference.participantLimit = 40;
    conference.isPayingUser = true;
    conference.participants = {{QStringLiteral("李雷"), {}, {}, {}}, {QStringLiteral("韩梅梅"), {}, {}, {}}};
    return conference;
}

/// The form and its controls, found by the names a user sees.
struct Form
{
    explicit Form(const QVector<ContactDetailMsg> &list) { widget.gridLayout(list); }

    /// The first child that satisfies @p isWanted; null if there is none.
    template <typename Widget, typename IsWanted>
    Widget *found(IsWanted isWanted) const
    {
        const auto children = widget.findChildren<Widget *>();
        const auto child = std::find_if(children.cbegin(), children.cend(),
                                        [&isWanted](const Widget *one) { return isWanted(*one); });
        return child == children.cend() ? nullptr : *child;
    }

    LComboBox *combo(const QString &name) const
    {
        return found<LComboBox>([&name](const LComboBox &combo) { return combo.accessibleName() == name; });
    }
    LComboBox *month() const { return combo(QStringLiteral("月")); }
    LComboBox *day() const { return combo(QStringLiteral("日")); }
    LComboBox *hour() const { return combo(QStringLiteral("开始时间")); }
    LComboBox *duration() const { return combo(QStringLiteral("时长")); }
    LSpinBox *persons() const { return widget.findChild<LSpinBox *>(); }
    QPushButton *button(const QString &text) const
    {
        return found<QPushButton>([&text](const QPushButton &button) { return button.text() == text; });
    }
    QGridLayout *grid() const { return qobject_cast<QGridLayout *>(widget.layout()); }

    ContactDetailWidget widget;
};

/// Resets the script and lets every update of a conference succeed.
inline void acceptUpdates()
{
    ScriptedAbility::instance().reset();
    ScriptedAbility::instance().setAnswer(QStringLiteral("Update Conference"), 0,
                                          QStringLiteral("{\"ret\":\"OK\"}"));
}
