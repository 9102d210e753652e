// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

namespace devhost {

class ConversationView;

/// The scrolled page of a conversation; a widget of its own so that assistive technology finds the
/// conversation below it (see ConversationAccessible).
class ConversationPage final : public QWidget
{
    Q_OBJECT

public:
    explicit ConversationPage(ConversationView &view);

    ConversationView &view() const { return m_view; }

private:
    ConversationView &m_view;
};

} // namespace devhost
