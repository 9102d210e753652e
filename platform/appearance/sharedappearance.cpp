// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "sharedappearance.h"

#include "desknames.h"

#include <lumo/lguiapplicationhelper.h>

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QSettings>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qreal SmallestPointSize = 6;

constexpr qint64 LargestFile = 64 * 1024; ///< bytes; the desk writes less than one KiB

const QLatin1String ThemeKey("appearance/theme");
const QLatin1String FontStepKey("appearance/fontStep");

/// Whether @p fileName can be read to its end without blocking: opening a pipe blocks until somebody writes
/// to it.
bool isSettingsFile(const QString &fileName)
{
    const int descriptor =
        ::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    struct stat status = {};
    const bool isFit =
        ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= LargestFile;
    ::close(descriptor);
    return isFit;
}

} // namespace

SharedAppearance::SharedAppearance(const QString &settingsFile, QObject *parent)
    : QObject(parent)
    , m_settingsFile(settingsFile)
    , m_desktopPointSize(QApplication::font().pointSizeF())
{
    if (m_desktopPointSize <= 0) {
        m_desktopPointSize = QApplication::font().pixelSize() * 0.75;
    }
    read();
    applyTheme();
    applyFont();
}

void SharedAppearance::read()
{
    if (!isSettingsFile(m_settingsFile)) {
        m_theme = System;
        m_fontStep = 0;
        return;
    }
    const QSettings settings(m_settingsFile, QSettings::NativeFormat);
    m_theme = Theme(qBound(int(System), settings.value(ThemeKey, int(System)).toInt(), int(Dark)));
    m_fontStep = qBound(SmallestStep, settings.value(FontStepKey, 0).toInt(), LargestStep);
}

void SharedAppearance::setTheme(Theme theme)
{
    m_theme = theme;
    QSettings(m_settingsFile, QSettings::NativeFormat).setValue(ThemeKey, int(theme));
    applyTheme();
}

void SharedAppearance::setFontStep(int step)
{
    m_fontStep = qBound(SmallestStep, step, LargestStep);
    QSettings(m_settingsFile, QSettings::NativeFormat).setValue(FontStepKey, m_fontStep);
    applyFont();
}

void SharedAppearance::follow()
{
    if (m_watch) {
        return;
    }
    m_watch = std::make_unique<SettingsWatch>(m_settingsFile);
    connect(m_watch.get(), &SettingsWatch::changed, this, [this] {
        const Theme theme = m_theme;
        const int fontStep = m_fontStep;
        read();
        if (theme != m_theme) {
            applyTheme();
        }
        if (fontStep != m_fontStep) {
            applyFont();
        }
    });
}

QString SharedAppearance::deskSettingsFile()
{
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, DeskNames::Organization,
                     DeskNames::Application)
        .fileName();
}

void SharedAppearance::applyTheme()
{
    if (m_theme == System) {
        m_systemPalette.follow();
        return;
    }
    m_systemPalette.stop();
    LGuiApplicationHelper::instance()->setPaletteType(m_theme == Dark ? LGuiApplicationHelper::DarkType
                                                                      : LGuiApplicationHelper::LightType);
}

qreal SharedAppearance::pointSize() const
{
    return qMax(SmallestPointSize, m_desktopPointSize + m_fontStep);
}

void SharedAppearance::applyFont()
{
    QFont font = QApplication::font();
    font.setPointSizeF(pointSize());
    QApplication::setFont(font);
    Q_EMIT fontChanged();
}
