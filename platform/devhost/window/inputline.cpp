// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inputline.h"

#include <QKeyEvent>

namespace devhost {

InputLine::InputLine(QWidget *parent) : QLineEdit(parent)
{
    setAccessibleName(tr("Input"));
    setClearButtonEnabled(true);
    setMaxLength(1 << 20);
    setSecret(false);
}

QString InputLine::takeText()
{
    const QString taken = text().trimmed();
    clear();
    return taken;
}

void InputLine::setSecret(bool isSecret)
{
    setEchoMode(isSecret ? QLineEdit::Password : QLineEdit::Normal);
    setPlaceholderText(isSecret ? tr("Please enter the password") : tr("Say something to the assistant…"));
}

void InputLine::keyPressEvent(QKeyEvent *event)
{
    const bool isSecret = echoMode() == QLineEdit::Password;
    if (event->key() == Qt::Key_Escape) {
        clear();
    } else if (event->key() == Qt::Key_Up && !isSecret) {
        setText(m_history.older(text()));
    } else if (event->key() == Qt::Key_Down && !isSecret) {
        setText(m_history.newer(text()));
    } else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
        Q_EMIT pageWanted(event->key() == Qt::Key_PageUp ? QAbstractSlider::SliderPageStepSub
                                                         : QAbstractSlider::SliderPageStepAdd);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace devhost
