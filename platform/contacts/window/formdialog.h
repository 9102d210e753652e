// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QDialog>

QT_BEGIN_NAMESPACE
class QFormLayout;
class QPushButton;
class QVBoxLayout;
QT_END_NAMESPACE

class ResultLabel;

/// A form, a line that says what became of it, and buttons: one for what the dialog is for, one to close it.
/// Does not wait: the assistant's requests go on meanwhile. Deletes itself when it is closed.
class FormDialog : public QDialog
{
    Q_OBJECT

Q_SIGNALS:
    /// Something to tell the user, once it is closed.
    void told(const QString &text);

protected:
    FormDialog(const QString &title, int leastWidth, QWidget *parent);

    QFormLayout *form() const { return m_form; }
    ResultLabel *result() const { return m_result; }
    /// Gets the room that the form leaves.
    void addBelowForm(QWidget *widget);
    /// Call it once, last, which makes them last for the tab key. @p act becomes the default button; @p other
    /// leaves the dialog open.
    void addButtons(QPushButton *act, const QString &closeText, QPushButton *other = nullptr);

    /// What @p act of addButtons() does.
    virtual void submit() = 0;

private:
    QVBoxLayout *m_column; ///< children, all of them
    QFormLayout *m_form;
    ResultLabel *m_result;
};
