// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSyntaxHighlighter>

namespace devhost {

/// Colours the keys, strings, numbers and literals of JSON, also within other text. One colour for each kind,
/// mixed from the palette.
class JsonHighlighter final : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    using QSyntaxHighlighter::QSyntaxHighlighter;

protected:
    void highlightBlock(const QString &text) override;
};

} // namespace devhost
