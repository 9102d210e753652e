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

    // Call exactly one of the two, once, after the widget has got its size. The content does not depend on
    // the action.

    /// The editor of the first conference.
    void init(SignalActionType type, const QVector<ContactDetailMsg> &list);
    /// The card of one conference or of several.
    void initStatic(SignalActionType type, const QVector<ContactDetailMsg> &list);

private:
    QWidget *addTitle(int height);

    QVBoxLayout *m_layout;
    SignalActionType m_type;
};
