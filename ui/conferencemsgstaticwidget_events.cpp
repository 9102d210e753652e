// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// The part of the card that paints it and hears keyboard and mouse.

#include "conferencemsgstaticwidget.h"

#include "card/cardtheme.h"
#include "card/conferenceeditor.h"

#include <lumo/lsuggestbutton.h>

#include <QComboBox>
#include <QDebug>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr double CornerRadius = 8.0;
constexpr int FocusFrameWidth = 4;

bool isConfirmKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isOpenKey(const QKeyEvent &event)
{
    return isConfirmKey(event) || event.key() == Qt::Key_Space;
}

} // namespace

bool ConferenceMsgStaticWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        m_controlFocusReason = static_cast<QFocusEvent *>(event)->reason();
    }
    if (event->type() == QEvent::KeyPress) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        const QPointer<QObject> alive(watched);
        if (isConfirmKey(key) && !key.isAutoRepeat()) {
            activate(watched);
        }
        // Deleted with the card by whoever heard of the click: there is nobody left to give the event to.
        if (alive.isNull()) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ConferenceMsgStaticWidget::focusInEvent(QFocusEvent *event)
{
    qDebug() << "focusInEvent";
    if (event->reason() == Qt::TabFocusReason) {
        m_focusedByKeyboard = true;
        update();
    }
}

void ConferenceMsgStaticWidget::focusOutEvent(QFocusEvent * /*event*/)
{
    m_focusedByKeyboard = false;
    m_ignoresNextRelease = false;
    update();
}

void ConferenceMsgStaticWidget::keyPressEvent(QKeyEvent *event)
{
    if (!hasFocus() || !isOpenKey(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    // Acted on when the key is let go. Not passed on either: the host's default button is not meant.
}

void ConferenceMsgStaticWidget::keyReleaseEvent(QKeyEvent *event)
{
    if (!hasFocus() || !isOpenKey(*event)) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !isEnabled()) {
        return;
    }
    if (m_ignoresNextRelease) {
        m_ignoresNextRelease = false;
    } else {
        openContactApp();
    }
}

void ConferenceMsgStaticWidget::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (isEnabled()) {
        openContactApp();
    }
}

void ConferenceMsgStaticWidget::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(CardTheme::cardGround());
    if (m_focusedByKeyboard) {
        QPen pen = painter.pen();
        pen.setColor(CardTheme::focus());
        pen.setWidth(FocusFrameWidth);
        painter.setPen(pen);
    } else {
        painter.setPen(Qt::transparent);
    }
    painter.drawRoundedRect(0, 0, width(), height(), CornerRadius, CornerRadius, Qt::AbsoluteSize);
}

void ConferenceMsgStaticWidget::resizeEvent(QResizeEvent * /*event*/)
{
    // The layout does what is to be done.
}

void ConferenceMsgStaticWidget::activate(QObject *control)
{
    if (auto *button = qobject_cast<QPushButton *>(control)) {
        const bool isAction = button == m_cancelButton || button == m_modifyButton ||
                              button == m_confirmButton || button == m_footerButton;
        if (!isAction || !button->isEnabled()) {
            return;
        }
        const QPointer<ConferenceMsgStaticWidget> alive(this);
        Q_EMIT button->clicked();
        // The button may be gone and the focus with the card, which then hears of the key being let go.
        if (!alive.isNull()) {
            m_ignoresNextRelease = hasFocus();
        }
        return;
    }
    auto *box = qobject_cast<QComboBox *>(control);
    if (box != nullptr && (box->windowTitle() == ConferenceEditor::hourBoxTag() ||
                           box->windowTitle() == ConferenceEditor::durationBoxTag())) {
        box->showPopup();
    }
}
