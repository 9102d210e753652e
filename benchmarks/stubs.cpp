// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "stubs.h"

#include <kelvane/kelvaneabilitymanager.h>

#include <QGlobalStatic>

namespace {

Q_GLOBAL_STATIC(QString, preparedAnswer)
bool answersAtOnce = false;

class InstantAbility final : public ContactAbility
{
public:
    void setTimeout(const int & /*msecs*/) override {}

    int request(const QString & /*action*/, const QString & /*parameters*/, QString &answer) override
    {
        answer = *preparedAnswer;
        return 0;
    }
};

} // namespace

// The linker's names for contactsApplicationIsRunning() and KelvaneAbilityManager::createContact() when
// wrapped; see CMakeLists.txt.
extern "C" {

bool __real__Z28contactsApplicationIsRunningv();
ContactAbility *__real__ZN21KelvaneAbilityManager13createContactEv(KelvaneAbilityManager *self);

bool __wrap__Z28contactsApplicationIsRunningv()
{
    return true;
}

ContactAbility *__wrap__ZN21KelvaneAbilityManager13createContactEv(KelvaneAbilityManager *self)
{
    return answersAtOnce ? new InstantAbility : __real__ZN21KelvaneAbilityManager13createContactEv(self);
}
}

void Stubs::answerAtOnce(const QString &answer)
{
    *preparedAnswer = answer;
    answersAtOnce = true;
}

void Stubs::askTheApplication()
{
    answersAtOnce = false;
}

bool Stubs::realProcessCheck()
{
    return __real__Z28contactsApplicationIsRunningv();
}
