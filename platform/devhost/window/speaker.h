// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>

namespace devhost {

/**
 * Reads replies aloud where the desktop has a speech engine, and silently does nothing elsewhere. Initially
 * off. The engine is started on first use.
 */
class Speaker final : public QObject
{
    Q_OBJECT

public:
    explicit Speaker(QObject *parent = nullptr);

    static bool isAvailable();
    bool isOn() const { return m_isOn; }
    void setOn(bool isOn);
    void say(const QString &text);

private:
    bool m_isOn = false;
    QObject *m_engine = nullptr; ///< a child; null until it is needed
};

} // namespace devhost
