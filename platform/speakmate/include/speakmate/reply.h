// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/**
 * A plugin's answer to one request: the texts to show and to speak and, where useful, a card.
 *
 * Passed by value, also through queued connections. Does not own the widget: copies share the pointer, and
 * whoever shows the card takes ownership.
 */
class Reply
{
public:
    /// The bits of @ref type. The two text bits are always set together.
    enum ContentType {
        Texts = 3,
        Card = 8,
        TextsAndCard = Texts | Card,
    };

    /// No answer yet: code -1, no texts, no card. For the metatype system and the handlers' initial state.
    Reply() : code(-1) {}

    /// @p text is both displayed and spoken.
    Reply(int resultCode, const QString &text, int contentType)
        : code(resultCode)
        , displayText(text)
        , speechText(text)
        , type(contentType)
    {
    }

    /// Replaces code, both texts and type; keeps an attached card.
    void update(int resultCode, const QString &text, int contentType)
    {
        code = resultCode;
        displayText = text;
        speechText = text;
        type = contentType;
    }

    QVariant code;             ///< int: 0 is success, negative an error code
    QVariant displayText;      ///< QString
    QVariant speechText;       ///< QString
    QWidget *widget = nullptr; ///< the card, or null
    int type = 0;              ///< bits of ContentType
    bool endOfSession = true;  ///< carried to the host as it is
};

Q_DECLARE_METATYPE(Reply)
