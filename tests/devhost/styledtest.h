// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/lstyle.h>

#include <QApplication>
#include <QObject>

/// Base class of widget tests: sets the desk's style.
class StyledTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new LStyle); }
};
