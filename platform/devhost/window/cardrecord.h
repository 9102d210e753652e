// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace devhost {

/// What is left of a card that was let go: how it looked, packed, and what it said. Some kilobytes where the
/// card took a hundred.
class CardRecord
{
public:
    CardRecord() = default;
    explicit CardRecord(QWidget &card);

    bool isEmpty() const { return m_pixels.isEmpty(); }
    QImage picture() const;
    /// What the card said, line by line.
    const QString &text() const { return m_text; }

private:
    QByteArray m_pixels;
    QSize m_size; ///< in pixels of the picture
    qreal m_ratio = 1;
    QString m_text;
};

} // namespace devhost
