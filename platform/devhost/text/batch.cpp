// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "batch.h"

#include "conversation.h"
#include "replyjson.h"

#include <QJsonDocument>

#include <memory>

namespace devhost {

Batch::Batch(PluginHost &host, const Streams &streams, const Screenshots &screenshots, QObject *parent)
    : LineMode(streams.input, streams.errors, screenshots, parent)
    , m_streams(streams)
    , m_runner(host)
{
    connect(&m_runner, &TurnRunner::finished, this, &Batch::answer);
    connect(&host, &PluginHost::repliedLater, this, [this](const Reply &reply) {
        const QString picture = QStringLiteral("line-%1-later-%2")
                                    .arg(m_reader.lineNumber(), 4, 10, QLatin1Char('0'))
                                    .arg(++m_laterReplies);
        m_streams.errors << qUtf8Printable(tr("line %1: later reply: %2")
                                               .arg(m_reader.lineNumber())
                                               .arg(QString::fromUtf8(describe(reply, picture))))
                         << std::endl;
    });
}

void Batch::next()
{
    QString line;
    for (;;) {
        switch (m_reader.read(line)) {
        case LineReader::End:
            finish();
            return;
        case LineReader::TooLong:
            complain(tr("longer than 1 MiB, skipped"));
            continue;
        case LineReader::NotUtf8:
            complain(tr("not UTF-8, skipped"));
            continue;
        case LineReader::Line:
            break;
        }
        if (line.trimmed().isEmpty()) {
            continue;
        }
        QString reason;
        if (isSemantic(line, reason)) {
            break;
        }
        complain(reason);
    }
    m_runner.run(line);
}

bool Batch::isSemantic(const QString &line, QString &reason)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        reason = tr("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
    } else if (!document.isObject()) {
        reason = tr("not a JSON object");
    }
    return reason.isEmpty();
}

void Batch::answer(const TurnResult &result)
{
    if (!result.failure.isEmpty()) {
        complain(result.failure);
    } else {
        if (result.isUnread()) {
            complain(tr("the plugin cannot read this as a semantic (service() answered -100)"));
        }
        const QString picture = QStringLiteral("line-%1").arg(m_reader.lineNumber(), 4, 10, QLatin1Char('0'));
        m_streams.output << describe(result.reply, picture).constData() << std::endl;
    }
    start();
}

QByteArray Batch::describe(const Reply &reply, const QString &pictureName)
{
    const std::unique_ptr<QWidget> card(cardOf(reply));
    if (card == nullptr) {
        return replyJson(reply, nullptr);
    }
    CardNote note;
    note.screenshot = m_screenshots.take(*card, pictureName);
    if (m_screenshots.isOn() && note.screenshot.isEmpty()) {
        complain(tr("the picture of the card could not be written to %1").arg(m_screenshots.folder()));
    }
    note.className = QString::fromLatin1(card->metaObject()->className());
    note.width = card->width();
    note.height = card->height();
    return replyJson(reply, &note);
}

} // namespace devhost
