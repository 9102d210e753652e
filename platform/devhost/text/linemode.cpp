// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "linemode.h"

namespace devhost {

LineMode::LineMode(std::istream &input, std::ostream &errors, const Screenshots &screenshots, QObject *parent)
    : QObject(parent)
    , m_screenshots(screenshots)
    , m_reader(input)
    , m_errors(errors)
{
}

void LineMode::start()
{
    QMetaObject::invokeMethod(this, &LineMode::next, Qt::QueuedConnection);
}

void LineMode::complain(const QString &message)
{
    m_status = SomethingBroken;
    m_errors << qUtf8Printable(tr("line %1: %2").arg(m_reader.lineNumber()).arg(message)) << std::endl;
}

} // namespace devhost
