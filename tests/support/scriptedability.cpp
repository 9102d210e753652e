// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "scriptedability.h"

#include <QTest>

#include <dlfcn.h>

namespace {

ScriptedAbility *resolve()
{
    // By name, so that it is the library that the code under test loads, even if that is a plugin whose
    // libraries are not in the global scope.
    void *library = dlopen("libkelvane-system-ability.so", RTLD_NOW);
    void *entry = library == nullptr ? nullptr : dlsym(library, "scriptedAbilityControls");
    if (entry == nullptr) {
        qFatal("The scripted ability library is not loaded; run this test with SCRIPTED_ABILITY.");
    }
    return reinterpret_cast<ScriptedAbility *(*)()>(entry)();
}

} // namespace

ScriptedAbility &ScriptedAbility::instance()
{
    static ScriptedAbility *controls = resolve();
    return *controls;
}

QVector<AbilityEvent> ScriptedAbility::requests() const
{
    QVector<AbilityEvent> result;
    const auto all = events();
    for (const AbilityEvent &event : all) {
        if (event.kind == AbilityEvent::Requested) {
            result.append(event);
        }
    }
    return result;
}

QStringList ScriptedAbility::actions() const
{
    QStringList result;
    const auto all = requests();
    for (const AbilityEvent &request : all) {
        result.append(request.action);
    }
    return result;
}

AbilityEvent ScriptedAbility::onlyRequest() const
{
    const QVector<AbilityEvent> all = requests();
    if (all.size() != 1) {
        QTest::qFail(qPrintable(QStringLiteral("one request was expected, there were: ") +
                                actions().join(QStringLiteral(", "))),
                     __FILE__, __LINE__);
        return {};
    }
    return all.first();
}
