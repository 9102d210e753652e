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

/// What remains of a released card: its picture, compressed, and its texts. Takes some kilobytes where the
/// card took a hundred.
class CardRecord
{
public:
    CardRecord() = default;
    explicit CardRecord(QWidget &card);

    bool isEmpty() const { return m_pixels.isEmpty(); }
    QImage picture() const;
    /// The card's texts, line by line.
    const QString &text() const { return m_text; }

private:
    QByteArray m_pixels;
    QSize m_size; ///< in pixels of the picture
    qreal m_ratio = 1;
    QString m_text;
};

} // namespace devhost
