// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QString>

#include <fuzzer/FuzzedDataProvider.h>

#include <initializer_list>

using Words = std::initializer_list<const char *>;

/// One of @p words; the first once the bytes are used up.
const char *pick(FuzzedDataProvider &bytes, Words words);

/// One of @p words, or any characters at all, broken surrogates included.
QString anyText(FuzzedDataProvider &bytes, Words words);

// Each harness defines these two.

/// Called once, before any input.
void prepareToFuzz(int &argc, char **argv);
/// Called for each input. Must leave no state behind.
void fuzz(FuzzedDataProvider &bytes);

/// Ends the run as a finding if @p holds is false.
void require(bool holds);
