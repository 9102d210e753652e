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
 * Base class of tests with a window over a hundred thousand conferences and as many contacts. All test
 * functions of a class share one window. Times are CPU times in milliseconds.
 */
class LargeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

protected:
    static constexpr int Count = 100000;
    /// One frame at 60 frames per second.
    static constexpr double FrameMsecs = 16;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    static constexpr double Slower = 10; // still far below one pass over everything
#else
    static constexpr double Slower = 1;
#endif
    /// How much slower the machine is than one that does nothing else, at least 1: the larger of what this
    /// call and the one before measured. On a shared machine, other work slows down even processor time.
    double slowness();

    TablePage *page(int index) const;
    /// Measures the window's update after a change, including painting. Negative if no change comes.
    double showMsecs();
    /// Whether the page in front was painted then. It is not while its rows are still being read.
    bool wasPainted() const { return m_wasPainted; }

    std::unique_ptr<SampleWorld> m_world;
    std::unique_ptr<ContactsWindow> m_window;

private:
    void fill();

    double m_lastSlowness = 1;
    bool m_wasPainted = false;
};
