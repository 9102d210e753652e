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
    , m_isOn(new QCheckBox(tr("Re&mind me of conferences, invitations and friend requests")))
    , m_lead(new QSpinBox)
{
    m_isOn->setObjectName(QStringLiteral("remind"));
    m_lead->setObjectName(QStringLiteral("leadMinutes"));
    m_lead->setRange(ReminderSettings::MinLeadMinutes, ReminderSettings::MaxLeadMinutes);
    m_lead->setKeyboardTracking(false); // "15" is not 1 on its way
    m_lead->setSuffix(tr(" min"));
    m_lead->setAccessibleName(tr("Minutes before a conference"));
    auto *lead = new QLabel(tr("&Before it starts"));
    lead->setBuddy(m_lead);
    auto *hint = new QLabel(tr("Notifies you before a conference starts and when it does. Conferences that "
                               "you have declined or joined, or that have ended, are left out. "
                               "While reminders are on, the application starts in the background when you "
                               "log in, and reminds you after its window is closed."));
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
