// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fuzzsupport.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>

/**
 * Writes JSON after a template, with a few faults in it. Qt's parser is not instrumented, and keys that are
 * drawn at random hardly ever meet in the right places; a text that starts as a real record gets to the code
 * behind them.
 *
 * An array of a template holds one element, which is written any number of times, differently each time. A
 * text "a|b|c" stands for one of these. With no bytes left the text is the template itself, first choices
 * taken.
 */
class TemplateText
{
public:
    explicit TemplateText(FuzzedDataProvider &bytes) : m_bytes(bytes) {}

    /// @p text is the template, with ' for ".
    QByteArray after(const char *text);

private:
    QByteArray written(const QJsonValue &value, int depth);
    QByteArray object(const QJsonObject &object, int depth);
    QByteArray array(const QJsonArray &array, int depth);
    QByteArray otherValue(int depth);
    QByteArray number();
    bool oneIn(int count);

    FuzzedDataProvider &m_bytes;
};
