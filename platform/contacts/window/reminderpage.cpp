// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/reminderpage.h"

#include "book/contactsbook.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

ReminderPage::ReminderPage(ContactsBook &book, QWidget *parent)
    : QWidget(parent)
    , m_book(book)
    , m_isOn(new QCheckBox(QStringLiteral("提醒我会议、邀请和好友申请(&M)")))
    , m_lead(new QSpinBox)
{
    m_isOn->setObjectName(QStringLiteral("remind"));
    m_lead->setObjectName(QStringLiteral("leadMinutes"));
    m_lead->setRange(ReminderSettings::MinLeadMinutes, ReminderSettings::MaxLeadMinutes);
    m_lead->setKeyboardTracking(false); // "15" is not 1 on its way
    m_lead->setSuffix(QStringLiteral(" 分钟"));
    m_lead->setAccessibleName(QStringLiteral("会议开始前多少分钟提醒"));
    auto *lead = new QLabel(QStringLiteral("会议开始前(&B)"));
    lead->setBuddy(m_lead);
    auto *hint =
        new QLabel(QStringLiteral("会议开始前和开始时各通知一次；已谢绝、已加入和已结束的会议不再提醒。"
                                  "打开提醒后，登录桌面时会在后台启动，关闭窗口后仍会提醒。"));
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    auto *layout = new QFormLayout(this);
    layout->setContentsMargins(0, 10, 0, 0);
    layout->setSpacing(10);
    layout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    layout->addRow(m_isOn);
    layout->addRow(lead, m_lead);
    layout->addRow(hint);
    connect(m_isOn, &QCheckBox::clicked, this, &ReminderPage::save);
    connect(m_lead, QOverload<int>::of(&QSpinBox::valueChanged), this, &ReminderPage::save);
    connect(&m_book, &ContactsBook::changedLately, this, &ReminderPage::reload);
    reload();
}

void ReminderPage::reload()
{
    const QSignalBlocker blocker(m_lead);
    try {
        const ReminderSettings settings = m_book.reminders().settings();
        m_isOn->setChecked(settings.isOn);
        if (m_lead->value() != settings.leadMinutes) {
            m_lead->setValue(settings.leadMinutes); // would move the cursor of somebody who types
        }
        m_lead->setEnabled(settings.isOn);
    } catch (const std::exception &error) {
        qWarning("The reminders' settings cannot be shown: %s", error.what());
        m_book.noteFailure(error);
    }
}

void ReminderPage::save()
{
    const bool saved = m_book.change([this] {
        m_book.reminders().setSettings({m_isOn->isChecked(), m_lead->value()});
        return true;
    });
    if (!saved) {
        reload();
    }
}
