// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "customizeitem.h"
#include "signalactiontype.h"

QT_BEGIN_NAMESPACE
class QScrollArea;
QT_END_NAMESPACE

/// A scrolling frame for a long list of conferences. The plugin does not show it; it holds placeholders only.
class ConferenceListWidget : public CustomizeItem
{
    Q_OBJECT

public:
    explicit ConferenceListWidget(QWidget *parent = nullptr);

    /// Fills the list with the same placeholders for every action. Call once.
    void multipleInit(SignalActionType type);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeScrollArea();

    QScrollArea *m_scrollArea = nullptr;
};
