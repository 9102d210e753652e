// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "iintentfactory.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>

/**
 * Creates the handlers registered with it. Register everything before the first request: createIntent() runs
 * on worker threads and takes no lock.
 */
class DynamicRegisterIntentFactory : public QObject, public IIntentFactory
{
    Q_OBJECT

public:
    explicit DynamicRegisterIntentFactory(QObject *parent = nullptr);

    /// Names are case-sensitive.
    IBusinessIntent *createIntent(const QString &name) override;

    /// The names of all registered intents, sorted.
    [[nodiscard]] QStringList intentNames() const;

    /// Returns false if @p name is taken: the first registration wins.
    bool registerIntent(const QString &name, std::function<IBusinessIntent *()> creator);

    /// Registers the handler class T under T::IntentName.
    template <typename T>
    int registerIntent()
    {
        return static_cast<int>(registerIntent(QLatin1String(T::IntentName), [] { return new T(nullptr); }));
    }

private:
    QMap<QString, std::function<IBusinessIntent *()>> m_creators;
};
