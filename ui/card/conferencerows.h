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

/// Makes the rows of a card that only show something. Each row belongs to the parent it is given.
namespace ConferenceRows {

QWidget *title(QWidget *parent);
/// What the conference is about; in a static row also the state that it is in.
QWidget *status(const ContactDetailMsg &conference, bool isStatic, QWidget *parent);
QWidget *number(const ContactDetailMsg &conference, QWidget *parent);
QWidget *beginTime(const ContactDetailMsg &conference, QWidget *parent);
QWidget *timeLength(const ContactDetailMsg &conference, QWidget *parent);
QWidget *personNum(const ContactDetailMsg &conference, QWidget *parent);
QWidget *participants(const ContactDetailMsg &conference, QWidget *parent);

/// The rows of a conference among several, from top to bottom.
QVector<QWidget *> summary(const ContactDetailMsg &conference, QWidget *parent);

/// A row that has its caption and waits for its value in the layout.
struct CaptionedRow
{
    QWidget *widget;
    QHBoxLayout *layout;
    QLabel *caption;
};
CaptionedRow captioned(const QString &caption, QWidget *parent);

/// A separator of any direction.
QPushButton *line(QWidget *parent);
/// A horizontal separator between two rows of a card.
QPushButton *separator(QWidget *parent);

/// The panel of one conference in a list, with a layout for its rows. Make those as its children: one that
/// changes its parent works out its font and its palette anew.
QWidget *item(QWidget *parent);

// How the rows are called, for the eye and for assistive technology.
QString beginTimeCaption();
QString timeLengthCaption();
QString personNumCaption();

} // namespace ConferenceRows
