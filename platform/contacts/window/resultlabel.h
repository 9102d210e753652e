// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLabel>

/// What became of the last thing the user did: shown, and announced by screen readers.
class ResultLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ResultLabel(QWidget *parent = nullptr);

    void tell(const QString &text);
};
