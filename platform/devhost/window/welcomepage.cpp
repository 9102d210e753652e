// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "welcomepage.h"

#include <lumo/lfontsizemanager.h>

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace devhost {

namespace {

constexpr int IconSize = 72;

} // namespace

QStringList WelcomePage::examples()
{
    return {QStringLiteral("查询今天的会议"), QStringLiteral("预约明天下午三点的视频会议"),
            QStringLiteral("加200001为好友"), QStringLiteral("发起视频会议，叫上孙丽和赵磊"),
            QStringLiteral("你会什么")};
}

WelcomePage::WelcomePage(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    auto *icon = new QLabel(this);
    icon->setPixmap(QIcon(QStringLiteral(":/devhost/speakmate-devhost.svg")).pixmap(IconSize));
    layout->addWidget(icon, 0, Qt::AlignHCenter);
    auto *greeting = new QLabel(tr("Hello, what can I do for you?"), this);
    greeting->setFont(LFontSizeManager::instance()->get(LFontSizeManager::T4, font()));
    layout->addWidget(greeting, 0, Qt::AlignHCenter);
    auto *hint = new QLabel(tr("Type below, or click an example. The assistant understands Chinese:"), this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setAlignment(Qt::AlignHCenter);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    layout->addSpacing(12);
    const QStringList offered = examples();
    for (const QString &example : offered) {
        auto *button = new QPushButton(example, this);
        button->setObjectName(QStringLiteral("example"));
        button->setMinimumSize(320, 36);
        connect(button, &QPushButton::clicked, this, [this, example] { Q_EMIT exampleChosen(example); });
        layout->addWidget(button, 0, Qt::AlignHCenter);
    }
    layout->addStretch(3);
}

} // namespace devhost
