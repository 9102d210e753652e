// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <lumo/llabel.h>

/**
 * A one-line label for text from outside the program: always plain text, also in its tool tip, whatever the
 * toolkit's label would make of it. Text that does not fit is elided, and the tool tip shows all of it.
 *
 * text() is always the whole text. Only its beginning is measured, painted and exposed to assistive
 * technology, so that megabytes of text cost no more than a line of the widest screen.
 */
class CardLabel : public LLabel
{
    Q_OBJECT
    /// Set by CardTheme::setText(). Declared because a dynamic property costs ten times as much.
    Q_PROPERTY(int cardTextAlpha MEMBER m_textAlpha)

public:
    /// The colour does not follow the theme.
    static constexpr int NoTextAlpha = -1;

    CardLabel(const QString &text, QWidget *parent);

    /// Gives a new label the theme's text colour with @p alpha, which it keeps when the theme changes.
    void setTextAlpha(int alpha);

    /// Never makes the label narrower than its text.
    void disableEliding();

    /// Never makes the label wider than its text, even if the font changes.
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

/// A label whose colour does not follow the theme; the dark one puts a chip behind it where it needs one.
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
