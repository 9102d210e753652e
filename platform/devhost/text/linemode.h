// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "exitstatus.h"
#include "linereader.h"
#include "screenshots.h"

#include <QObject>

#include <ostream>

namespace devhost {

/**
 * A mode of the host that reads a line, answers it and reads the next. Lives on the GUI thread and waits
 * there for input, which is for a program without a window.
 */
class LineMode : public QObject
{
    Q_OBJECT

public:
    void start();

Q_SIGNALS:
    void finished(devhost::ExitStatus status);

protected:
    /// The streams must outlive the object.
    LineMode(std::istream &input, std::ostream &errors, const Screenshots &screenshots, QObject *parent);

    /// Reads on, once the event loop is back; finish() when there is no more.
    virtual void next() = 0;
    void finish() { Q_EMIT finished(m_status); }
    /// Tells what is wrong with the current line. The program then ends with a status that says so.
    void complain(const QString &message);

    const Screenshots m_screenshots;
    LineReader m_reader;
    ExitStatus m_status = EverythingAnswered;
    int m_laterReplies = 0;

private:
    std::ostream &m_errors;
};

} // namespace devhost
