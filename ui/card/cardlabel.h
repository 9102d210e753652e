// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/llabel.h>

/**
 * A one-line label for a text that somebody else wrote: plain text, also in its tool tip, whatever the
 * toolkit's label makes of it. A text that does not fit is elided and given whole as tool tip.
 *
 * text() is always the whole text. Measured, painted and told to assistive technology is only its beginning,
 * so that a text of megabytes costs no more than a line of the widest screen.
 */
class CardLabel : public LLabel
{
    Q_OBJECT
    /// As CardTheme::setText() keeps it; declared, because a label keeps it at a tenth of the cost then.
    Q_PROPERTY(int cardTextAlpha MEMBER m_textAlpha)

public:
    /// The colour does not follow the theme.
    static constexpr int NoTextAlpha = -1;

    CardLabel(const QString &text, QWidget *parent);

    /// Gives a new label the theme's text colour with @p alpha, which it keeps when the theme changes.
    void setTextAlpha(int alpha);

    /// Never makes the label narrower than its text.
    void disableEliding();

    /// Never makes the label wider than its text, whatever its font becomes.
    void capAtText();

    /// What the text needs on one line, in pixels.
    [[nodiscard]] int wholeWidth() const { return wholeSize().width(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] QSize wholeSize() const;

    int m_textAlpha = NoTextAlpha;
    bool m_elides = true;
    bool m_isCapped = false;
};

/// A label whose colour does not follow the theme; in the dark one it stands on a chip if it needs one.
class ColoredCardLabel final : public CardLabel
{
    Q_OBJECT

public:
    ColoredCardLabel(const QString &text, const QColor &color, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void followTheme();

    int m_coats = 0; ///< 0 without a chip
};
