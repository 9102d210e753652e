// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencecardinterface.h"

#include "contactutils.h"
#include "defaultlog.h"
#include "wire/abilityaction.h"
#include "wire/resultcodes.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <exception>
#include <memory>

namespace {

/**
 * Sends one request through a new ability. Returns what @p analyse makes of the answer, or the code of a
 * failed call. Swallows the library's exceptions: the callers are slots and the host's entry points.
 */
template <typename Analyse>
int perform(QLatin1String action, const QString &parameters, Analyse analyse)
{
    try {
        QString answer;
        const std::unique_ptr<ContactAbility> ability(KelvaneAbilityManager::instance()->createContact());
        if (!ability) {
            return ResultCode::CallFailedLast;
        }
        ability->setTimeout(ContactUtils::timeoutInit());
        const int code = ability->request(action, parameters, answer);
        return code != ResultCode::Success ? code : analyse(answer);
    } catch (const std::exception &error) {
        qCWarning(defaultLog) << "The contact ability failed:" << action << error.what();
    } catch (...) {
        qCWarning(defaultLog) << "The contact ability failed:" << action;
    }
    return ResultCode::CallFailedLast;
}

} // namespace

ConferenceCardInterface *ConferenceCardInterface::instance()
{
    static ConferenceCardInterface gateway;
    return &gateway;
}

int ConferenceCardInterface::createVideoConference(const QString &params, const QVector<QString> &memberNames,
                                                   const bool &isSchedule, const qint64 &startMsecs,
                                                   ContactCreatedConferenceDetail &detail)
{
    return perform(AbilityAction::CreateConference, params, [&](const QString &answer) {
        return ContactUtils::analyzeResultContext(answer, memberNames, isSchedule, startMsecs, detail);
    });
}

int ConferenceCardInterface::createVideoConference(const QString &params, const qint64 &startMsecs)
{
    ContactCreatedConferenceDetail dropped;
    return createVideoConference(params, {}, startMsecs > 0, startMsecs, dropped);
}

int ConferenceCardInterface::inviteVideoConference(const QString &params, const QVector<QString> &memberNames,
                                                   ContactInviteMemberDetail &detail)
{
    return perform(AbilityAction::InviteMembers, params, [&](const QString &answer) {
        return ContactUtils::analyzeResultContext(answer, memberNames, detail);
    });
}

int ConferenceCardInterface::inviteVideoConference(const QString &params)
{
    ContactInviteMemberDetail dropped;
    return inviteVideoConference(params, {}, dropped);
}

int ConferenceCardInterface::JoinMyVideoConference(QVector<ContactDetailMsg> &conferences)
{
    return perform(AbilityAction::JoinMyConference, QString(), [&](const QString &answer) {
        return ContactUtils::analyzeJoinReturnContext(answer, conferences);
    });
}

int ConferenceCardInterface::QueryVideoConference(const QString &params, const qint64 &queryStartMsecs,
                                                  QVector<ContactDetailMsg> &conferences)
{
    return perform(AbilityAction::SearchConference, params, [&](const QString &answer) {
        return ContactUtils::analyzeQueryResultContext(answer, queryStartMsecs, conferences);
    });
}

bool ConferenceCardInterface::isInMeetingCheck()
{
    if (!ContactUtils::contactAppIsRunning()) {
        return false;
    }
    bool isInMeeting = false; // also if the call itself fails
    perform(AbilityAction::IsConferenceHost, QString(), [&](const QString &answer) {
        isInMeeting = ContactUtils::analyzeReturnContext(answer) != ResultCode::NoConference;
        return ResultCode::Success;
    });
    return isInMeeting;
}

int ConferenceCardInterface::deleteVideoConference(const QString &confId)
{
    return perform(AbilityAction::DeleteConference, ContactUtils::deleteParamInit(confId),
                   &ContactUtils::analyzeReturnContext);
}

int ConferenceCardInterface::addBuddy(const QString &name)
{
    return perform(AbilityAction::AddFriends, ContactUtils::addbuddyParamInit(name),
                   &ContactUtils::analyzeReturnContext);
}

int ConferenceCardInterface::closeVideoConference()
{
    return perform(AbilityAction::ExitConference, QString(), &ContactUtils::analyzeReturnContext);
}

int ConferenceCardInterface::openConferenceList()
{
    return perform(AbilityAction::OpenConferenceList, QString(), &ContactUtils::analyzeReturnContext);
}

int ConferenceCardInterface::UpdateVideoConference(const QString &params)
{
    return perform(AbilityAction::UpdateConference, params, [](const QString &answer) {
        ContactCreatedConferenceDetail dropped;
        return ContactUtils::analyzeUpdateReturnContext(answer, dropped);
    });
}

int ConferenceCardInterface::JoinVideoConference(const QString &confId, const QString &password)
{
    return perform(AbilityAction::JoinConference, ContactUtils::joinParamInit(confId, password),
                   [](const QString &answer) {
                       QVector<ContactDetailMsg> dropped;
                       return ContactUtils::analyzeJoinReturnContext(answer, dropped);
                   });
}

void ConferenceCardInterface::noticeSentActionSignals(const int &actionType, const QVariant &payload,
                                                      Reply *reply)
{
    qCDebug(defaultLog) << "Signals: ActionType" << actionType;
    Q_EMIT sentActionSignals(actionType, payload, reply);
}
