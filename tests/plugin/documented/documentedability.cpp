// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// A second ability library, written from its documentation alone, never from its headers. Answers every
// request with "OK" and one conference, and records the calls in order.

#include <QString>
#include <QStringList>

class Q_DECL_EXPORT ContactAbility
{
public:
    virtual ~ContactAbility() = default;
    virtual void setTimeout(const int &msecs) = 0;
    virtual int request(const QString &action, const QString &parameters, QString &answer) = 0;
};

class Q_DECL_EXPORT KelvaneAbilityManager
{
public:
    static KelvaneAbilityManager *instance();
    ContactAbility *createContact();
};

namespace {

QStringList &calls()
{
    static QStringList list;
    return list;
}

class Answering : public ContactAbility
{
public:
    ~Answering() override { calls().append(QStringLiteral("deleted")); }

    void setTimeout(const int &msecs) override
    {
        // The value depends on whether the application runs.
        calls().append(msecs > 0 ? QStringLiteral("timeout") : QStringLiteral("no timeout"));
    }

    int request(const QString &action, const QString &parameters, QString &answer) override
    {
        calls().append(QStringLiteral("request %1 %2").arg(action, parameters));
        answer = QStringLiteral(R"({"ret":"OK","list":[{"title":"one","confId":"c1"}]})");
        return 0;
    }
};

} // namespace

KelvaneAbilityManager *KelvaneAbilityManager::instance()
{
    static KelvaneAbilityManager manager;
    return &manager;
}

ContactAbility *KelvaneAbilityManager::createContact()
{
    return new Answering;
}

extern "C" Q_DECL_EXPORT QStringList *documentedAbilityCalls()
{
    return &calls();
}
