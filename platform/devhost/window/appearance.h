// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <sharedappearance.h>

namespace devhost {

/// The desk's own appearance, and how large it makes the cards. GUI thread.
class Appearance final : public SharedAppearance
{
    Q_OBJECT

public:
    /// Applies what was remembered.
    explicit Appearance(QObject *parent = nullptr);

    /// How much larger than planned the texts on cards are, from the desktop's font, its resolution and the
    /// step.
    qreal cardScale() const;
};

} // namespace devhost
