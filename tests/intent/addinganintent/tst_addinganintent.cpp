// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "contactintents.h"
#include "dynamicregisterintentfactory.h"

#include <QTest>

#include <memory>

namespace {

/// Registers the handler with the row shown on the page.
class PageFactory : public DynamicRegisterIntentFactory
{
public:
    PageFactory()
    {
#include "intent_contactintentfactory.cpp"
    }
};

} // namespace

/// Follows docs/adding-an-intent.md: its files build as shown, and its row creates the handler.
class TestAddingAnIntent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRowMakesTheHandler()
    {
        PageFactory factory;
        const std::unique_ptr<IBusinessIntent> handler(
            factory.createIntent(QStringLiteral("DELETE_CONFERENCE")));
        QVERIFY(dynamic_cast<DeleteConferenceIntent *>(handler.get()) != nullptr);
    }
};

QTEST_GUILESS_MAIN(TestAddingAnIntent)

#include "tst_addinganintent.moc"
