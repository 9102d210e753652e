// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "core/middlekey.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <vector>

namespace {

bool isText(const QVariant &value)
{
    return value.type() == QVariant::String;
}

/// Sorts before everything of its type.
QVariant smallest(const QVariant &likeThis)
{
    return isText(likeThis) ? QVariant(QLatin1String("")) : QVariant(std::numeric_limits<qint64>::min());
}

/// Whether @p left sorts before @p right, with texts ordered by their characters.
bool isBefore(const QString &left, const QString &right)
{
    const QVector<uint> one = left.toUcs4();
    const QVector<uint> other = right.toUcs4();
    return std::lexicographical_compare(one.cbegin(), one.cend(), other.cbegin(), other.cend());
}

} // namespace

void MiddleKey::meet(const RowKey &key)
{
    for (const QVariant &value : key) {
        if (isText(value)) {
            const QVector<uint> characters = value.toString().toUcs4();
            m_characters.insert(characters.cbegin(), characters.cend());
        }
    }
}

std::optional<RowKey> MiddleKey::between(const RowKey &low, const RowKey &high) const
{
    if (low.size() != high.size()) {
        return std::nullopt;
    }
    const auto differ = std::mismatch(low.cbegin(), low.cend(), high.cbegin());
    if (differ.first == low.cend()) {
        return std::nullopt;
    }
    const int at = static_cast<int>(differ.first - low.cbegin());
    QVariant middle = between(*differ.first, *differ.second);
    const bool isLast = at + 1 == low.size();
    if (!middle.isValid() && !isLast) {
        middle = *differ.second; // with nothing behind it
    }
    if (!middle.isValid()) {
        return std::nullopt;
    }
    RowKey key = low.mid(0, at);
    key.append(middle);
    while (key.size() < low.size()) {
        key.append(smallest(low.at(key.size())));
    }
    return key == high ? std::nullopt : std::make_optional(key);
}

QVariant MiddleKey::between(const QVariant &low, const QVariant &high) const
{
    if (isText(low) && isText(high)) {
        return between(low.toString(), high.toString());
    }
    if (isText(low) || isText(high)) {
        return {};
    }
    const qint64 first = low.toLongLong();
    const qint64 last = high.toLongLong();
    // Halved one by one: the sum may overflow.
    const qint64 middle = first / 2 + last / 2 + (first % 2 + last % 2) / 2;
    return first < middle && middle < last ? QVariant(middle) : QVariant();
}

QVariant MiddleKey::between(const QString &low, const QString &high) const
{
    // As fractions in a number system with one digit per character, and 0 for the end of the text.
    std::set<uint> known = m_characters;
    const QVector<uint> texts[] = {low.toUcs4(), high.toUcs4()};
    std::size_t length = 0;
    for (const QVector<uint> &text : texts) {
        known.insert(text.cbegin(), text.cend());
        length = std::max(length, static_cast<std::size_t>(text.size()));
    }
    const std::vector<uint> alphabet(known.cbegin(), known.cend());
    const std::size_t base = alphabet.size() + 1;
    std::vector<std::size_t> digits(length + 1, 0);
    for (const QVector<uint> &text : texts) {
        for (int at = 0; at < text.size(); ++at) {
            const auto place = std::lower_bound(alphabet.cbegin(), alphabet.cend(), text.at(at));
            digits[static_cast<std::size_t>(at)] +=
                static_cast<std::size_t>(std::distance(alphabet.cbegin(), place)) + 1;
        }
    }
    std::size_t rest = 0;
    for (std::size_t &digit : digits) {
        const std::size_t whole = digit + rest * base;
        digit = whole / 2;
        rest = whole % 2;
    }
    // The mean of two digits may be a character that was never met.
    for (std::size_t at = digits.size(); at-- > 1;) {
        if (digits[at] >= base) {
            digits[at] -= base;
            ++digits[at - 1];
        }
    }
    while (!digits.empty() && digits.back() == 0) {
        digits.pop_back();
    }
    QVector<uint> characters;
    for (const std::size_t digit : digits) {
        characters.append(alphabet.at(std::clamp<std::size_t>(digit, 1, alphabet.size()) - 1));
    }
    const QString middle = QString::fromUcs4(characters.constData(), characters.size());
    return isBefore(low, middle) && isBefore(middle, high) ? QVariant(middle) : QVariant();
}
