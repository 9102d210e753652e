// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace devhost {

struct ConversationEntry;
class ConversationPage;
class ConversationView;

/**
 * Accessible interface of a conversation: a list of its utterances and cards from top to bottom, in sight or
 * not. An utterance is a list item whose name is the text and whose description is the speaker; pressing it
 * shows its turn in the inspector. A card is exposed itself, or as a graphic with its texts once it has been
 * released.
 */
class ConversationAccessible final : public QAccessibleWidget
{
public:
    static void registerFactory();

    // Report what happened to @p entry of @p view. They cost nothing while no assistive technology listens.
    static void announce(const ConversationView &view, const ConversationEntry &entry);
    static void renamed(const ConversationView &view, const ConversationEntry &entry);
    static void focused(const ConversationView &view, const ConversationEntry &entry);
    /// Forgets every utterance of @p view.
    static void forget(const ConversationView &view);

    explicit ConversationAccessible(ConversationPage *page);
    ~ConversationAccessible() override;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;

private:
    enum Part { Utterance, Card };

    static ConversationAccessible *of(const ConversationView &view);
    static void tell(const ConversationView &view, const ConversationEntry &entry, QAccessible::Event what);
    const ConversationView &view() const;
    QAccessibleInterface *item(const ConversationEntry &entry, Part part) const;
    void clear();

    mutable QHash<int, QAccessible::Id> m_items;
};

} // namespace devhost
