// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lguiapplicationhelper.h>

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <QtTest>

// Pictures of the window and its dialogs, for people to look at.

/// Sets the user's theme for the lifetime of the object.
class ChosenTheme
{
public:
    explicit ChosenTheme(int theme) : m_isLight(theme == LGuiApplicationHelper::LightType)
    {
        LGuiApplicationHelper::instance()->setPaletteType(
            static_cast<LGuiApplicationHelper::ColorType>(theme));
    }
    ~ChosenTheme() { LGuiApplicationHelper::instance()->setPaletteType(LGuiApplicationHelper::UnknownType); }
    Q_DISABLE_COPY(ChosenTheme)

    bool isLight() const { return m_isLight; }

private:
    bool m_isLight;
};

/// Saves @p picture under @p fileName in the build folder.
inline void savePicture(const QImage &picture, const QString &fileName)
{
    const QDir folder(QStringLiteral(CONTACT_BINARY_DIR "/screenshots"));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    QVERIFY(picture.save(folder.filePath(fileName)));
}

/// Saves a picture of @p widget as "NAME-ROW.png", after checking that its background matches @p theme.
inline void keepPicture(QWidget *widget, const ChosenTheme &theme, const QString &name)
{
    QCoreApplication::processEvents();
    const QImage picture = widget->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2).lightness() > 128, theme.isLight());
    savePicture(picture, QStringLiteral("%1-%2.png").arg(name, QLatin1String(QTest::currentDataTag())));
}
