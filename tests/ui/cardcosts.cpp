// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardcosts.h"

#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "threadtime.h"

#include <QCoreApplication>
#include <QScrollArea>

using namespace CardSamples;

namespace {

template <QString ContactDetailMsg::*Shown>
void showOne(ConferenceMsgStaticWidget &card, const QString &text)
{
    ContactDetailMsg one = conference();
    one.*Shown = text;
    card.singleInit({one});
}

template <int Count, auto Build>
void showTitleOfFirst(ConferenceMsgStaticWidget &card, const QString &text)
{
    QVector<ContactDetailMsg> list = conferences(Count);
    list[0].title = text;
    (card.*Build)(list);
}

template <QString UserInfo::*Shown>
void showCandidate(ConferenceMsgStaticWidget &card, const QString &text)
{
    ContactInviteMemberDetail detail = CardCosts::people(1, text);
    detail.duplicateUsers[0].users[0].*Shown = text;
    card.inviteMultiplePerson(detail);
}

} // namespace

const std::vector<CardCosts::LongText> &CardCosts::longTexts()
{
    static const std::vector<LongText> texts = {
        {"title", showOne<&ContactDetailMsg::title>},
        {"titles of a list", showTitleOfFirst<4, &ConferenceMsgStaticWidget::multipleInit>},
        {"number", showOne<&ContactDetailMsg::conferenceDialNumber>},
        {"participant",
         [](ConferenceMsgStaticWidget &card, const QString &text) {
             ContactDetailMsg one = conference();
             one.participants = {user(text, {}, {}, {})};
             card.singleInit({one});
         }},
        {"title while editing", showTitleOfFirst<1, &ConferenceMsgStaticWidget::createInviteConference>},
        {"name of a candidate", showCandidate<&UserInfo::remarkName>},
        {"account of a candidate", showCandidate<&UserInfo::account>},
    };
    return texts;
}

QString CardCosts::textOfLength(int characters)
{
    const QString piece = QStringLiteral("周会 <b>");
    return piece.repeated(characters / piece.size());
}

ContactInviteMemberDetail CardCosts::people(int count, const QString &name)
{
    DuplicateUsers group;
    for (int i = 0; i < count; ++i) {
        group.users.append(user(name, QStringLiteral("张三%1").arg(i), QStringLiteral("u%1").arg(i),
                                QStringLiteral("zhangsan%1").arg(i)));
    }
    ContactInviteMemberDetail detail;
    detail.duplicateUsers = {group};
    return detail;
}

double CardCosts::untilPainted(const std::function<void(ConferenceMsgStaticWidget &card)> &build)
{
    QScrollArea host;
    host.setWidgetResizable(true);
    host.resize(372, 480);
    const double start = threadMsecs();
    auto *card = new ConferenceMsgStaticWidget;
    build(*card);
    host.setWidget(card);
    host.grab();
    const double elapsed = threadMsecs() - start;
    // A host's event loop runs before a card is deleted. Otherwise each widget would search all posted events
    // for its own.
    QCoreApplication::sendPostedEvents();
    return elapsed;
}

void CardCosts::warmUp()
{
    untilPainted([](ConferenceMsgStaticWidget &card) {
        card.inviteMultiplePerson(people(3, QStringLiteral("张三")));
    });
}
