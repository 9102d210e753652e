// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/plaintooltip.h"

QString plainToolTip(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    return QLatin1String("<p>") + text.toHtmlEscaped() + QLatin1String("</p>");
}
