// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessibleWidget>

class TiTleItem;

/// Accessible interface of a candidate row; exposes it as a check box that can be toggled.
class TiTleItemAccessible : public QAccessibleWidget
{
public:
    /// Registers the factory with Qt. Idempotent.
    static void registerFactory();

    explicit TiTleItemAccessible(TiTleItem *item);

    [[nodiscard]] QAccessible::State state() const override;
    // No children: the row's name, description and state already say what its labels and its mark show.
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    /// Announces that the row was selected or deselected.
    static void announceSelection(TiTleItem *item);

private:
    [[nodiscard]] TiTleItem *item() const;
};
