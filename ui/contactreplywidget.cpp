// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactreplywidget.h"

#include "conferencecardinterface.h"

ContactReplyWidget::ContactReplyWidget(QObject *parent)
    : QObject(parent)
    , m_interface(ConferenceCardInterface::instance())
{
    connect(m_interface, &ConferenceCardInterface::sentActionSignals, this,
            &ContactReplyWidget::slotNoticeAction, Qt::DirectConnection);
}

void ContactReplyWidget::slotNoticeAction(const int & /*actionType*/, const QVariant & /*data*/,
                                          Reply * /*reply*/)
{
}
