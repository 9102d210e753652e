// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTemporaryDir>
#include <QtTest>

/// Derive a test that compares what programs write on their error stream from it.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Without it Qt complains on the error stream.
        QVERIFY(m_runtime.isValid());
        qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
    }

protected:
    const QTemporaryDir m_runtime;
};
