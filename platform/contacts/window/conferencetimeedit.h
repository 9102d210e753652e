// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QDateTimeEdit;
QT_END_NAMESPACE

/// A field for the start of a conference, with a calendar in the window's language. The caller takes it.
QDateTimeEdit *makeConferenceTimeEdit();
