// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/currentconference.h"

#include "window/bookaction.h"

#include "actionnames.h"
#include "book/contactsbook.h"
#include "core/clocktext.h"
#include "core/displaytext.h"
#include "core/outcometext.h"

#include <lumo/plaintooltip.h>

#include <QClipboard>
#include <QDateTime>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Radius = 8;

QLabel *makeLabel(const QString &name)
{
    auto *label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    // A long text is elided, it does not make the window wider.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

} // namespace

CurrentConference::CurrentConference(ContactsBook &book, QWidget *parent)
    : QFrame(parent)
    , m_book(book)
    , m_title(makeLabel(QStringLiteral("currentTitle")))
    , m_details(makeLabel(QStringLiteral("currentDetails")))
    , m_copy(new QPushButton(tr("Co&py Number")))
    , m_leave(new QPushButton(tr("&Leave")))
{
    setObjectName(QStringLiteral("current"));
    setAccessibleName(tr("The conference you are in"));
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_copy->setObjectName(QStringLiteral("copyCurrentNumber"));
    m_leave->setObjectName(QStringLiteral("leave"));
    for (QPushButton *button : {m_copy, m_leave}) {
        button->setAutoDefault(false);
    }
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_title);
    texts->addWidget(m_details);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 10, 10, 10);
    layout->setSpacing(10);
    layout->addLayout(texts, 1);
    layout->addWidget(m_copy);
    layout->addWidget(m_leave);
    connect(m_copy, &QPushButton::clicked, this, [this] {
        QGuiApplication::clipboard()->setText(m_number);
        Q_EMIT told(tr("The conference number was copied."));
    });
    connect(m_leave, &QPushButton::clicked, this,
            [this] { Q_EMIT told(outcomeText(performAction(m_book, ActionName::ExitConference, {}))); });
    connect(&m_book, &ContactsBook::changedLately, this, &CurrentConference::reload);
    reload();
}

void CurrentConference::reload()
{
    std::optional<Conference> conference;
    try {
        const std::optional<Person> user = m_book.session().user();
        if (user) {
            conference = m_book.conferences().joinedBy(user->userId, m_book.nowMsecs());
        }
    } catch (const std::exception &error) {
        qWarning("The running conference cannot be shown: %s", error.what());
        m_book.noteFailure(error);
    }
    setVisible(conference.has_value());
    if (!conference) {
        m_number.clear();
        return;
    }
    const auto clock = [today = QDateTime::fromMSecsSinceEpoch(m_book.nowMsecs()).date()](qint64 msecs) {
        return clockText(QDateTime::fromMSecsSinceEpoch(msecs), today);
    };
    m_number = conference->dialNumber;
    m_fullTitle = cleanDisplayText(conference->title);
    m_title->setToolTip(plainToolTip(m_fullTitle));
    m_title->setAccessibleName(m_fullTitle);
    m_details->setText(tr("In a conference · Number %1 · %2 to %3 · People: %4")
                           .arg(m_number, clock(conference->startMsecs), clock(conference->endMsecs()))
                           .arg(conference->participants.size()));
    elide();
}

void CurrentConference::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
}

void CurrentConference::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elide();
}

void CurrentConference::elide()
{
    const int room = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right() -
                     m_copy->sizeHint().width() - m_leave->sizeHint().width() - 2 * layout()->spacing();
    m_title->setText(m_title->fontMetrics().elidedText(m_fullTitle, Qt::ElideRight, qMax(0, room)));
}
