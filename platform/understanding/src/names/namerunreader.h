// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "names/latinnames.h"
#include "names/namecollector.h"
#include "names/nameplaces.h"

namespace understanding {

/// Takes the name that begins at a token, where somebody is expected. The sentence and its tokens must
/// outlive it.
class NameRunReader : protected NameCollector
{
protected:
    NameRunReader(const QString &raw, const QString &text, const Tokens &tokens)
        : NameCollector(raw, text)
        , m_text(text)
        , m_tokens(tokens)
        , m_places(text, tokens)
        , m_latin(text, tokens)
    {
    }
    ~NameRunReader() = default;
    Q_DISABLE_COPY(NameRunReader)

    /// Takes one run of characters, titles and dotted names; what only says who follows is left to that name.
    /// Like the other two, returns the last token taken.
    std::size_t takeRun(std::size_t at, bool mustLookLikeName);
    /// Takes a Latin name: Anna Maria Schmidt is one person, HR李娜 is 李娜.
    std::size_t takeLatinName(std::size_t at);
    /// Takes a known name; with one more character it is another, unknown one (张伟 and 张伟杰).
    std::size_t takeKnownName(std::size_t at);

    const QString &m_text;     // NOLINT(misc-non-private-member-variables-in-classes)
    const Tokens &m_tokens;    // NOLINT(misc-non-private-member-variables-in-classes)
    const NamePlaces m_places; // NOLINT(misc-non-private-member-variables-in-classes)
    const LatinNames m_latin;  // NOLINT(misc-non-private-member-variables-in-classes)
};

} // namespace understanding
