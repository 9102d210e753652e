// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QImage>
#include <QString>

class QWidget;

/// Compares pictures of a window's states with those in docs/pictures. Link documented_pictures.
namespace DocumentedPictures {

/// Returns a picture of @p window with the visible dialogs and popups above it, each with a border. They are
/// grabbed one by one and placed relative to the window, since a test's screen is smaller.
QImage pictureOf(QWidget &window);

/// Compares @p picture with docs/pictures/FOLDER/STATE-light-x1.png or the like, in cells of ten pixels, so
/// that another release of a font makes no difference. Returns the difference, or an empty text. Also saves
/// the picture in the build folder; if UPDATE_PICTURES is set, first saves it as the documented one.
QString differenceFromDocuments(const QImage &picture, const QString &folder, const QString &state,
                                bool isDark);

} // namespace DocumentedPictures
