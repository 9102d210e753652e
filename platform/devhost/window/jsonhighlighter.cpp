// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "jsonhighlighter.h"

#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>

namespace devhost {

namespace {

/// A key with its colon, a string, a number, a JSON literal.
const QRegularExpression &pieces()
{
    static const QRegularExpression expression(
        QStringLiteral("(?<key>\"(?:[^\"\\\\]|\\\\.)*\")\\s*:|(?<string>\"(?:[^\"\\\\]|\\\\.)*\")|"
                       "(?<![\\w.])(?<number>-?\\d+(?:\\.\\d+)?(?:[eE][+-]?\\d+)?)(?![\\w.:])|\\b(?<word>"
                       "true|false|null)\\b"));
    return expression;
}

QColor colorOf(const QString &kind)
{
    const QPalette palette = QGuiApplication::palette();
    if (kind == QLatin1String("key")) {
        return palette.color(QPalette::Link);
    }
    if (kind == QLatin1String("string")) {
        const bool isDark = palette.color(QPalette::Base).lightness() < 128;
        return isDark ? QColor(0x8f, 0xd1, 0x7e) : QColor(0x1a, 0x70, 0x2c);
    }
    return palette.color(QPalette::LinkVisited);
}

} // namespace

void JsonHighlighter::highlightBlock(const QString &text)
{
    auto matches = pieces().globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        for (const QString &kind : {QStringLiteral("key"), QStringLiteral("string"), QStringLiteral("number"),
                                    QStringLiteral("word")}) {
            if (match.capturedLength(kind) > 0) {
                setFormat(match.capturedStart(kind), match.capturedLength(kind), colorOf(kind));
            }
        }
    }
}

} // namespace devhost
