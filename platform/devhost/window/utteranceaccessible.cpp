// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "utteranceaccessible.h"

#include "conversationpage.h"
#include "conversationview.h"

#include <QCoreApplication>

namespace devhost {

namespace {

QString speaker(Bubble::Role role)
{
    switch (role) {
    case Bubble::Said:
        return QCoreApplication::translate("devhost::UtteranceAccessible", "What I said");
    case Bubble::Reply:
        return QCoreApplication::translate("devhost::UtteranceAccessible", "The assistant's answer");
    case Bubble::Notice:
        break;
    }
    return QCoreApplication::translate("devhost::UtteranceAccessible", "Notice");
}

} // namespace

UtteranceAccessible::UtteranceAccessible(ConversationPage *page, int serial, Kind kind)
    : m_page(page)
    , m_serial(serial)
    , m_kind(kind)
{
}

bool UtteranceAccessible::isValid() const
{
    return position() >= 0;
}

QWindow *UtteranceAccessible::window() const
{
    return m_page == nullptr ? nullptr : m_page->window()->windowHandle();
}

QAccessibleInterface *UtteranceAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(m_page.data());
}

QString UtteranceAccessible::text(QAccessible::Text kind) const
{
    if (!isValid()) {
        return QString();
    }
    if (kind == QAccessible::Name) {
        return m_kind == Picture ? entry().record.text() : entry().text;
    }
    return kind == QAccessible::Description && m_kind == Utterance ? speaker(entry().role) : QString();
}

QRect UtteranceAccessible::rect() const
{
    return isValid() ? QRect(m_page->mapToGlobal(place().topLeft()), place().size()) : QRect();
}

QAccessible::Role UtteranceAccessible::role() const
{
    return m_kind == Picture ? QAccessible::Graphic : QAccessible::ListItem;
}

QAccessible::State UtteranceAccessible::state() const
{
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.readOnly = true;
    state.offscreen = !place().intersects(m_page->rect());
    state.invisible = !m_page->isVisible();
    if (m_kind == Utterance) {
        state.focusable = true;
        state.focused = m_page->view().keyboard().isAt(entry());
    }
    return state;
}

void *UtteranceAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList UtteranceAccessible::actionNames() const
{
    return m_kind == Picture ? QStringList() : QStringList{pressAction(), showMenuAction(), setFocusAction()};
}

void UtteranceAccessible::doAction(const QString &actionName)
{
    if (!isValid()) {
        return;
    }
    ConversationView &view = m_page->view();
    if (actionName == pressAction()) {
        Q_EMIT view.turnActivated(entry().turn);
    } else if (actionName == showMenuAction()) {
        Q_EMIT view.turnMenuWanted(entry().turn, entry().text, rect().bottomLeft());
    } else if (actionName == setFocusAction()) {
        view.setFocus();
        view.keyboard().setCurrent(position());
    }
}

int UtteranceAccessible::position() const
{
    return m_page == nullptr ? -1 : m_page->view().entries().positionOfSerial(m_serial);
}

const ConversationEntry &UtteranceAccessible::entry() const
{
    return m_page->view().entries().at(position());
}

QRect UtteranceAccessible::place() const
{
    return m_kind == Picture ? m_page->view().cardPlace(position()) : m_page->view().textPlace(position());
}

} // namespace devhost
