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

/// What is shown in a window, for telling whether it is all in one language.
namespace ShownLanguage {

/// Every text of @p widget itself, those of its tabs, items and actions too.
inline QStringList textsOf(const QWidget &widget)
{
    QStringList texts;
    // By the properties, so that no kind of widget is forgotten.
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
    // Files and folders, in other views, have the names that they have.
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

/// What a text of a program must not contain in the language @p code.
inline QRegularExpression strangeTo(const QString &code)
{
    return QRegularExpression(
        code == QLatin1String("en")
            ? QStringLiteral("[\\p{Han}\\x{3000}-\\x{303f}\\x{ff00}-\\x{ffef}]")
            // Words that are no names: "JSON", "service()" and file names stay as they are.
            : QStringLiteral("\\b[A-Z]?[a-z]+ [a-z]{2,}\\b|^&?[A-Z][a-z]{2,}…?$"));
}

} // namespace ShownLanguage
