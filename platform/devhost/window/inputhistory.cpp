// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inputhistory.h"

namespace devhost {

namespace {

constexpr int MostTexts = 500;

}

void InputHistory::add(const QString &text)
{
    if (!text.isEmpty() && (m_texts.isEmpty() || m_texts.last() != text)) {
        m_texts.append(text);
    }
    if (m_texts.size() > MostTexts) {
        m_texts.removeFirst();
    }
    m_position = m_texts.size();
    m_begun.clear();
}

void InputHistory::remove(const QString &text)
{
    m_texts.removeAll(text);
    m_position = m_texts.size();
}

QString InputHistory::older(const QString &present)
{
    if (m_position == 0) {
        return present;
    }
    if (m_position == m_texts.size()) {
        m_begun = present;
    }
    return m_texts.at(--m_position);
}

QString InputHistory::newer(const QString &present)
{
    if (m_position == m_texts.size()) {
        return present;
    }
    ++m_position;
    return m_position == m_texts.size() ? m_begun : m_texts.at(m_position);
}

} // namespace devhost
