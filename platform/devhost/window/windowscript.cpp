// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowscript.h"

#include "conversation.h"
#include "conversationview.h"
#include "mainwindow.h"

#include <QAbstractButton>
#include <QDir>
#include <QPixmap>
#include <QTimer>

namespace devhost {

namespace {

/// Long enough for a late reply, a layout and a repaint.
constexpr int SettleMsecs = 150;

const QLatin1String Press("@press ");

bool isLeftOut(const QString &line)
{
    return line.isEmpty() || line.startsWith(QLatin1Char('#'));
}

} // namespace

WindowScript::WindowScript(MainWindow &window, Conversation &conversation, std::istream &input,
                           const QString &folder, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_conversation(conversation)
    , m_reader(input)
    , m_folder(folder)
{
}

bool WindowScript::isSaid(const QString &line)
{
    return !isLeftOut(line) && !line.startsWith(Press);
}

void WindowScript::start()
{
    connect(&m_conversation, &Conversation::idle, this, &WindowScript::settle);
    QTimer::singleShot(SettleMsecs, this, &WindowScript::settle);
}

void WindowScript::settle()
{
    QTimer::singleShot(SettleMsecs, this, [this] {
        if (!m_folder.isEmpty()) {
            const QString name = QStringLiteral("window-%1.png").arg(m_pictures++, 2, 10, QLatin1Char('0'));
            m_isFine = m_window.grab().save(QDir(m_folder).filePath(name)) && m_isFine;
        }
        next();
    });
}

void WindowScript::next()
{
    QString line;
    LineReader::Outcome outcome = LineReader::Line;
    do {
        outcome = m_reader.read(line);
        line = line.trimmed();
    } while (outcome != LineReader::End && isLeftOut(line));
    if (outcome == LineReader::End) {
        Q_EMIT finished(m_isFine);
    } else if (line.startsWith(Press)) {
        press(line.mid(Press.size()));
    } else {
        m_window.submit(line);
    }
}

void WindowScript::press(const QString &text)
{
    const auto buttons = m_window.view()->findChildren<QAbstractButton *>();
    QAbstractButton *last = nullptr;
    for (QAbstractButton *button : buttons) {
        if (button->text() == text && button->isEnabled()) {
            last = button;
        }
    }
    if (last != nullptr) {
        last->click();
    } else {
        m_isFine = false;
    }
    settle();
}

} // namespace devhost
