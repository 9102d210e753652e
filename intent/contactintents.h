// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "conferencerecords.h"
#include "ireplyableintent.h"

#include <QObject>

// The plugin's handlers, one source file each. action() forwards to the worker, which a subclass may replace;
// IntentName is the name the understanding service sends.

/// Starts or books a video conference with the named people.
class CreateConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "CREATE_CONFERENCE";

    explicit CreateConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleCreateVideoMeeting(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleCreateVideoMeeting(const CloudIntent &intent);

private:
    ContactCreatedConferenceDetail m_detail;
};

/// Invites the named people to the conference in progress.
class InviteConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "INVITE_CONFERENCE";

    explicit InviteConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleInviteConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleInviteConference(const CloudIntent &intent);

private:
    ContactInviteMemberDetail m_detail;
};

/// Joins a conference by its number. If a password is needed, it arrives in a new intent that repeats the
/// number.
class JoinConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    /// The understanding service's spelling.
    static constexpr const char *IntentName = "ENETR_ID_CONFERENCE";

    explicit JoinConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleJoinVideoMeeting(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleJoinVideoMeeting(const CloudIntent &intent);
};

/// Joins the user's own conference, or offers a choice of several.
class JoinMyConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "ENTER_MY_CONFERENCE";

    explicit JoinMyConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleJoinMyConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleJoinMyConference(const CloudIntent &intent);

private:
    ContactQueryConferenceDetail m_detail;
};

/// Leaves the conference in progress.
class CloseConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "CLOSE_CONFERENCE";

    explicit CloseConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleCloseConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleCloseConference(const CloudIntent &intent);
};

/// Sends a friend request to an account.
class AddBuddyIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "ADD_BUDDY";

    explicit AddBuddyIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleAddBuddy(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleAddBuddy(const CloudIntent &intent);
};

/// Shows the user's conferences on a day, or from now on.
class QueryConferenceIntent : public QObject, public IReplyableIntent
{
    Q_OBJECT

public:
    static constexpr const char *IntentName = "QUERY_CONFERENCE";

    explicit QueryConferenceIntent(QObject *parent = nullptr) : QObject(parent) {}

    int action(const CloudIntent &intent) override { return handleQueryConference(intent); }
    int handleReply(int code, const CloudIntent &intent) override;

    virtual int handleQueryConference(const CloudIntent &intent);

private:
    ContactQueryConferenceDetail m_detail;
};
