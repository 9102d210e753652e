// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "speaker.h"

#if defined(DEVHOST_HAS_SPEECH)
#include <QTextToSpeech>
#endif

namespace devhost {

Speaker::Speaker(QObject *parent) : QObject(parent) {}

#if defined(DEVHOST_HAS_SPEECH)

bool Speaker::isAvailable()
{
    return !QTextToSpeech::availableEngines().isEmpty();
}

void Speaker::setOn(bool isOn)
{
    m_isOn = isOn && isAvailable();
    if (!m_isOn && m_engine != nullptr) {
        qobject_cast<QTextToSpeech *>(m_engine)->stop();
    }
}

void Speaker::say(const QString &text)
{
    if (!m_isOn || text.isEmpty()) {
        return;
    }
    if (m_engine == nullptr) {
        m_engine = new QTextToSpeech(this);
    }
    qobject_cast<QTextToSpeech *>(m_engine)->say(text);
}

#else

bool Speaker::isAvailable()
{
    return false;
}

void Speaker::setOn(bool) {}

void Speaker::say(const QString &) {}

#endif

} // namespace devhost
