// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtWidgets/QApplication>

namespace devhost {

/// The application object: sets the look, and keeps the exceptions of a plugin's cards from ending the host.
class HostApplication final : public QApplication
{
    Q_OBJECT

public:
    HostApplication(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace devhost
