// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/titleitemaccessible.h"

#include "titleitem.h"

namespace {

QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object)
{
    auto *item = qobject_cast<TiTleItem *>(object);
    return item == nullptr ? nullptr : new TiTleItemAccessible(item);
}

} // namespace

void TiTleItemAccessible::registerFactory()
{
    // Qt ignores a factory that is already installed.
    QAccessible::installFactory(makeAccessible);
}

TiTleItemAccessible::TiTleItemAccessible(TiTleItem *item) : QAccessibleWidget(item, QAccessible::CheckBox) {}

QAccessible::State TiTleItemAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = item()->isSelected();
    return state;
}

QStringList TiTleItemAccessible::actionNames() const
{
    return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
}

void TiTleItemAccessible::doAction(const QString &actionName)
{
    if (actionName == toggleAction()) {
        item()->toggleSelection();
    } else {
        QAccessibleWidget::doAction(actionName);
    }
}

void TiTleItemAccessible::announceSelection(TiTleItem *item)
{
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(item, changed);
    QAccessible::updateAccessibility(&event);
}

TiTleItem *TiTleItemAccessible::item() const
{
    return static_cast<TiTleItem *>(widget());
}
