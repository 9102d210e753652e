// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardsamples.h"
#include "documented/documentedinterfaces.h"
#include "logcapture.h"
#include "scriptedability.h"
#include "signalactiontype.h"
#include "testcolumns.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>
#include <QSpinBox>
#include <QToolTip>
#include <QtTest>

#include <memory>

/**
 * A plugin built against one toolkit, on a desktop with another. This program links no toolkit: the
 * environment names the plugin to load (CONTACT_PLUGIN) and the expected toolkit library (TOOLKIT), and
 * LD_BIND_NOW binds every symbol at once. The loaded plugin builds each card, which is shown, painted in both
 * themes and used.
 */
class TestOtherToolkit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void theOtherToolkitIsLoaded();
    void everyCardIsShownAndPainted_data();
    void everyCardIsShownAndPainted();
    void everyControlCanBeUsed_data();
    void everyControlCanBeUsed();
    void textsOfOthersArePlain_data();
    void textsOfOthersArePlain();

private:
    static void addCards();
    std::unique_ptr<QWidget> cardOf(int action, const QVariant &data) const;

    Documented::Dispatcher *m_dispatcher = nullptr;
    std::unique_ptr<LogCapture> m_log;
};

namespace {

const QString Markup = QStringLiteral("<a href=\"file:///etc/hostname\">周会</a>");

QVector<ContactDetailMsg> manyConferences()
{
    QVector<ContactDetailMsg> list = CardSamples::conferences(5);
    list[0].title = Markup;
    list[0].participants.append(CardSamples::user(Markup, {}, {}, {}));
    list[0].conferenceDialNumber = QStringLiteral("<i>88</i>");
    return list;
}

void setTheme(bool dark)
{
    QApplication::setPalette(dark ? QPalette(QColor(0x2c, 0x2c, 0x2c), QColor(0x19, 0x19, 0x19))
                                  : QPalette(QColor(0xe6, 0xe6, 0xe6), QColor(0xf8, 0xf8, 0xf8)));
}

} // namespace

void TestOtherToolkit::initTestCase()
{
    QVERIFY2(qEnvironmentVariableIsSet("LD_BIND_NOW"), "a missing symbol would show only when it is used");
    QPluginLoader loader(QFile::decodeName(qgetenv("CONTACT_PLUGIN")));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    m_dispatcher = reinterpret_cast<Documented::Plugin *>(loader.instance())->dispatcher;
    QCOMPARE(m_dispatcher->metaObject()->className(), "ContactReplyWidget");
}

void TestOtherToolkit::init()
{
    m_log.reset(); // the old capture ends before the new one begins
    m_log = std::make_unique<LogCapture>(LogCapture::Unexpected::Passes);
    ScriptedAbility::instance().reset();
    for (const char *action : {"Create Conference", "Invite Members", "Update Conference",
                               "Delete Conference", "Open Conference List"}) {
        ScriptedAbility::instance().setAnswer(QString::fromLatin1(action), 0,
                                              QStringLiteral(R"({"ret":"OK"})"));
    }
    setTheme(false);
}

void TestOtherToolkit::theOtherToolkitIsLoaded()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QString toolkit = QFileInfo(QFile::decodeName(qgetenv("TOOLKIT"))).canonicalFilePath();
    QVERIFY(!toolkit.isEmpty());
    QSet<QString> found;
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const int path = line.indexOf('/');
        if (line.endsWith("/liblumo.so")) {
            found.insert(QFile::decodeName(line.mid(path)));
        }
    }
    QCOMPARE(found, QSet<QString>{toolkit});
}

void TestOtherToolkit::addCards()
{
    addColumns<int, QVariant>({"action", "data"});
    ContactCreatedConferenceDetail created = CardSamples::createdDetail();
    created.conferences = manyConferences();
    const QVariant invite = QVariant::fromValue(CardSamples::inviteDetail());
    const QVariant one = QVariant::fromValue(ContactQueryConferenceDetail{manyConferences().mid(0, 1)});
    const QVariant many = QVariant::fromValue(ContactQueryConferenceDetail{manyConferences()});
    QTest::newRow("0: created") << int(Create_Success) << QVariant::fromValue(created);
    QTest::newRow("1: people to create with") << int(Create_Duplicate) << QVariant::fromValue(created);
    QTest::newRow("2: in the way") << int(Create_TimeOverlap) << QVariant::fromValue(created);
    QTest::newRow("3: people to invite") << int(Invite_Duplicate) << invite;
    QTest::newRow("4: more people than fit") << int(Invite_ExceedLimit) << invite;
    QTest::newRow("5: one to join") << int(JoinMy_List) << one;
    QTest::newRow("5: several to join") << int(JoinMy_List) << many;
    QTest::newRow("6: one found") << int(Query_List) << one;
    QTest::newRow("6: several found") << int(Query_List) << many;
}

std::unique_ptr<QWidget> TestOtherToolkit::cardOf(int action, const QVariant &data) const
{
    Documented::Reply reply{};
    void *sent = &reply;
    QMetaObject::invokeMethod(m_dispatcher->interface, "sentActionSignals", Qt::DirectConnection,
                              Q_ARG(int, action), Q_ARG(QVariant, data), QGenericArgument("Reply*", &sent));
    return std::unique_ptr<QWidget>(static_cast<QWidget *>(reply.widget));
}

void TestOtherToolkit::everyCardIsShownAndPainted_data()
{
    addCards();
}

void TestOtherToolkit::everyCardIsShownAndPainted()
{
    QFETCH(int, action);
    QFETCH(QVariant, data);
    const std::unique_ptr<QWidget> card = cardOf(action, data);
    QVERIFY(card != nullptr);
    QCOMPARE(card->metaObject()->className(), "ConferenceMsgStaticWidget");
    card->show();
    QVERIFY(QTest::qWaitForWindowExposed(card.get()));
    QVERIFY(CardSamples::texts(*card).size() > 2);
    setTheme(false);
    const QImage light = card->grab().toImage();
    setTheme(true);
    const QImage dark = card->grab().toImage();
    QVERIFY(light != dark);
    // Narrower than its texts: elided texts take another painting path.
    card->resize(120, card->height());
    QVERIFY(!card->grab().isNull());
    const auto children = card->findChildren<QWidget *>();
    for (QWidget *child : children) {
        QHelpEvent help(QEvent::ToolTip, QPoint(3, 3), child->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(child, &help);
    }
    QToolTip::hideText();
}

void TestOtherToolkit::everyControlCanBeUsed_data()
{
    addCards();
}

void TestOtherToolkit::everyControlCanBeUsed()
{
    QFETCH(int, action);
    QFETCH(QVariant, data);
    QPointer<QWidget> card = cardOf(action, data).release();
    card->show();
    QVERIFY(QTest::qWaitForWindowExposed(card.data()));
    const auto spinBoxes = CardSamples::shown<QSpinBox>(*card);
    for (QSpinBox *box : spinBoxes) {
        QTest::keyClick(box, Qt::Key_Up);
        QTest::keyClick(box, Qt::Key_Down);
    }
    const auto comboBoxes = CardSamples::shown<QComboBox>(*card);
    for (QComboBox *box : comboBoxes) {
        QTest::mouseClick(box, Qt::LeftButton);
        box->hidePopup();
        QTest::keyClick(box, Qt::Key_Down);
        QTest::qWait(0);
    }
    const auto widgets = CardSamples::shown<QWidget>(*card);
    for (QWidget *row : widgets) {
        if (row->inherits("TiTleItem")) {
            QTest::mouseClick(row, Qt::LeftButton);
        }
    }
    // A click may delete other buttons, and the card.
    QVector<QPointer<QPushButton>> buttons;
    const auto shownButtons = CardSamples::shown<QPushButton>(*card);
    for (QPushButton *button : shownButtons) {
        buttons.append(button);
    }
    for (const QPointer<QPushButton> &button : buttons) {
        if (!button.isNull()) {
            QTest::mouseClick(button.data(), Qt::LeftButton);
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }
    if (!card.isNull()) {
        QVERIFY(!card->grab().isNull());
    }
    delete card.data();
    QCOMPARE(ScriptedAbility::instance().alive(), 0);
    if (action == Create_Success || action == Create_Duplicate || action == Invite_Duplicate) {
        QVERIFY(!ScriptedAbility::instance().requests().isEmpty());
    }
}

void TestOtherToolkit::textsOfOthersArePlain_data()
{
    addCards();
}

void TestOtherToolkit::textsOfOthersArePlain()
{
    QFETCH(int, action);
    QFETCH(QVariant, data);
    const std::unique_ptr<QWidget> card = cardOf(action, data);
    const auto labels = card->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->text().isEmpty()) {
            QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
    const bool hasConference =
        action != Create_Duplicate && action != Invite_Duplicate && action != Invite_ExceedLimit;
    QCOMPARE(CardSamples::texts(*card).contains(Markup), hasConference);
}

QTEST_MAIN(TestOtherToolkit)

#include "tst_othertoolkit.moc"
