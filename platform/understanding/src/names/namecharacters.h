// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

namespace understanding {

/// True for 我, 咱 and 俺.
bool isSpeaker(QChar character);

/// True for 妈 and 弟, which say alone who somebody is: 我妈.
bool isKin(QChar character);

/// True for 部 and 班, the end of what people work or learn in: 市场部, 三班.
bool endsGroup(QChar character);

/// True for 张伟3.5点 and 张伟🐰: digits behind Chinese characters, signs and pictures, which no name that
/// nobody knows holds. Mike2 is a name.
bool holdsOtherThanLetters(const QString &name);

/// The length of the given name with 一 that begins at @p position, 一凡 and 一诺; 0 for none.
int givenNameWithOne(const QString &text, int position);

} // namespace understanding
