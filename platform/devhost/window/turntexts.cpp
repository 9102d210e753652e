// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "turntexts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonDocument>
#include <QStringList>

namespace devhost {
namespace turntexts {

namespace {

/// A longer answer would make the pane slow; its full length is stated.
constexpr int LongestText = 100000;

/// Two spaces instead of Qt's four.
QString narrowed(const QString &json)
{
    QStringList lines = json.split(QLatin1Char('\n'));
    for (QString &line : lines) {
        int spaces = 0;
        while (spaces < line.size() && line.at(spaces) == QLatin1Char(' ')) {
            ++spaces;
        }
        line.remove(0, spaces / 2);
    }
    return lines.join(QLatin1Char('\n'));
}

QString indented(const QString &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    const QString text =
        document.isNull() ? json
                          : narrowed(QString::fromUtf8(document.toJson(QJsonDocument::Indented)).trimmed());
    if (text.size() <= LongestText) {
        return text;
    }
    return text.left(LongestText) +
           QCoreApplication::translate("devhost::turntexts", "\n… (%1 characters in all)").arg(text.size());
}

QString msecs(double value)
{
    return QString::number(value, 'f', value < 10 ? 2 : 0) + QStringLiteral(" ms");
}

} // namespace

QString semantic(const Turn &turn)
{
    return indented(turn.semantic);
}

QString requests(const Turn &turn)
{
    QStringList lines;
    for (const AbilityCall &call : turn.calls) {
        lines << QCoreApplication::translate("devhost::turntexts", "▸ %1    %2    code %3")
                     .arg(call.action, msecs(call.msecs))
                     .arg(call.code)
              << (call.parameters.isEmpty()
                      ? QCoreApplication::translate("devhost::turntexts", "(no parameters)")
                      : indented(call.parameters))
              << QCoreApplication::translate("devhost::turntexts", "◂ answer")
              << (call.answer.isEmpty() ? QCoreApplication::translate("devhost::turntexts", "(none)")
                                        : indented(call.answer))
              << QString();
    }
    if (turn.calls.isEmpty()) {
        lines << QCoreApplication::translate("devhost::turntexts", "(no requests)") << QString();
    }
    lines << QCoreApplication::translate("devhost::turntexts", "understanding   %1")
                 .arg(msecs(turn.understandingMsecs))
          << QCoreApplication::translate("devhost::turntexts", "service()       %1, of which %2 in requests")
                 .arg(msecs(turn.serviceMsecs), msecs(turn.requestMsecs()))
          << QCoreApplication::translate("devhost::turntexts", "reply and card  %1")
                 .arg(msecs(turn.replyMsecs));
    return lines.join(QLatin1Char('\n'));
}

QString reply(const Turn &turn)
{
    QStringList lines;
    if (!turn.failure.isEmpty()) {
        lines << QCoreApplication::translate("devhost::turntexts", "failure   %1").arg(turn.failure);
    }
    lines << QStringLiteral("service() %1").arg(turn.status) << QStringLiteral("code      %1").arg(turn.code)
          << QStringLiteral("display   ") + turn.display << QStringLiteral("speech    ") + turn.speech
          << QStringLiteral("type      %1").arg(turn.type)
          << QStringLiteral("card      ") + (turn.cardClass.isEmpty()
                                                 ? QCoreApplication::translate("devhost::turntexts", "(none)")
                                                 : turn.cardClass)
          << QStringLiteral("end       %1")
                 .arg(turn.endOfSession ? QStringLiteral("true") : QStringLiteral("false"));
    return lines.join(QLatin1Char('\n'));
}

QString log(const Turn &turn)
{
    QStringList lines;
    for (const LogRecord &record : turn.logs) {
        lines << QDateTime::fromMSecsSinceEpoch(record.atMsecs).toString(QStringLiteral("hh:mm:ss.zzz ")) +
                     record.toText();
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace turntexts
} // namespace devhost
