// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

#include <optional>

namespace understanding {

/// True for a word that names may follow: 叫上, 和, 参会人.
bool leadsToNames(const Token &token);

/// True when a name begins at @p position, in the token at @p at or with it.
bool nameBegins(const QString &text, const Tokens &tokens, std::size_t at, int position);

/// Goes over the tokens once and builds them anew, some of them joined. The text must outlive it.
class TokenJoiner
{
protected:
    TokenJoiner(const QString &text, Tokens &tokens) : m_text(text), m_tokens(tokens)
    {
        m_joined.reserve(tokens.size());
    }
    ~TokenJoiner() = default;
    Q_DISABLE_COPY(TokenJoiner)

    [[nodiscard]] bool isBehindLead() const { return !m_joined.empty() && leadsToNames(m_joined.back()); }
    /// Behind a word that calls, or at the start of what only names somebody: 视频组的史小平.
    [[nodiscard]] bool isSomebodyExpected();
    /// True where nothing is done, as in an answer: 上海的Zoë和翻译小柳.
    [[nodiscard]] bool onlyNames();
    /// True when people come together somewhere in the sentence.
    [[nodiscard]] bool meets();

    /// Goes over all tokens and takes those as they are at which @p joinHere joins nothing and returns false.
    template <typename JoinHere>
    void joinAll(const JoinHere &joinHere)
    {
        while (m_at < m_tokens.size()) {
            if (!joinHere()) {
                keep();
            }
        }
        m_tokens = std::move(m_joined);
    }

    /// Joins what stands between the current place and @p end; goes on at @p next.
    Token &join(int end, WordClass wordClass, std::size_t next);

    // NOLINTBEGIN(misc-non-private-member-variables-in-classes)
    const QString &m_text;
    Tokens &m_tokens;
    Tokens m_joined;
    std::size_t m_at = 0; ///< the current place
    // NOLINTEND(misc-non-private-member-variables-in-classes)

private:
    /// Takes the token at the current place as it is.
    void keep();

    bool m_started = false; ///< something was said already
    std::optional<bool> m_meets;
    std::optional<bool> m_onlyNames;
};

} // namespace understanding
