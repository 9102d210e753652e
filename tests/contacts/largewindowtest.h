// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "sampleworld.h"

#include "window/contactswindow.h"
#include "window/tablepage.h"

#include <QObject>
#include <QVector>

#include <memory>

/**
 * The window over a hundred thousand conferences and as many contacts. Derive a test class from it: all its
 * functions share one window. Times are of the processor, in milliseconds.
 */
class LargeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

protected:
    static constexpr int Count = 100000;
    static constexpr qint64 HourMsecs = 3600000;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr double Slower = 10; // still far below one walk over everything
#else
    static constexpr double Slower = 1;
#endif
    /// One frame at 60 a second.
    static constexpr double MostShownMsecs = 16 * Slower;

    /// What this thread has used, which a busy machine does not stretch.
    static double threadMsecs();

    TablePage *page(int index) const;
    /// What the window does when it follows a change, up to its painting; negative when it follows none.
    double showMsecs();

    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<ContactsWindow> m_window;

private:
    void fill();
};
