// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>

// The whole toolkit; each class's header includes just this one.

class Q_DECL_EXPORT LLabel : public QLabel
{
    Q_OBJECT

public:
    explicit LLabel(QWidget *parent = nullptr);
    explicit LLabel(const QString &text, QWidget *parent = nullptr);
};

class Q_DECL_EXPORT LCommandLinkButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LCommandLinkButton(QWidget *parent = nullptr);
    explicit LCommandLinkButton(const QString &text, QWidget *parent = nullptr);
};

class Q_DECL_EXPORT LSuggestButton : public QPushButton
{
    Q_OBJECT

public:
    explicit LSuggestButton(QWidget *parent = nullptr);
    explicit LSuggestButton(const QString &text, QWidget *parent = nullptr);
};

class Q_DECL_EXPORT LSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit LSpinBox(QWidget *parent = nullptr);

    void setEnabledEmbedStyle(bool enabled);
};

class Q_DECL_EXPORT LComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LComboBox(QWidget *parent = nullptr);
};

class Q_DECL_EXPORT LFontSizeManager
{
public:
    enum SizeType : int { T6 = 5, T7 = 6, T8 = 7 };

    static LFontSizeManager *instance();

    QFont get(SizeType type, const QFont &base) const;
};

class Q_DECL_EXPORT LGuiApplicationHelper : public QObject
{
    Q_OBJECT

public:
    static LGuiApplicationHelper *instance();

    /// 1 for light, 2 for dark.
    int themeType() const;
};
