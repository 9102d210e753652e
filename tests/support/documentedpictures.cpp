// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "documentedpictures.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>

namespace {

constexpr int Cell = 10;
constexpr int MostOfCell = 70;
constexpr double MostOnAverage = 4;

QImage coarse(const QImage &picture)
{
    const QSize cells = picture.size() / picture.devicePixelRatio() / Cell;
    return picture.convertToFormat(QImage::Format_RGB32)
        .scaled(cells, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int distance(QRgb one, QRgb other)
{
    return qMax(qAbs(qRed(one) - qRed(other)),
                qMax(qAbs(qGreen(one) - qGreen(other)), qAbs(qBlue(one) - qBlue(other))));
}

QString differenceOfCells(const QImage &one, const QImage &other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const int difference = distance(one.pixel(x, y), other.pixel(x, y));
            if (difference > MostOfCell) {
                return QStringLiteral("%1 at %2, %3").arg(difference).arg(x * Cell).arg(y * Cell);
            }
            sum += difference;
        }
    }
    const double average = sum / (one.width() * one.height());
    return average > MostOnAverage ? QStringLiteral("%1 on average").arg(average) : QString();
}

} // namespace

QImage DocumentedPictures::pictureOf(QWidget &window)
{
    QImage picture = window.grab().toImage();
    QPainter painter(&picture);
    const auto all = QApplication::topLevelWidgets();
    for (const Qt::WindowType type : {Qt::Dialog, Qt::Popup}) {
        for (QWidget *above : all) {
            if (above != &window && above->windowType() == type && above->isVisible()) {
                const QRect place(window.mapFromGlobal(above->mapToGlobal(QPoint())), above->size());
                painter.drawPixmap(place, above->grab());
                painter.setPen(above->palette().color(QPalette::Mid)); // in place of the desktop's shadow
                painter.drawRect(place.adjusted(0, 0, -1, -1));
            }
        }
    }
    return picture;
}

QString DocumentedPictures::differenceFromDocuments(const QImage &picture, const QString &folder,
                                                    const QString &state, bool isDark)
{
    const QString name = QStringLiteral("%1-%2-x%3.png")
                             .arg(state, isDark ? QStringLiteral("dark") : QStringLiteral("light"))
                             .arg(picture.devicePixelRatio());
    const QDir documents(QStringLiteral(CONTACT_SOURCE_DIR "/docs/pictures/") + folder);
    const QDir kept(QStringLiteral(CONTACT_BINARY_DIR "/pictures"));
    const QString shown = documents.filePath(name);
    if (qEnvironmentVariableIsSet("UPDATE_PICTURES") && !picture.save(shown, "PNG", 0)) {
        return QStringLiteral("cannot write ") + shown;
    }
    if (!kept.mkpath(QStringLiteral(".")) || !picture.save(kept.filePath(folder + QLatin1Char('-') + name))) {
        return QStringLiteral("cannot write to ") + kept.path();
    }
    QImage documented(shown);
    if (documented.isNull()) {
        return QStringLiteral("there is no ") + shown;
    }
    if (documented.size() != picture.size()) {
        return QStringLiteral("%1 has another size").arg(shown);
    }
    documented.setDevicePixelRatio(picture.devicePixelRatio());
    return differenceOfCells(coarse(documented), coarse(picture));
}
