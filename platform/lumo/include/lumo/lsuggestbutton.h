// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "lumoglobal.h"

#include <QPushButton>

/// The suggested button among several: in the palette's accent colour (Highlight), with the text in
/// HighlightedText. Follows the application's palette.
class LUMO_EXPORT LSuggestButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LSuggestButton(QWidget *parent = nullptr);
    explicit LSuggestButton(const QString &text, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
