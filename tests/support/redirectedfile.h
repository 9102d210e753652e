// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

/**
 * Makes this process open another file in one path's place while it lives, so that a file at a fixed place
 * can be tested without touching the machine. Only what this program and the libraries it loads open by name
 * is redirected, one path at a time. Link redirectedfile.cpp into the test program itself: its open() and
 * open64() go before the C library's.
 */
class RedirectedFile
{
public:
    RedirectedFile(const QByteArray &path, const QByteArray &target);
    ~RedirectedFile();

    /// How often the path was opened.
    int opened() const;

private:
    RedirectedFile(const RedirectedFile &) = delete;
    RedirectedFile &operator=(const RedirectedFile &) = delete;
};
