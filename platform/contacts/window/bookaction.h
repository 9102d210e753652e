// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QJsonObject>
#include <QString>

class ContactsBook;

/// Performs an action by the same way as the assistant's requests, and gives its whole answer.
QJsonObject askBook(ContactsBook &book, const QString &action, const QJsonObject &parameters = {});
/// Performs an action by the same way as the assistant's requests, so that what can be tried in the window is
/// what happens there. Answers with the outcome's word; see core/outcome.h.
QString performAction(ContactsBook &book, const QString &action, const QJsonObject &parameters);
