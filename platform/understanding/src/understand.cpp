// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "understanding/understand.h"

namespace understanding {

// Refuses everything until the rules arrive; the interface is what others build against.
QString understand(const QString &, const QDateTime &, const QStringList &)
{
    return QStringLiteral("{\"intent\":{\"answer\":{\"text\":\"抱歉，我没有听懂。\"},\"semantic\":[],"
                          "\"shouldEndSession\":false,"
                          "\"voice_answer\":[{\"content\":\"抱歉，我没有听懂。\",\"type\":\"TTS\"}]}}");
}

} // namespace understanding
