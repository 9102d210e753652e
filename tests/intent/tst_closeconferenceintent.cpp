// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "closeconferenceintent.h"

#include "handlertest.h"

#include <QTest>

namespace {

const char UsualSlots[] = "[]";

class Replaced : public CloseConferenceIntent
{
public:
    using CloseConferenceIntent::CloseConferenceIntent;
    int handleCloseConference(const CloudIntent & /*intent*/) override { return 77; }
};

} // namespace

class TestCloseConferenceIntent : public HandlerTest
{
    Q_OBJECT

public:
    TestCloseConferenceIntent()
        : HandlerTest({make<CloseConferenceIntent>, make<Replaced>, "Exit Conference", UsualSlots})
    {
    }

protected:
    [[nodiscard]] QVector<Outcome> outcomes() const override;
    [[nodiscard]] QVector<Request> requests() const override;
};

QVector<HandlerTest::Outcome> TestCloseConferenceIntent::outcomes() const
{
    return {
        {"left", answers("{'ret':'OK'}"), texts(0, "好的。")},
        {"left, in the other word", answers("{'ret':'Success'}"), texts(0, "好的。")},
        {"none runs", answers("{'ret':'No Conference'}"), texts(-16005, "您没有正在开始的视频会议。")},
        {"not found", answers("{'ret':'Not Found'}"), untouched()},
        {"true", answers("{'ret':'True'}"), untouched()},
    };
}

QVector<HandlerTest::Request> TestCloseConferenceIntent::requests() const
{
    return {
        {"nothing", UsualSlots, ""},
        {"slots are not read", "[{'name':'id','value':'4001'},{'name':'name','value':'a'}]", ""},
    };
}

QTEST_GUILESS_MAIN(TestCloseConferenceIntent)

#include "tst_closeconferenceintent.moc"
