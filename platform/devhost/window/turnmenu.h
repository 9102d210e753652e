// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace devhost {

class Conversation;
struct Turn;

/// The number of the conference in @p turn's answers; empty when there is none or more than one.
QString conferenceNumberOf(const Turn &turn);

/// Creates the menu for a bubble of @p turn with @p text. Deletes itself when closed. A turn that holds a
/// password cannot be asked again, since the password was not kept.
QMenu *makeTurnMenu(const Turn &turn, const QString &text, Conversation &conversation, QWidget *parent);

} // namespace devhost
