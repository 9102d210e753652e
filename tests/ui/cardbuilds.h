// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>

class ConferenceMsgStaticWidget;

/// Fills a card, in the tests' tables and for CardHost.
using Build = void (*)(ConferenceMsgStaticWidget &card);
Q_DECLARE_METATYPE(Build)

// The cards that ask for something, with the records of CardSamples.

/// The conference, to be edited.
void buildEditable(ConferenceMsgStaticWidget &card);
/// The same, with 7 people instead of 20.
void buildEdited(ConferenceMsgStaticWidget &card);
void buildCreate(ConferenceMsgStaticWidget &card);
void buildInvite(ConferenceMsgStaticWidget &card);
void buildLimit(ConferenceMsgStaticWidget &card);
