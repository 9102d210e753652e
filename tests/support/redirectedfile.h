// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/**
 * Makes this process open another file in place of one path while it lives, so that a file at a fixed path
 * can be tested without touching the machine. Redirects calls of open() and open64() by this program and the
 * libraries it loads, one path at a time. Link redirectedfile.cpp into the test program itself: its
 * functions take precedence over the C library's.
 */
class RedirectedFile
{
public:
    RedirectedFile(const QByteArray &path, const QByteArray &target);
    ~RedirectedFile();

    /// How often the path has been opened.
    int opened() const;

private:
    RedirectedFile(const RedirectedFile &) = delete;
    RedirectedFile &operator=(const RedirectedFile &) = delete;
};
