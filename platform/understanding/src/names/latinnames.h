// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

#include <QString>

#include <cstddef>

namespace understanding {

/// Tells how far a name in Latin letters reaches and what belongs to it. The sentence and its tokens must
/// outlive it.
class LatinNames final
{
public:
    LatinNames(const QString &text, const Tokens &tokens) : m_text(text), m_tokens(tokens) {}

    /// The last token of the Latin name that begins with @p first: Schmidt in Anna Maria Schmidt.
    [[nodiscard]] std::size_t lastOf(std::size_t first) const;
    /// The first token of the Latin name that ends with @p last: Tom in Tom Lee.
    [[nodiscard]] std::size_t firstOf(std::size_t last) const;
    /// 阿 in 阿Ken, 林 in 林Sir.
    [[nodiscard]] bool isPrefix(std::size_t at) const;
    /// 李 in Miss李.
    [[nodiscard]] bool isSurnameBehind(std::size_t latin) const;
    /// PMO in PMO的Grace, QA in QA组Sara.
    [[nodiscard]] bool isGroupOfNext(std::size_t at) const;
    /// The last token of where somebody works, behind the sign at @p at: 市场部 in Amy@市场部; @p at for
    /// none.
    [[nodiscard]] std::size_t endOfOffice(std::size_t at) const;
    [[nodiscard]] bool isMiddleDot(std::size_t at) const;
    /// Sophie behind the space at @p at in 设计师 Sophie, and any known name; not OKR in 客户 OKR 对齐会.
    [[nodiscard]] bool isSomebodyBehindSpace(std::size_t at) const;

private:
    [[nodiscard]] bool startsCapital(std::size_t at) const;
    /// van in Ludwig van Beethoven.
    [[nodiscard]] bool isNobiliary(std::size_t at) const;

    const QString &m_text;
    const Tokens &m_tokens;
};

} // namespace understanding
