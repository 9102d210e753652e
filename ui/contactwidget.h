// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "customizeitem.h"
#include "signalactiontype.h"

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

/// An older container for conference cards: a title row over an editor or a card. The plugin does not use it.
class ContactWidget : public CustomizeItem
{
    Q_OBJECT

public:
    explicit ContactWidget(SignalActionType type, QWidget *parent = nullptr);

    // One of the two is to be called once, when the widget has its size. What is inside is the same for
    // every action.

    /// The editor of the first conference.
    void init(SignalActionType type, const QVector<ContactDetailMsg> &list);
    /// The card of one conference or of several.
    void initStatic(SignalActionType type, const QVector<ContactDetailMsg> &list);

private:
    QWidget *addTitle(int height);

    QVBoxLayout *m_layout;
    SignalActionType m_type;
};
