// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "fuzzsupport.h"

#include <QJsonDocument>

#include <cstdlib>

#include <dlfcn.h>
#include <sanitizer/lsan_interface.h>

/// Interposes Qt's function, which leaks the first value of a duplicate key if that is an object or an array;
/// the leak is not ours. A suppression "leak:QJsonDocument::fromJson" would do, too, but needs full stacks of
/// a Qt without frame pointers, which leaves a sixth of the runs.
QJsonDocument QJsonDocument::fromJson(const QByteArray &json, QJsonParseError *error)
{
    using Function = QJsonDocument (*)(const QByteArray &, QJsonParseError *);
    static const auto original = reinterpret_cast<Function>(
        dlsym(RTLD_NEXT, "_ZN13QJsonDocument8fromJsonERK10QByteArrayP15QJsonParseError"));
    require(original != nullptr);
    const __lsan::ScopedDisabler unobserved;
    return original(json, error);
}

const char *pick(FuzzedDataProvider &bytes, Words words)
{
    return *(words.begin() + bytes.ConsumeIntegralInRange<size_t>(0, words.size() - 1));
}

QString anyText(FuzzedDataProvider &bytes, Words words)
{
    constexpr int oneIn = 7;
    constexpr size_t longest = 32;
    if (bytes.ConsumeIntegralInRange(0, oneIn) != oneIn) {
        return QString::fromUtf8(pick(bytes, words));
    }
    const std::string raw = bytes.ConsumeRandomLengthString(longest);
    QString text;
    for (size_t at = 0; at + 1 < raw.size(); at += 2) {
        text += QChar(static_cast<uchar>(raw[at]), static_cast<uchar>(raw[at + 1]));
    }
    return text;
}

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
