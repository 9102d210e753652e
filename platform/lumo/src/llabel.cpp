// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "lumo/llabel.h"

LLabel::LLabel(QWidget *parent) : QLabel(parent) {}

LLabel::LLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {}
