// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTemporaryDir>
#include <QtTest>

/// Base class of tests that compare what programs write to stderr.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Qt warns on stderr if it is unset.
        QVERIFY(m_runtime.isValid());
        qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
    }

protected:
    const QTemporaryDir m_runtime;
};
