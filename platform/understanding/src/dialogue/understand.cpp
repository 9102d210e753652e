// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "understanding/understand.h"

#include "dialogue/answers.h"
#include "dialogue/semanticwriter.h"
#include "meaning/interpreter.h"
#include "words/contactindex.h"

namespace understanding {

QString understand(const QString &sentence, const QDateTime &now, const QStringList &contactNames)
{
    const Outcome outcome = interpret(sentence, now, ContactIndex(contactNames)).outcome;
    return outcome.isCommand() ? commandJson(outcome) : answerJson(answerText(outcome, now.date()));
}

} // namespace understanding
