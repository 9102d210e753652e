// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "card/cardicons.h"

#include <QImageReader>
#include <QPixmapCache>
#include <QWidget>

// Not in a namespace: the macro declares the function that it calls where it stands.
static void registerResources()
{
    // The library is static: without this call the linker would leave its resources out.
    Q_INIT_RESOURCE(image);
}

QPixmap CardIcons::pixmap(const char *path, const QWidget &widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    // Reading a vector image costs more than all labels of a card together.
    const QString key = QStringLiteral("%1@%2").arg(QString::fromLatin1(path)).arg(ratio);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) {
        return picture;
    }
    registerResources();
    QImageReader reader(QString::fromLatin1(path));
    // Renders a vector image at the requested size instead of scaling it afterwards.
    reader.setScaledSize(QSize(Extent, Extent) * ratio);
    picture = QPixmap::fromImageReader(&reader);
    picture.setDevicePixelRatio(ratio);
    QPixmapCache::insert(key, picture);
    return picture;
}
