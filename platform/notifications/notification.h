// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

/// The contents of a desktop notification. Plain texts: the sender escapes what the server would read as
/// markup.
struct Notification
{
    QString summary;
    QString body;
    QStringList actions;    ///< by turns a name and its label
    quint32 replacesId = 0; ///< takes the place of that one if it is still shown; 0 for none
};
