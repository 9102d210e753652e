// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <sharedappearance.h>

namespace devhost {

/// The desk's own appearance, including how much it enlarges the cards. GUI thread.
class Appearance final : public SharedAppearance
{
    Q_OBJECT

public:
    /// Applies the remembered settings.
    explicit Appearance(QObject *parent = nullptr);

    /// The factor by which texts on cards grow, from the desktop's font, its resolution and the step.
    qreal cardScale() const;
};

} // namespace devhost
