// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"

QT_BEGIN_NAMESPACE
class QHBoxLayout;
class QLabel;
class QPushButton;
class QWidget;
QT_END_NAMESPACE

/// Creates the read-only rows of a card. Each row is a child of the given parent.
namespace ConferenceRows {

QWidget *title(QWidget *parent);
/// The conference's title; a static row also shows its state.
QWidget *status(const ContactDetailMsg &conference, bool isStatic, QWidget *parent);
QWidget *number(const ContactDetailMsg &conference, QWidget *parent);
QWidget *beginTime(const ContactDetailMsg &conference, QWidget *parent);
QWidget *timeLength(const ContactDetailMsg &conference, QWidget *parent);
QWidget *personNum(const ContactDetailMsg &conference, QWidget *parent);
QWidget *participants(const ContactDetailMsg &conference, QWidget *parent);

/// The rows of one conference in a list, from top to bottom.
QVector<QWidget *> summary(const ContactDetailMsg &conference, QWidget *parent);

/// A row with a caption; the caller adds the value to the layout.
struct CaptionedRow
{
    QWidget *widget;
    QHBoxLayout *layout;
    QLabel *caption;
};
CaptionedRow captioned(const QString &caption, QWidget *parent);

/// A separator of either orientation.
QPushButton *line(QWidget *parent);
/// A horizontal separator between two rows of a card.
QPushButton *separator(QWidget *parent);

/// The panel of one conference in a list, with a layout for its rows. Create these as its children: a widget
/// that is reparented resolves its font and palette again.
QWidget *item(QWidget *parent);

// The rows' captions, which are also their accessible names.
QString beginTimeCaption();
QString timeLengthCaption();
QString personNumCaption();

} // namespace ConferenceRows
