// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QLabel>

/**
 * A label for text that somebody else wrote: it shows every character as it is. Markup is taken as text, also
 * in the tool tip, so that no text can make the label open files or change its look.
 *
 * With an elide mode the label may become narrower than its text; it then paints as much as fits and gives
 * the whole text as tool tip. text() is always the whole text.
 */
class LUMO_EXPORT LLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LLabel(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    explicit LLabel(const QString &text, QWidget *parent = nullptr,
                    Qt::WindowFlags flags = Qt::WindowFlags());

    /// Qt::ElideNone (as at first) never makes the label narrower than its text.
    void setElideMode(Qt::TextElideMode mode);
    Qt::TextElideMode elideMode() const;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownText() const;

    Qt::TextElideMode m_elideMode = Qt::ElideNone;
};
