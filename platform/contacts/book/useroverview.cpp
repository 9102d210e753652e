// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "book/useroverview.h"

#include "book/contactsbook.h"
#include "core/jsonkeys.h"

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int MostNames = 100;

QJsonObject overviewOf(ContactsBook &book)
{
    const std::optional<Person> user = book.session().user();
    if (!user) {
        return {};
    }
    QJsonObject overview{{QStringLiteral("user"),
                          QJsonObject{{JsonKey::Account, user->account}, {JsonKey::Name, user->name}}}};
    if (const auto conference = book.conferences().joinedBy(user->userId, book.nowMsecs())) {
        overview.insert(QStringLiteral("conference"),
                        QJsonObject{{QStringLiteral("number"), conference->dialNumber},
                                    {JsonKey::Title, conference->title}});
    }
    overview.insert(
        QStringLiteral("names"),
        QJsonArray::fromStringList(book.people().unmistakableContactNames(user->userId, MostNames)));
    return overview;
}

} // namespace

QString userOverview(ContactsBook &book)
{
    try {
        return QString::fromUtf8(QJsonDocument(overviewOf(book)).toJson(QJsonDocument::Compact));
    } catch (const std::exception &error) {
        book.noteFailure(error);
        qCritical() << "Reading how things are failed:" << error.what();
        return {};
    }
}
