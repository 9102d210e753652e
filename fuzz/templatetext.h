// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fuzzsupport.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>

/**
 * Writes JSON from a template, with a few faults in it. Qt's parser is not instrumented, and random keys
 * hardly ever end up in the right places; a text that starts as a real record reaches the code behind them.
 *
 * An array in a template holds one element, which is written up to five times, differently each time. A text
 * "a|b|c" stands for one of the three. With no bytes left, the result is the template itself with the first
 * choices taken.
 */
class TemplateText
{
public:
    explicit TemplateText(FuzzedDataProvider &bytes) : m_bytes(bytes) {}

    /// Writes JSON from the template @p text, which has ' for ".
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
