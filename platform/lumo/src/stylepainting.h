// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QPainter;
class QPalette;
class QRect;
class QStyleOption;
QT_END_NAMESPACE

/// Draws LStyle's shapes in the colours of the option's palette. The painter's state is restored.
namespace StylePainting {

void button(QPainter &painter, const QStyleOption &option, bool flat);
/// The background of a combo box, a spin box or a line edit.
void field(QPainter &painter, const QStyleOption &option);
/// The frame of a list or a text.
void frame(QPainter &painter, const QStyleOption &option);
void headerSection(QPainter &painter, const QStyleOption &option, bool isLast);
/// A tab above its pages; the selected one is underlined in the accent colour.
void tab(QPainter &painter, const QStyleOption &option);
void focusRing(QPainter &painter, const QStyleOption &option);
void checkMark(QPainter &painter, const QStyleOption &option);
void radioMark(QPainter &painter, const QStyleOption &option);

enum class Sign { Up, Down, Plus, Minus };
void sign(QPainter &painter, const QStyleOption &option, const QRect &room, Sign sign, bool enabled);

} // namespace StylePainting
