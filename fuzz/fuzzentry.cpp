// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The fuzzer's entry points, the same for every harness.

#include "fuzzsupport.h"

#include <QtGlobal>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Log records would drown the fuzzer's own output.
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &, const QString &) { require(type != QtFatalMsg); });
    prepareToFuzz(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedDataProvider bytes(data, size);
    fuzz(bytes);
    return 0;
}
