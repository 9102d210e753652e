// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

/**
 * @file
 * A toolkit with exactly the classes and functions that the plugin may use, as thin wrappers around Qt. Never
 * let it share code with the bundled one: building the plugin against it proves that the plugin needs no
 * more.
 */

#include <lumo/toolkit.h>

#include <QGuiApplication>
#include <QPalette>

LLabel::LLabel(QWidget *parent) : QLabel(parent) {}

LLabel::LLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {}

LSuggestButton::LSuggestButton(QWidget *parent) : QPushButton(parent) {}

LSuggestButton::LSuggestButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {}

LCommandLinkButton::LCommandLinkButton(QWidget *parent) : QPushButton(parent) {}

LCommandLinkButton::LCommandLinkButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {}

LSpinBox::LSpinBox(QWidget *parent) : QSpinBox(parent) {}

void LSpinBox::setEnabledEmbedStyle(bool enabled)
{
    setProperty("enabledEmbedStyle", enabled); // so that tests can see it
}

LComboBox::LComboBox(QWidget *parent) : QComboBox(parent) {}

LFontSizeManager *LFontSizeManager::instance()
{
    static LFontSizeManager manager;
    return &manager;
}

QFont LFontSizeManager::get(SizeType type, const QFont &base) const
{
    constexpr int largest = 19;
    QFont font = base;
    font.setPixelSize(largest - type);
    return font;
}

LGuiApplicationHelper *LGuiApplicationHelper::instance()
{
    static LGuiApplicationHelper helper;
    return &helper;
}

int LGuiApplicationHelper::themeType() const
{
    const QPalette palette = QGuiApplication::palette();
    const bool light =
        palette.color(QPalette::Window).lightness() >= palette.color(QPalette::WindowText).lightness();
    return light ? 1 : 2;
}
