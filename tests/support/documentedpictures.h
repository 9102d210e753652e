// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QImage>
#include <QString>

class QWidget;

/// Pictures of a window in its states, compared with those in docs/pictures. Link documented_pictures.
namespace DocumentedPictures {

/// What @p window shows, with its dialogs and popups above it. They are moved to where they are within the
/// window; the screen of a test is smaller.
QImage pictureOf(QWidget &window);

/// Compares @p picture with docs/pictures/FOLDER/STATE-light-x1.png and the like, in cells of ten pixels, so
/// that another release of a font is no difference. Keeps it in the build folder too; with UPDATE_PICTURES
/// set it becomes the documented one first. Empty if they agree.
QString differenceFromDocuments(const QImage &picture, const QString &folder, const QString &state,
                                bool isDark);

} // namespace DocumentedPictures
