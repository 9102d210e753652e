// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QColor>
#include <QHash>
#include <QImage>

#include <cmath>

/// Contrast of painted pixels, from 1 to 21, as defined by the Web Content Accessibility Guidelines.
namespace PaintedContrast {

inline double luminance(QRgb color)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

inline double between(QRgb one, QRgb other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

/// The most frequent colour of @p image.
inline QRgb ground(const QImage &image)
{
    QHash<QRgb, int> counts;
    QRgb most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb color = image.pixel(x, y);
            if (++counts[color] > counts.value(most)) {
                most = color;
            }
        }
    }
    return most;
}

/// The highest contrast of any pixel in @p image with its background.
inline double ofText(const QImage &image)
{
    const QRgb behind = ground(image);
    double best = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            best = qMax(best, between(image.pixel(x, y), behind));
        }
    }
    return best;
}

/// The contrast between the edge of the control at @p place in @p image and its surroundings, on the weakest
/// side. Ignores sides at the image's border; 1 if no side is left.
inline double ofEdge(const QImage &image, const QRect &place)
{
    const int depth = qRound(3 * image.devicePixelRatio()); // lines are one to two pixels wide
    const QPoint middle = place.center();
    const struct
    {
        QPoint edge;
        QPoint inwards;
    } sides[] = {{{place.left(), middle.y()}, {1, 0}},
                 {{place.right(), middle.y()}, {-1, 0}},
                 {{middle.x(), place.top()}, {0, 1}},
                 {{middle.x(), place.bottom()}, {0, -1}}};
    double weakest = 21;
    bool isMeasured = false;
    for (const auto &side : sides) {
        const QPoint outside = side.edge - 2 * side.inwards;
        if (!image.rect().contains(outside)) {
            continue;
        }
        isMeasured = true;
        double best = 1;
        for (int step = 0; step < depth; ++step) {
            best = qMax(best, between(image.pixel(side.edge + step * side.inwards), image.pixel(outside)));
        }
        weakest = qMin(weakest, best);
    }
    return isMeasured ? weakest : 1;
}

} // namespace PaintedContrast
