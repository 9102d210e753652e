// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAccessibleWidget>

class TiTleItem;

/// How a row of a selection card presents itself to who does not see it: a check box, with its state and the
/// action to toggle it.
class TiTleItemAccessible : public QAccessibleWidget
{
public:
    /// Makes Qt use this class for every row. Any number of calls have the effect of one.
    static void registerFactory();

    explicit TiTleItemAccessible(TiTleItem *item);

    [[nodiscard]] QAccessible::State state() const override;
    // The row tells what stands on it by its name and its description, and its mark by its state: nothing
    // of it is to be found a second time below it.
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString &actionName) override;

    /// Tells who listens that the row was selected, or is not any more.
    static void announceSelection(TiTleItem *item);

private:
    [[nodiscard]] TiTleItem *item() const;
};
