// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QTranslator>

namespace devhost {

/// The window speaks Chinese: the host's messages, and those texts of Qt's own menus and dialogs that it
/// shows. In the program itself, so that nothing has to be installed beside it.
class ChineseTexts final : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override { return false; }
};

} // namespace devhost
