// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsummary.h"

#include "cleantext.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

namespace devhost {

namespace {

constexpr int MostLines = 60;

struct Piece
{
    QRect place;
    QString text;
};

QString withoutMnemonic(QString text)
{
    text.replace(QLatin1String("&&"), QLatin1String("\n"));
    text.remove(QLatin1Char('&'));
    return text.replace(QLatin1Char('\n'), QLatin1Char('&'));
}

/// The text of one control; empty for a control without text.
QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return label->text();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return button->text().isEmpty() ? QString()
                                        : QStringLiteral("[%1]").arg(withoutMnemonic(button->text()));
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget)) {
        return QStringLiteral("<%1>").arg(combo->currentText());
    }
    if (const auto *spinBox = qobject_cast<const QAbstractSpinBox *>(&widget)) {
        return QStringLiteral("<%1>").arg(spinBox->text());
    }
    return QString();
}

void collect(const QWidget &widget, const QWidget &card, QVector<Piece> &pieces)
{
    for (QObject *object : widget.children()) {
        const auto *child = qobject_cast<const QWidget *>(object);
        if (child == nullptr || child->isWindow() || !child->isVisibleTo(&card)) {
            continue;
        }
        const QString text = cleanText(textOf(*child)).simplified();
        if (!text.isEmpty()) {
            pieces.append({QRect(child->mapTo(&card, QPoint(0, 0)), child->size()), text});
        } else {
            collect(*child, card, pieces);
        }
    }
}

} // namespace

QStringList cardSummary(const QWidget &card)
{
    QVector<Piece> pieces;
    collect(card, card, pieces);
    std::stable_sort(pieces.begin(), pieces.end(), [](const Piece &a, const Piece &b) {
        return a.place.center().y() < b.place.center().y();
    });
    QStringList lines;
    for (int i = 0; i < pieces.size() && lines.size() < MostLines;) {
        // Anything that starts above the middle of the first piece's lower half belongs to the same row.
        int end = i + 1;
        while (end < pieces.size() && pieces.at(end).place.center().y() <= pieces.at(i).place.bottom()) {
            ++end;
        }
        std::stable_sort(pieces.begin() + i, pieces.begin() + end,
                         [](const Piece &a, const Piece &b) { return a.place.x() < b.place.x(); });
        QStringList row;
        for (; i < end; ++i) {
            row.append(pieces.at(i).text);
        }
        lines.append(row.join(QStringLiteral("  ")));
    }
    return lines;
}

} // namespace devhost
