// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QApplication>

#include <memory>

namespace devhost {

/// The application object: sets the look and catches exceptions thrown by a plugin's cards.
class HostApplication final : public QApplication
{
    Q_OBJECT

public:
    /// @p programName is argv[0] or the like. Qt gets no other argument: it would take "--plugin" for one of
    /// its own.
    explicit HostApplication(char *programName);

    bool notify(QObject *receiver, QEvent *event) override;

private:
    struct Arguments
    {
        int count = 1;
        char *values[2] = {};
    };
    HostApplication(std::unique_ptr<Arguments> arguments);

    const std::unique_ptr<Arguments> m_arguments; ///< Qt keeps references to them
};

} // namespace devhost
