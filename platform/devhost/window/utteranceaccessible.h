// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QPointer>

namespace devhost {

class ConversationPage;
struct ConversationEntry;

/// Accessible interface of one entry: an utterance, or the picture of a released card. Not backed by a
/// widget, because most entries are out of sight.
class UtteranceAccessible final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    enum Kind { Utterance, Picture };

    UtteranceAccessible(ConversationPage *page, int serial, Kind kind);

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString &actionName) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    int position() const;
    const ConversationEntry &entry() const;
    QRect place() const;

    QPointer<ConversationPage> m_page;
    int m_serial;
    Kind m_kind;
};

} // namespace devhost
