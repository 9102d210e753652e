// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QWidget>

namespace devhost {

class TurnButton;

/**
 * One utterance: plain text on a rounded plate, every character shown literally. Its size is what
 * Bubble::sizeFor() says; the conversation view creates bubbles only for what is in sight. Beside it is a
 * button for the menu of its turn, a child of the same parent.
 */
class Bubble final : public QWidget
{
    Q_OBJECT

public:
    enum Role { Said, Reply, Notice };

    explicit Bubble(QWidget *parent = nullptr);

    void show(Role role, const QString &text, bool isDimmed);
    /// The ring around the keyboard's current bubble.
    void setCurrent(bool isCurrent);
    QString text() const { return m_text; }
    Role role() const { return m_role; }
    bool isDimmed() const { return m_isDimmed; }

    /// The size of a bubble no wider than @p maximumWidth. @p naturalWidth receives its unbounded width.
    static QSize sizeFor(const QString &text, const QFont &font, int maximumWidth, int &naturalWidth);

Q_SIGNALS:
    void clicked();
    void menuWanted(const QPoint &globalPlace);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void placeButton();

    TurnButton *m_button;
    QString m_text;
    Role m_role = Reply;
    bool m_isDimmed = false;
    bool m_isCurrent = false;
};

} // namespace devhost
