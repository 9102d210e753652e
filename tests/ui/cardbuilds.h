// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>

class ConferenceMsgStaticWidget;

/// Fills a card, in the tests' tables and for CardHost.
using Build = void (*)(ConferenceMsgStaticWidget &card);
Q_DECLARE_METATYPE(Build)

// The interactive cards, filled with the records of CardSamples.

/// Shows the conference in the editor.
void buildEditable(ConferenceMsgStaticWidget &card);
/// Like buildEditable(), with the head count edited from 20 to 7.
void buildEdited(ConferenceMsgStaticWidget &card);
void buildCreate(ConferenceMsgStaticWidget &card);
void buildInvite(ConferenceMsgStaticWidget &card);
void buildLimit(ConferenceMsgStaticWidget &card);
