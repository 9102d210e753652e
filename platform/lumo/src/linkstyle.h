// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCommonStyle>

QT_BEGIN_NAMESPACE
class QAbstractButton;
class QStyleOptionButton;
QT_END_NAMESPACE

/// The look of one LCommandLinkButton. A style, because overrides in the button's header would tie derived
/// classes to this build of the toolkit.
class LinkStyle final : public QCommonStyle
{
    Q_OBJECT

public:
    /// Lives as long as the button.
    static void giveTo(QAbstractButton &button);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget = nullptr) const override;
    /// Sets the full text as tool tip when it is elided, unless the button has a tool tip of its own.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    LinkStyle() = default;
    void drawLink(const QStyleOptionButton &option, QPainter &painter, const QWidget &widget) const;
};
