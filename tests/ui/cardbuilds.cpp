// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"

#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"

#include <lumo/lspinbox.h>

using namespace CardSamples;

void buildEditable(ConferenceMsgStaticWidget &card)
{
    QVector<ContactDetailMsg> list = {conference()};
    card.createInviteConference(list);
}

void buildEdited(ConferenceMsgStaticWidget &card)
{
    buildEditable(card);
    named<LSpinBox>(card, QStringLiteral("人数"))->setValue(7);
}

void buildCreate(ConferenceMsgStaticWidget &card)
{
    card.createMultiplePerson(createdDetail(), true);
}

void buildInvite(ConferenceMsgStaticWidget &card)
{
    card.inviteMultiplePerson(inviteDetail());
}

void buildLimit(ConferenceMsgStaticWidget &card)
{
    card.invitePersonLimit(inviteDetail());
}
