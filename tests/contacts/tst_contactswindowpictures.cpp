// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "documentedpictures.h"
#include "windowfixture.h"
#include "windowpictures.h"
#include "windowstates.h"

using Helper = LGuiApplicationHelper;

/// Compares the window in ten states and both themes, at its initial size, with the pictures in
/// docs/pictures/contacts. Writes those pictures if UPDATE_PICTURES is set. tst_windowcontrast measures the
/// same states.
class TestContactsWindowPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }
    void everyState_data();
    void everyState();
};

void TestContactsWindowPictures::everyState_data()
{
    DocumentedPictures::addRows(windowStates());
}

void TestContactsWindowPictures::everyState()
{
    QFETCH(WindowState, state);
    QFETCH(bool, isDark);
    const ChosenTheme theme(isDark ? Helper::DarkType : Helper::LightType);
    WindowFixture fixture;
    QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
    state.arrange(fixture);
    QCoreApplication::sendPostedEvents();
    QTest::qWait(1); // the queued layout
    const QString difference = DocumentedPictures::differenceFromDocuments(
        DocumentedPictures::pictureOf(*fixture.window), QStringLiteral("contacts"), QLatin1String(state.name),
        isDark);
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

QTEST_MAIN(TestContactsWindowPictures)
#include "tst_contactswindowpictures.moc"
