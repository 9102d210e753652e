// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QPixmap>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The pictures of the cards, compiled in.
namespace CardIcons {

constexpr int Extent = 16; ///< width and height, in device independent pixels

constexpr auto InProgress = ":/icon/conferenceIn.svg";
constexpr auto Ended = ":/icon/conferenceEnd.svg";
constexpr auto Waiting = ":/icon/conferenceWaiting.svg";
constexpr auto Contacts = ":/icon/kelvane-contacts.svg";

/// The icon at the resolution of @p widget's screen. @p path is one of the above.
QPixmap pixmap(const char *path, const QWidget &widget);

} // namespace CardIcons
