// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>
#include <QStringList>

namespace devhost {

/// The mask that replaces a password, whatever its length.
QString secretMask();

/// The values of the "password" slots of a semantic JSON; empty for any other text.
QStringList secretsIn(const QString &semantic);

/// @p text with each of @p secrets replaced by secretMask().
QString withoutSecrets(QString text, const QStringList &secrets);

} // namespace devhost
