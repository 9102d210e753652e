// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/resultlabel.h"

#include <QAccessible>

ResultLabel::ResultLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true); // a long path makes the window no wider
    setAccessibleName(tr("Result"));
}

void ResultLabel::tell(const QString &text)
{
    setText(text);
    setAccessibleName(text.isEmpty() ? tr("Result") : tr("Result: %1").arg(text));
    if (text.isEmpty()) {
        return;
    }
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}
