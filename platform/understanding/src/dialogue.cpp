// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "understanding/dialogue.h"

#include "understanding/understand.h"

namespace understanding {

class Dialogue::Private
{
public:
    QStringList contactNames;
};

Dialogue::Dialogue(QStringList contactNames) : d(std::make_unique<Private>())
{
    d->contactNames = std::move(contactNames);
}

Dialogue::~Dialogue() = default;

void Dialogue::setContactNames(const QStringList &names)
{
    d->contactNames = names;
}

QString Dialogue::turn(const QString &sentence, const QDateTime &now)
{
    return understand(sentence, now, d->contactNames);
}

void Dialogue::noteReply(int, const QString &) {}

bool Dialogue::nextIsSecret() const
{
    return false;
}

QString Dialogue::masked(const QString &sentence) const
{
    return sentence;
}

} // namespace understanding
