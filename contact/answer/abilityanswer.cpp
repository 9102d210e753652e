// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "answer/abilityanswer.h"

#include "defaultlog.h"
#include "wire/answerwords.h"

#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>

AbilityAnswer::AbilityAnswer(const QString &text, const char *errorText)
{
    // The ability's texts have always been converted to the locale's encoding. One other than UTF-8 loses the
    // characters that it lacks, but never JSON's own, so the outcome survives.
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toLocal8Bit(), &error);
    if (error.error != QJsonParseError::NoError) {
        qCWarning(defaultLog) << errorText << error.error;
        return;
    }
    m_object = document.object();
    m_outcome = m_object.value(AnswerKey::Outcome).toString();
    m_isReadable = true;
}

int AbilityAnswer::code(OutcomeTable table, int otherwise) const
{
    const auto row = std::find_if(table.begin(), table.end(), [this](const OutcomeCode &candidate) {
        return m_outcome == candidate.word;
    });
    return row == table.end() ? otherwise : row->code;
}
