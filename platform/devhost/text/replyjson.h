// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <speakmate/reply.h>

#include <QByteArray>
#include <QString>

namespace devhost {

/// Describes a card in a reply's JSON.
struct CardNote
{
    QString className;
    int width = 0; ///< device independent pixels
    int height = 0;
    QString screenshot; ///< file name; empty without a picture
};

/**
 * A reply as one line of compact JSON in UTF-8, without a newline, with the keys in this order:
 *
 *     {"code":0,"display":"好的","speech":"好的","type":11,
 *      "card":{"class":"ConferenceMsgStaticWidget","width":422,"height":268,"screenshot":"line-0001.png"}}
 *
 * "card" is null when @p card is; "screenshot" is present only when there is a picture. (Wrapped here to
 * fit.)
 */
QByteArray replyJson(const Reply &reply, const CardNote *card);

} // namespace devhost
