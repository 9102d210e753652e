// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "iintentfactory.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <functional>

/**
 * A factory that knows the handlers registered with it. Register everything before the first request:
 * createIntent() is called on worker threads and takes no lock, because nothing writes by then.
 */
class DynamicRegisterIntentFactory : public QObject, public IIntentFactory
{
    Q_OBJECT

public:
    explicit DynamicRegisterIntentFactory(QObject *parent = nullptr);

    /// Names are matched exactly, case included.
    IBusinessIntent *createIntent(const QString &name) override;

    /// The names of all registered intents, sorted.
    [[nodiscard]] QStringList intentNames() const;

    /// False when @p name is taken: the first registration wins.
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
