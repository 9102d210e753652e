// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardaccessible.h"

#include "card/cardline.h"
#include "conferencemsgstaticwidget.h"

namespace {

/// A separator: can be neither pressed nor focused, although it is a button.
class LineAccessible final : public QAccessibleWidget
{
public:
    explicit LineAccessible(CardLine *line) : QAccessibleWidget(line, QAccessible::Separator) {}

    [[nodiscard]] QStringList actionNames() const override { return {}; }
};

QAccessibleInterface *makeAccessible(const QString & /*className*/, QObject *object)
{
    if (auto *card = qobject_cast<ConferenceMsgStaticWidget *>(object)) {
        return new CardAccessible(card);
    }
    auto *line = qobject_cast<CardLine *>(object);
    return line == nullptr ? nullptr : new LineAccessible(line);
}

} // namespace

void CardAccessible::registerFactory()
{
    // Qt ignores a factory that is already installed.
    QAccessible::installFactory(makeAccessible);
}

CardAccessible::CardAccessible(ConferenceMsgStaticWidget *card)
    : QAccessibleWidget(card, QAccessible::Grouping)
{
}

QStringList CardAccessible::actionNames() const
{
    const QStringList others = QAccessibleWidget::actionNames();
    return card()->isEnabled() ? QStringList(pressAction()) + others : others;
}

void CardAccessible::doAction(const QString &actionName)
{
    if (actionName != pressAction()) {
        QAccessibleWidget::doAction(actionName);
    } else if (card()->isEnabled()) {
        card()->openContactApp();
    }
}

ConferenceMsgStaticWidget *CardAccessible::card() const
{
    return static_cast<ConferenceMsgStaticWidget *>(widget());
}
