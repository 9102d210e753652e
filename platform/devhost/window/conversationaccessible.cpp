// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conversationaccessible.h"

#include "conversationpage.h"
#include "conversationview.h"
#include "utteranceaccessible.h"

namespace devhost {

namespace {

QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object)
{
    auto *page = qobject_cast<ConversationPage *>(object);
    return page == nullptr ? nullptr : new ConversationAccessible(page);
}

} // namespace

void ConversationAccessible::registerFactory()
{
    // Qt ignores a factory that is already installed.
    QAccessible::installFactory(makeAccessible);
}

ConversationAccessible::ConversationAccessible(ConversationPage *page)
    : QAccessibleWidget(page, QAccessible::List)
{
}

ConversationAccessible::~ConversationAccessible()
{
    clear();
}

ConversationAccessible *ConversationAccessible::of(const ConversationView &view)
{
    return static_cast<ConversationAccessible *>(QAccessible::queryAccessibleInterface(view.viewport()));
}

void ConversationAccessible::tell(const ConversationView &view, const ConversationEntry &entry,
                                  QAccessible::Event what)
{
    if (QAccessible::isActive() && !entry.text.isEmpty()) {
        QAccessibleEvent event(of(view)->item(entry, Utterance), what);
        QAccessible::updateAccessibility(&event);
    }
}

void ConversationAccessible::announce(const ConversationView &view, const ConversationEntry &entry)
{
    tell(view, entry, QAccessible::ObjectCreated);
    // The user's own words need not be read out.
    if (entry.role != Bubble::Said) {
        tell(view, entry, QAccessible::Alert);
    }
    if (QAccessible::isActive() && entry.hasLiveCard()) {
        QAccessibleEvent event(entry.card.data(), QAccessible::ObjectCreated);
        QAccessible::updateAccessibility(&event);
    }
}

void ConversationAccessible::renamed(const ConversationView &view, const ConversationEntry &entry)
{
    tell(view, entry, QAccessible::NameChanged);
}

void ConversationAccessible::focused(const ConversationView &view, const ConversationEntry &entry)
{
    if (view.hasFocus()) {
        tell(view, entry, QAccessible::Focus);
    }
}

void ConversationAccessible::forget(const ConversationView &view)
{
    if (QAccessible::isActive()) {
        of(view)->clear();
    }
}

int ConversationAccessible::childCount() const
{
    int count = 0;
    for (const ConversationEntry &entry : view().entries()) {
        count += int(!entry.text.isEmpty()) + int(entry.hasCard());
    }
    return count;
}

QAccessibleInterface *ConversationAccessible::child(int index) const
{
    for (const ConversationEntry &entry : view().entries()) {
        if (!entry.text.isEmpty() && index-- == 0) {
            return item(entry, Utterance);
        }
        if (entry.hasCard() && index-- == 0) {
            return item(entry, Card);
        }
    }
    return nullptr;
}

int ConversationAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    int index = 0;
    for (const ConversationEntry &entry : view().entries()) {
        if (!entry.text.isEmpty()) {
            if (item(entry, Utterance) == child) {
                return index;
            }
            ++index;
        }
        if (entry.hasCard()) {
            if (item(entry, Card) == child) {
                return index;
            }
            ++index;
        }
    }
    return -1;
}

QAccessibleInterface *ConversationAccessible::childAt(int x, int y) const
{
    for (int i = 0, count = childCount(); i < count; ++i) {
        QAccessibleInterface *found = child(i);
        if (found != nullptr && found->rect().contains(x, y)) {
            return found;
        }
    }
    return nullptr;
}

QString ConversationAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name ? view().accessibleName() : QAccessibleWidget::text(kind);
}

const ConversationView &ConversationAccessible::view() const
{
    return static_cast<const ConversationPage *>(widget())->view();
}

QAccessibleInterface *ConversationAccessible::item(const ConversationEntry &entry, Part part) const
{
    if (part == Card && entry.hasLiveCard()) {
        return QAccessible::queryAccessibleInterface(entry.card.data());
    }
    const int key = 2 * entry.serial + int(part);
    const auto known = m_items.constFind(key);
    if (known != m_items.constEnd()) {
        return QAccessible::accessibleInterface(*known);
    }
    auto *made =
        new UtteranceAccessible(static_cast<ConversationPage *>(widget()), entry.serial,
                                part == Card ? UtteranceAccessible::Picture : UtteranceAccessible::Utterance);
    m_items.insert(key, QAccessible::registerAccessibleInterface(made));
    return made;
}

void ConversationAccessible::clear()
{
    for (const QAccessible::Id id : qAsConst(m_items)) {
        QAccessible::deleteAccessibleInterface(id);
    }
    m_items.clear();
}

} // namespace devhost
