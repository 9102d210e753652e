// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardicons.h"

#include <QtGui/QImageReader>
#include <QtWidgets/QWidget>

// Not in a namespace: the macro declares the function that it calls where it stands.
static void registerResources()
{
    // The library is static: without this call the linker would leave its resources out.
    Q_INIT_RESOURCE(image);
}

QPixmap CardIcons::pixmap(const char *path, const QWidget &widget)
{
    registerResources();
    const qreal ratio = widget.devicePixelRatioF();
    QImageReader reader(QString::fromLatin1(path));
    // A vector image is read in the size that is asked for, not read and then stretched.
    reader.setScaledSize(QSize(Extent, Extent) * ratio);
    QPixmap picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(ratio);
    return picture;
}
