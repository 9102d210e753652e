// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "dynamicregisterintentfactory.h"

#include <utility>

DynamicRegisterIntentFactory::DynamicRegisterIntentFactory(QObject *parent) : QObject(parent) {}

IBusinessIntent *DynamicRegisterIntentFactory::createIntent(const QString &name)
{
    const auto creator = m_creators.constFind(name);
    return creator == m_creators.constEnd() ? nullptr : (*creator)();
}

QStringList DynamicRegisterIntentFactory::intentNames() const
{
    return m_creators.keys();
}

bool DynamicRegisterIntentFactory::registerIntent(const QString &name,
                                                  std::function<IBusinessIntent *()> creator)
{
    if (m_creators.contains(name)) {
        return false;
    }
    m_creators[name] = std::move(creator);
    return true;
}
