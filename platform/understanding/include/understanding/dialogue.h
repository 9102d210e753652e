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
/// If a sentence lacks something (the number of the conference to join, whom to invite), the reply asks for
/// it, and the next sentence may answer. A new command, "算了" or the third useless answer closes the
/// question. Never logs: a sentence may be a password. Use understand() for standalone sentences. Reentrant;
/// use one object per conversation, from one thread.
class Dialogue final
{
public:
    explicit Dialogue(QStringList contactNames = {});
    ~Dialogue();
    Q_DISABLE_COPY(Dialogue)

    /// Sets the known names, in any order. Each is recognised as a whole, whatever words it contains.
    void setContactNames(const QStringList &names);

    /// Returns the semantic JSON for @p sentence, with times resolved against @p now (local time). Always one
    /// JSON object; "shouldEndSession" is true if it holds one intent to carry out, false if it only asks or
    /// says something ("answer", "voice_answer").
    QString turn(const QString &sentence, const QDateTime &now);

    /// Takes the plugin's answer to the last turn. The code that asks for a password (-16014) opens the
    /// question for it if the last command was to join a conference; anything else resets the count of these
    /// questions. @p displayText is what the user saw.
    void noteReply(int code, const QString &displayText);

    /// True while the open question asks for a password: keep the next sentence out of histories and logs.
    bool nextIsSecret() const;

    /// Returns @p sentence as it may be shown and kept, with bullets for a password that is said as such or
    /// answers the open question for one. Call before turn(), which may close that question.
    QString masked(const QString &sentence) const;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace understanding
