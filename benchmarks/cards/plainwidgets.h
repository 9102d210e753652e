// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QFont>
#include <QMargins>
#include <QPalette>
#include <QPixmap>
#include <QStringList>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QBoxLayout;
class QWidget;
QT_END_NAMESPACE

/**
 * A card as one would build it from Qt's own widgets: the same number of the same kinds, with the same texts,
 * fonts, colours, layouts and rounded backgrounds, and nothing of ours. Read from a card once, built any
 * number of times.
 */
class PlainWidgets
{
public:
    explicit PlainWidgets(const QWidget &card);
    ~PlainWidgets();
    PlainWidgets(PlainWidgets &&) noexcept;

    std::unique_ptr<QWidget> build() const;

    /// The number of widgets in it.
    int count() const;

private:
    enum class Kind { Panel, Ground, Label, Button, ComboBox, DateBox, SpinBox, CheckBox, Space, Layout };

    void readWidget(const QWidget &widget);
    void readLayout(const QBoxLayout &layout);
    QWidget *buildWidget(QWidget *parent) const;
    void buildLayout(QBoxLayout &layout, QWidget *parent) const;

    Kind m_kind = Kind::Panel;
    QStringList m_texts;
    QPixmap m_pixmap;
    QFont m_font;
    QPalette m_palette;
    bool m_hasPalette = false;
    bool m_isHidden = false;
    bool m_isFlat = false;
    bool m_fillsGround = false;
    QPalette::ColorRole m_groundRole = QPalette::NoRole;
    QSize m_minimumSize;
    QSize m_maximumSize;
    int m_stretch = 0;
    int m_space = 0;

    // Only for kinds that have a layout.
    bool m_isVertical = false;
    bool m_hasLayout = false;
    QMargins m_margins;
    int m_spacing = 0;
    std::vector<PlainWidgets> m_children;
    PlainWidgets() = default;
};
