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
 * A mode of the host that reads a line, answers it and reads the next. Lives on the GUI thread and blocks
 * there for input, so it suits programs without a window only.
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

    /// Reads the next line once control is back in the event loop; calls finish() at the end of the input.
    virtual void next() = 0;
    void finish() { Q_EMIT finished(m_status); }
    /// Reports an error in the current line. The program's exit status will tell.
    void complain(const QString &message);

    const Screenshots m_screenshots;
    LineReader m_reader;
    ExitStatus m_status = EverythingAnswered;
    int m_laterReplies = 0;

private:
    std::ostream &m_errors;
};

} // namespace devhost
