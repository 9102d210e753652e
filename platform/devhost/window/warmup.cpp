// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "warmup.h"

#include <lumo/lcombobox.h>
#include <lumo/lcommandlinkbutton.h>
#include <lumo/lfontsizemanager.h>
#include <lumo/llabel.h>
#include <lumo/lspinbox.h>
#include <lumo/lsuggestbutton.h>

#include <QVBoxLayout>

namespace devhost {

void warmUp()
{
    QWidget widget;
    QVBoxLayout layout(&widget);
    const QString text = QStringLiteral("会议号时间：发起视频会议，年月日时分秒人 0123456789 ABCxyz");
    for (const auto size : {LFontSizeManager::T6, LFontSizeManager::T7, LFontSizeManager::T8}) {
        auto *label = new LLabel(text, &widget);
        label->setFont(LFontSizeManager::instance()->get(size));
        layout.addWidget(label);
    }
    layout.addWidget(new LSuggestButton(text, &widget));
    layout.addWidget(new LCommandLinkButton(text, &widget));
    layout.addWidget(new LSpinBox(&widget));
    auto *combo = new LComboBox(&widget);
    combo->addItem(text);
    layout.addWidget(combo);
    widget.adjustSize();
    widget.grab();
}

} // namespace devhost
