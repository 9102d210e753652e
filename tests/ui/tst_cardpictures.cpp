// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "cardbuilds.h"
#include "cardsamples.h"
#include "conferencemsgstaticwidget.h"
#include "desktoptheme.h"
#include "fakeprocesstable.h"
#include "logcapture.h"
#include "scriptedability.h"
#include "testcolumns.h"
#include "titleitem.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace CardSamples;

/// Shows each state of a card as a host does, in both themes, and saves a picture of it in the build folder
/// for review. Checks what a program can: the card keeps its width, and fixed texts are not cut off.
class TestCardPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyCard_data();
    void everyCard();
};

namespace {

constexpr int HostWidth = 372;
constexpr int NarrowWidth = 240;
constexpr int WideWidth = 700;

ContactDetailMsg longWinded()
{
    ContactDetailMsg one = conference();
    one.title = QStringLiteral("关于下半年产品路线图与跨部门协作流程优化的第十七次专题讨论会（含预算评审）");
    one.conferenceDialNumber = QStringLiteral("902118340000111122223333444455556666");
    one.participants.clear();
    for (int i = 0; i < 100; ++i) {
        one.participants.append(user(QStringLiteral("参会人%1").arg(i + 1), {}, {}, {}));
    }
    one.status = 1;
    return one;
}

void buildEmpty(ConferenceMsgStaticWidget &) {}
void buildSingle(ConferenceMsgStaticWidget &card)
{
    card.singleInit({conference()});
}
void buildEnded(ConferenceMsgStaticWidget &card)
{
    ContactDetailMsg ended = conference();
    ended.status = 2;
    card.singleInit({ended});
}
void buildSingleLong(ConferenceMsgStaticWidget &card)
{
    card.singleInit({longWinded()});
}
void buildList(ConferenceMsgStaticWidget &card)
{
    card.multipleInit(conferences(3));
}
void buildLongList(ConferenceMsgStaticWidget &card)
{
    QVector<ContactDetailMsg> list = conferences(10000);
    list[1] = longWinded();
    card.multipleInit(list);
}
void buildEditedLong(ConferenceMsgStaticWidget &card)
{
    QVector<ContactDetailMsg> list = {longWinded()};
    list.first().isPayingUser = true;
    list.first().duration = 2 * Hour;
    card.createInviteConference(list);
    named<QComboBox>(card, QStringLiteral("时长"))->setCurrentIndex(6);
    named<QComboBox>(card, QStringLiteral("开始时间"))->setFocus(Qt::TabFocusReason);
}
void buildModified(ConferenceMsgStaticWidget &card)
{
    buildEditedLong(card);
    QTest::keyClick(button(card, QStringLiteral("修 改")), Qt::Key_Return);
}
void buildCandidates(ConferenceMsgStaticWidget &card)
{
    card.createMultiplePerson(createdDetail(), true);
    const auto rows = card.findChildren<TiTleItem *>();
    QTest::mouseClick(rows.at(1), Qt::LeftButton);
    QTest::mouseClick(rows.at(3), Qt::LeftButton);
}
void buildLimitLong(ConferenceMsgStaticWidget &card)
{
    ContactInviteMemberDetail detail = inviteDetail();
    detail.canInviteNum = 1;
    detail.normalUsers.append(user(QStringLiteral("名字长得一行放不下的一位与会者还有更多"),
                                   QStringLiteral("名字长得一行放不下的一位与会者还有更多"), {},
                                   QStringLiteral("a-rather-long-account-name@example.com")));
    card.invitePersonLimit(detail);
}

struct State
{
    const char *name;
    Build build;
    int width = HostWidth;
};

constexpr State States[] = {
    {"empty", buildEmpty},
    {"single", buildSingle},
    {"single-ended", buildEnded},
    {"single-long", buildSingleLong},
    {"single-long-narrow", buildSingleLong, NarrowWidth},
    {"single-long-wide", buildSingleLong, WideWidth},
    {"list", buildList},
    {"list-long", buildLongList},
    {"list-long-narrow", buildLongList, NarrowWidth},
    {"editable", buildEditable},
    {"editable-wide", buildEditable, WideWidth},
    {"edited", buildEditedLong},
    {"edited-modified", buildModified},
    {"candidates", buildCandidates},
    {"candidates-wide", buildCandidates, WideWidth},
    {"limit", buildLimitLong},
};

/// Shows a card the way hosts do: at the top, as wide as the view.
class Host : public QWidget
{
public:
    Host(const State &state, bool isFocused)
    {
        auto *layout = new QVBoxLayout(this);
        auto *card = new ConferenceMsgStaticWidget;
        layout->addWidget(card);
        layout->addStretch();
        setFixedWidth(state.width);
        show();
        state.build(*card);
        if (isFocused) {
            card->setFocus(Qt::TabFocusReason);
        }
        layout->activate();
        resize(state.width, layout->sizeHint().height());
        m_card = card;
    }

    ConferenceMsgStaticWidget *card() const { return m_card; }

private:
    ConferenceMsgStaticWidget *m_card;
};

} // namespace

Q_DECLARE_METATYPE(State)

void TestCardPictures::initTestCase()
{
    QVERIFY(QDir(QStringLiteral(CONTACT_BINARY_DIR)).mkpath(QStringLiteral("pictures")));
}

void TestCardPictures::everyCard_data()
{
    addColumns<State, int>({"state", "theme"});
    for (const State &state : States) {
        QTest::addRow("%s in the light theme", state.name) << state << int(DesktopTheme::Light);
        QTest::addRow("%s in the dark theme", state.name) << state << int(DesktopTheme::Dark);
    }
}

void TestCardPictures::everyCard()
{
    QFETCH(State, state);
    QFETCH(int, theme);
    const LogCapture log;
    DesktopTheme::set(static_cast<DesktopTheme::Theme>(theme));
    ScriptedAbility::instance().reset();
    ScriptedAbility::instance().setAnswer(QStringLiteral("Update Conference"), 0,
                                          QStringLiteral(R"({"ret":"OK"})"));

    Host host(state, false);
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    const QImage image = host.grab().toImage();

    // No content makes the card wider than its host.
    QVERIFY(host.card()->width() <= state.width);
    // Fixed texts fit a card of the planned width.
    if (state.width >= HostWidth) {
        const auto labels = shown<QLabel>(*host.card());
        for (const QLabel *label : labels) {
            if (label->text() == QStringLiteral("参与人") || label->text() == QStringLiteral("进行中")) {
                QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
            }
        }
    }
    const QString path =
        QStringLiteral("%1/pictures/%2-%3-x%4.png")
            .arg(QStringLiteral(CONTACT_BINARY_DIR), QLatin1String(state.name),
                 theme == DesktopTheme::Dark ? QStringLiteral("dark") : QStringLiteral("light"),
                 QString::number(image.devicePixelRatio()));
    QVERIFY(image.save(path));
}

QTEST_MAIN(TestCardPictures)
#include "tst_cardpictures.moc"
