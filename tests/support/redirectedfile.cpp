// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "redirectedfile.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cstdarg>
#include <cstring>

namespace {

std::atomic<const char *> redirectedPath{nullptr};
std::atomic<const char *> redirectedTarget{nullptr};
std::atomic<int> openings{0};

const char *placeOf(const char *path)
{
    const char *wanted = redirectedPath.load();
    if (wanted == nullptr || std::strcmp(path, wanted) != 0) {
        return path;
    }
    ++openings;
    return redirectedTarget.load();
}

int openRedirected(const char *path, int flags, mode_t mode)
{
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, placeOf(path), flags, mode));
}

} // namespace

extern "C" __attribute__((visibility("default"))) int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openRedirected(path, flags, mode);
}

extern "C" __attribute__((visibility("default"), alias("open"))) int open64(const char *path, int flags, ...);

RedirectedFile::RedirectedFile(const QByteArray &path, const QByteArray &target)
{
    openings = 0;
    redirectedTarget = qstrdup(target.constData());
    redirectedPath = qstrdup(path.constData());
}

RedirectedFile::~RedirectedFile()
{
    delete[] redirectedPath.exchange(nullptr);
    delete[] redirectedTarget.exchange(nullptr);
}

int RedirectedFile::opened() const
{
    return openings;
}
