// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QImage>
#include <QString>
#include <QTest>
#include <QVector>

class QWidget;

/// Compares pictures of a window's states with those in docs/pictures. Link documented_pictures.
namespace DocumentedPictures {

/// Adds two rows for each of @p states, light and dark, in the columns "state" and "isDark".
template <typename State>
void addRows(const QVector<State> &states)
{
    QTest::addColumn<State>("state");
    QTest::addColumn<bool>("isDark");
    for (const State &state : states) {
        QTest::addRow("%s, light", state.name) << state << false;
        QTest::addRow("%s, dark", state.name) << state << true;
    }
}

/// Returns a picture of @p window with the visible dialogs and popups above it, each with a border. They are
/// grabbed one by one and placed relative to the window, since a test's screen is smaller.
QImage pictureOf(QWidget &window);

/// Compares @p picture with docs/pictures/FOLDER/STATE-light-x1.png or the like, in cells of ten pixels, so
/// that another release of a font makes no difference. Returns the difference, or an empty text. Also saves
/// the picture in the build folder; if UPDATE_PICTURES is set, first saves it as the documented one.
QString differenceFromDocuments(const QImage &picture, const QString &folder, const QString &state,
                                bool isDark);

} // namespace DocumentedPictures
