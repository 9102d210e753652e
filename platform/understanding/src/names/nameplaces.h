// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "words/token.h"

#include <QString>

#include <cstddef>

namespace understanding {

/// Examines what surrounds a place where a sentence may name somebody. Only looks; NameFinder decides. The
/// sentence and its tokens must outlive it.
class NamePlaces final
{
public:
    NamePlaces(const QString &text, const Tokens &tokens) : m_text(text), m_tokens(tokens) {}

    [[nodiscard]] bool standsApartBefore(std::size_t at) const;
    [[nodiscard]] bool standsApartBehind(std::size_t at) const;
    [[nodiscard]] bool hasConference() const;
    /// The token from @p at on that ends the clause, at most @p last.
    [[nodiscard]] std::size_t endOfClause(std::size_t at, std::size_t last) const;
    /// 居委会 in 居委会的小乔.
    [[nodiscard]] bool isPlainBeforeName(std::size_t at) const;
    /// 兄弟 in 和兄弟王磊开会.
    [[nodiscard]] bool isAddressBeforeName(std::size_t at) const;
    /// 3 in 3床家属魏淑芬.
    [[nodiscard]] bool isNumberBeforeName(std::size_t at) const;
    /// The last token of the run of characters that begins at @p at: 关羽 is a word and a character.
    [[nodiscard]] std::size_t lastOfRun(std::size_t at, std::size_t limit) const;
    /// 大同 in 跟方大同.
    [[nodiscard]] bool isGivenName(std::size_t at) const;
    [[nodiscard]] bool isSmallWordInName(std::size_t at) const;
    [[nodiscard]] std::size_t skipToNames(std::size_t lead) const;
    /// 约 in 请约卢老师: the word that calls follows the one that asks for it.
    [[nodiscard]] bool callsAgain(std::size_t lead, std::size_t next) const;
    /// True where a name begins, even with a word of the rules: 张伟, Tom, 于老板.
    [[nodiscard]] bool isSomebody(std::size_t at) const;
    /// The length of the name in 三点开会，宋阳必须到 and 宋阳一个人就行; 0 for none.
    [[nodiscard]] int comerLength(std::size_t at) const;
    /// 我的 in 和我的同事李静.
    [[nodiscard]] bool isOwner(std::size_t at) const;
    /// The token in which a person's description ends, 号线的耿浩 in 4号线的耿浩; @p at for none.
    [[nodiscard]] std::size_t endOfModifier(std::size_t at) const;
    /// 安排 in 安排一个安全检查的会: what follows says what the conference is about.
    [[nodiscard]] bool isOpeningOne(std::size_t at) const;
    /// 拉 in 开个拉新活动会: what follows may say what kind of conference is opened.
    [[nodiscard]] bool isOfKind(std::size_t at) const;
    /// 我姐, but not 我姐夫.
    [[nodiscard]] bool isOnlyRelative(std::size_t at) const;
    /// The bracket that closes the one at @p at; @p at where none is near.
    [[nodiscard]] std::size_t endOfBrackets(std::size_t at) const;
    /// 那个 in 外包那个Sergey, 人 in 鉴定人贾博文.
    [[nodiscard]] bool isPointer(std::size_t at) const;
    [[nodiscard]] std::size_t skipTitle(std::size_t at) const;

private:
    const QString &m_text;
    const Tokens &m_tokens;
};

} // namespace understanding
