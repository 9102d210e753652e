// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "window/requestbar.h"

#include "book/contactsbook.h"
#include "core/displaytext.h"
#include "core/outcome.h"
#include "core/outcometext.h"
#include "window/persontexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int MostCounted = 100;

QString textFor(const Person &asker, int others)
{
    const QString text = RequestBar::tr("%1 (%2) wants to be your friend.")
                             .arg(cleanDisplayText(asker.shownName()), cleanDisplayText(asker.account));
    return others == 0 ? text : RequestBar::tr("%1 Further requests: %2.").arg(text, QString::number(others));
}

} // namespace

RequestBar::RequestBar(ContactsBook &book, QWidget *parent)
    : QWidget(parent)
    , m_book(book)
    , m_requests(book)
    , m_text(new QLabel)
    , m_accept(new QPushButton(tr("Acce&pt")))
    , m_decline(new QPushButton(tr("&Decline")))
{
    setObjectName(QStringLiteral("requests"));
    m_text->setObjectName(QStringLiteral("requestText"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_accept->setObjectName(QStringLiteral("acceptRequest"));
    m_accept->setAutoDefault(false);
    m_decline->setObjectName(QStringLiteral("declineRequest"));
    m_decline->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_accept);
    layout->addWidget(m_decline);
    connect(m_accept, &QPushButton::clicked, this,
            [this] { answer(&FriendRequests::accept, tr("You are friends now.")); });
    connect(m_decline, &QPushButton::clicked, this,
            [this] { answer(&FriendRequests::decline, tr("The friend request was declined.")); });
    connect(&m_book, &ContactsBook::changedLately, this, &RequestBar::reload);
    reload();
}

QWidget *RequestBar::lastControl() const
{
    return m_decline;
}

void RequestBar::reload()
{
    QVector<Person> waiting;
    try {
        waiting = m_requests.waiting(MostCounted);
    } catch (const std::exception &error) {
        qWarning("Friend requests cannot be shown: %s", error.what());
        m_book.noteFailure(error);
    }
    // Whoever is shown stays: a new request must not take their place under the pointer.
    const auto shown = std::find_if(waiting.cbegin(), waiting.cend(),
                                    [this](const Person &asker) { return asker.account == m_account; });
    const Person asker =
        shown != waiting.cend() ? *shown : (waiting.isEmpty() ? Person() : waiting.constFirst());
    m_account = asker.account;
    const QString text = waiting.isEmpty() ? QString() : textFor(asker, waiting.size() - 1);
    m_text->setText(text);
    // A reader that comes to a button by Tab has not read the text beside it.
    m_accept->setAccessibleDescription(text);
    m_decline->setAccessibleDescription(text);
    setHidden(waiting.isEmpty());
}

void RequestBar::answer(QString (FriendRequests::*reply)(const QString &), const QString &success)
{
    const QString word = (m_requests.*reply)(m_account);
    // At once: a second click is for the next one.
    reload();
    Q_EMIT told(word == Outcome::Ok ? success : outcomeText(word));
}
