// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "desktoptheme.h"
#include "logcapture.h"

#include <lumo/lfontsizemanager.h>

#include <QLabel>
#include <QTest>

#include <memory>

/// Helpers for tests that measure how cards look.
namespace CardLooks {

inline std::unique_ptr<ConferenceMsgStaticWidget> singleCard(const ContactDetailMsg &conference)
{
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->singleInit({conference});
    return card;
}

inline QLabel *labelWith(const QWidget &parent, const QString &text)
{
    const auto labels = CardSamples::shown<QLabel>(parent);
    for (QLabel *label : labels) {
        if (label->text() == text) {
            return label;
        }
    }
    return nullptr;
}

inline QColor textColor(const QWidget &widget)
{
    return widget.palette().color(QPalette::Active, QPalette::WindowText);
}

/// The font of @p widget in the given size class.
inline QFont sized(const QWidget &widget, LFontSizeManager::SizeType size)
{
    return LFontSizeManager::instance()->get(size, widget.font());
}

/// Base class of tests that start in the light theme and fail on unexpected warnings.
class LightTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_log = std::make_unique<LogCapture>();
        DesktopTheme::set(DesktopTheme::Light);
    }
    void cleanup()
    {
        m_log.reset();
        DesktopTheme::set(DesktopTheme::Light);
    }

private:
    std::unique_ptr<LogCapture> m_log;
};

} // namespace CardLooks
