// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>

#include <fuzzer/FuzzedDataProvider.h>

#include <initializer_list>

/**
 * Turns the fuzzer's bytes into JSON of our own shapes. Qt's parser is not instrumented, so plain bytes would
 * hardly ever get past it; here the bytes choose among the keys and words that the code under test looks for.
 */
class JsonSource
{
public:
    using Words = std::initializer_list<const char *>;

    /// @p keys and @p words are the names the code under test knows; both must outlive the source.
    JsonSource(const uint8_t *data, size_t size, Words keys, Words words);

    /// A whole text: an object, most of the time; sometimes cut off, or with a byte changed.
    QByteArray text();
    FuzzedDataProvider &bytes() { return m_bytes; }

private:
    QByteArray value(int depth);
    QByteArray object(int depth);
    QByteArray array(int depth);
    QByteArray string();
    QByteArray number();
    const char *pick(Words from);

    FuzzedDataProvider m_bytes;
    const Words m_keys;
    const Words m_words;
};

/// Drops all log records: the fuzzer's own output is what one wants to see.
void silenceTheLog();

/// Ends the run as a finding when @p holds is false.
void require(bool holds);
