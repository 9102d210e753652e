// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessibleWidget>

class ConferenceMsgStaticWidget;

/// Accessible interface of a card: a group that can be pressed, which opens the contacts application just as
/// a click does. A disabled card cannot be pressed.
class CardAccessible final : public QAccessibleWidget
{
public:
    /// Registers the factory of cards and separators with Qt. Idempotent.
    static void registerFactory();

    explicit CardAccessible(ConferenceMsgStaticWidget *card);

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

private:
    [[nodiscard]] ConferenceMsgStaticWidget *card() const;
};
