// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QStringList>
#include <QWidget>

namespace devhost {

/// The page shown before anything was said: a greeting and clickable examples.
class WelcomePage final : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget *parent = nullptr);

    /// Each works on the sample as the first sentence, and so do all of them in order.
    static QStringList examples();

Q_SIGNALS:
    void exampleChosen(const QString &sentence);
};

} // namespace devhost
