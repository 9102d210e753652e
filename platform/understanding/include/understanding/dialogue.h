// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <memory>

namespace understanding {

/// One conversation: turns typed sentences into semantic JSON and keeps at most one open question.
///
/// A sentence that lacks something (the number of the conference to join, whom to invite) is answered with a
/// question, and the next sentence may answer it. A new command, "算了" and the third useless answer close
/// the question. Nothing is ever logged: a sentence may be a password. Use understand() for sentences that
/// stand alone. Reentrant; one object belongs to one thread and one conversation.
class Dialogue final
{
public:
    explicit Dialogue(QStringList contactNames = {});
    ~Dialogue();
    Q_DISABLE_COPY(Dialogue)

    /// The names that are known, in any order. They are recognised as wholes, whatever words they contain.
    void setContactNames(const QStringList &names);

    /// The semantic JSON for @p sentence, with times resolved against @p now (local time).
    /// Always one JSON object; "shouldEndSession" is false where it only asks or says something ("answer",
    /// "voice_answer") and true where it holds one intent to carry out.
    QString turn(const QString &sentence, const QDateTime &now);

    /// Tells what the plugin answered to the last turn. The code that asks for a password (-16014) opens the
    /// question for it, @p displayText being what the user saw; every other code is of no interest here.
    void noteReply(int code, const QString &displayText);

    /// True while the open question is the one for a password: what is typed next belongs neither into a
    /// history nor into a log.
    bool nextIsSecret() const;

    /// @p sentence as it may be shown and kept: a password in it, said as such or as the answer to the open
    /// question for one, is replaced by bullets. Ask before turn(), which may close that question.
    QString masked(const QString &sentence) const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace understanding
