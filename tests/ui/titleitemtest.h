// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencemsgstaticwidget.h"
#include "desktoptheme.h"
#include "titleitem.h"

#include <QCheckBox>
#include <QTest>

#include <memory>

const UserInfo Zhang{QStringLiteral("小张"), QStringLiteral("张三"), QStringLiteral("u1"),
                     QStringLiteral("zs@a")};

inline QCheckBox *mark(const TiTleItem &item)
{
    return item.findChild<QCheckBox *>();
}

/// A card that counts the mouse and key releases that reach it.
class CountingCard : public ConferenceMsgStaticWidget
{
public:
    int mouseReleases = 0;
    int keyReleases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent * /*event*/) override { ++mouseReleases; }
    void keyReleaseEvent(QKeyEvent * /*event*/) override { ++keyReleases; }
};

/// Base class of tests of a candidate row on a card.
class TitleItemTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<CountingCard> m_card;
    TiTleItem *m_row = nullptr;

private Q_SLOTS:
    void init()
    {
        m_card = std::make_unique<CountingCard>();
        m_row = new TiTleItem(QStringLiteral("联系人"), m_card.get());
        m_card->resize(400, 200);
    }
    void cleanup()
    {
        m_card.reset();
        DesktopTheme::set(DesktopTheme::Light);
    }
};
