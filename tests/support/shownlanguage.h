// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAbstractItemModel>
#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>
#include <QWidget>

/// The texts of a window, for checking that all are in one language.
namespace ShownLanguage {

/// All texts of @p widget itself, including its tabs, items and actions.
inline QStringList textsOf(const QWidget &widget)
{
    QStringList texts;
    // Read as properties, so that no widget class is forgotten.
    for (const char *name :
         {"windowTitle", "toolTip", "accessibleName", "accessibleDescription", "text", "title",
          "placeholderText", "plainText", "prefix", "suffix", "informativeText"}) {
        texts << widget.property(name).toString();
    }
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts << tabs->tabText(i) << tabs->tabToolTip(i);
        }
    }
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i) {
            texts << box->itemText(i);
        }
    }
    // Other views show files and folders, whose names may be in any language.
    const auto *view = qobject_cast<const QAbstractItemView *>(&widget);
    const bool isOfProgram = qobject_cast<const QTableView *>(&widget) != nullptr ||
                             qobject_cast<const QTreeWidget *>(&widget) != nullptr ||
                             qobject_cast<const QListWidget *>(&widget) != nullptr;
    if (isOfProgram && view->model() != nullptr) {
        const QAbstractItemModel &model = *view->model();
        for (int column = 0; column < model.columnCount(); ++column) {
            texts << model.headerData(column, Qt::Horizontal).toString();
            for (int row = 0; row < model.rowCount(); ++row) {
                texts << model.index(row, column).data().toString()
                      << model.index(row, column).data(Qt::ToolTipRole).toString();
            }
        }
    }
    const auto actions = widget.actions();
    for (const QAction *action : actions) {
        texts << action->text() << action->toolTip() << action->shortcut().toString(QKeySequence::NativeText);
    }
    return texts;
}

/// Matches what a program's texts must not contain in the language @p code.
inline QRegularExpression strangeTo(const QString &code)
{
    return QRegularExpression(
        code == QLatin1String("en")
            ? QStringLiteral("[\\p{Han}\\x{3000}-\\x{303f}\\x{ff00}-\\x{ffef}]")
            // English words; names such as "JSON" and "service()" and those of files stay untranslated.
            : QStringLiteral("\\b[A-Z]?[a-z]+ [a-z]{2,}\\b|^&?[A-Z][a-z]{2,}…?$"));
}

} // namespace ShownLanguage
