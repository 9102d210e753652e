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
 * What a plugin answers to one request: the texts to show and to speak and, where useful, a card.
 *
 * The record travels by value, also through queued connections. The widget is not owned by it: copies share
 * the pointer, and whoever shows the card takes it over.
 */
class Reply
{
public:
    /// The bits of @ref type. The two bits of the texts are always set together.
    enum ContentType {
        Texts = 3,
        Card = 8,
        TextsAndCard = Texts | Card,
    };

    /// No answer yet: code -1, no texts, no card. Exists for the metatype system and for the handlers' first
    /// state.
    Reply() : code(-1) {}

    /// @p text is both shown and spoken.
    Reply(int resultCode, const QString &text, int contentType)
        : code(resultCode)
        , displayText(text)
        , speechText(text)
        , type(contentType)
    {
    }

    /// Replaces code, both texts and type; a card that is attached stays.
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
