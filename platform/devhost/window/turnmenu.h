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

/// The number of the conference that @p turn is about, from its answers; empty when there is none or several.
QString conferenceNumberOf(const Turn &turn);

/// What can be done with one bubble of @p turn whose text is @p text. The menu deletes itself when it is
/// closed. A turn that holds a password cannot be asked again: nobody has kept it.
QMenu *makeTurnMenu(const Turn &turn, const QString &text, Conversation &conversation, QWidget *parent);

} // namespace devhost
