// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessible>
#include <QStringList>

/// Records what a screen reader would announce during the object's lifetime. One at a time.
class Announcements
{
public:
    Announcements()
    {
        heard().clear();
        m_former = QAccessible::installUpdateHandler(&Announcements::hear);
    }
    ~Announcements() { QAccessible::installUpdateHandler(m_former); }
    Q_DISABLE_COPY(Announcements)

    QStringList names() const { return heard(); }

private:
    static QStringList &heard()
    {
        static QStringList names;
        return names;
    }
    static void hear(QAccessibleEvent *event)
    {
        if (event->type() == QAccessible::Alert && event->accessibleInterface()) {
            heard().append(event->accessibleInterface()->text(QAccessible::Name));
        }
    }

    QAccessible::UpdateHandler m_former;
};
