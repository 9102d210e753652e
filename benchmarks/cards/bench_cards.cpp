// SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "conferencemsgstaticwidget.h"
#include "plainwidgets.h"
#include "runbenchmarks.h"
#include "threadtime.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>

#include <functional>
#include <memory>

namespace {

constexpr QSize ViewSize(372, 480);
constexpr double MillisecondsPerSecond = 1e3;
constexpr double MicrosecondsPerMillisecond = 1e3;

UserInfo user(int number)
{
    UserInfo user;
    user.name = QStringLiteral("张三");
    user.remarkName = QStringLiteral("张三%1").arg(number);
    user.userId = QStringLiteral("u%1").arg(number);
    user.account = QStringLiteral("zhangsan%1").arg(number);
    return user;
}

QVector<ContactDetailMsg> conferences(int count)
{
    ContactDetailMsg one;
    one.title = QStringLiteral("周例会");
    one.participants = {user(1), user(2)};
    one.duration = 900000;
    one.startTime = Q_INT64_C(1709774400000);
    one.confId = QStringLiteral("c-1");
    one.conferenceDialNumber = QStringLiteral("902 118 34");
    one.participantLimit = 20;
    one.isPayingUser = true;
    return QVector<ContactDetailMsg>(count, one);
}

ContactInviteMemberDetail people(int count)
{
    ContactInviteMemberDetail detail;
    DuplicateUsers group;
    group.name = QStringLiteral("张三");
    for (int i = 0; i < count; ++i) {
        group.users.append(user(i));
    }
    detail.duplicateUsers = {group};
    return detail;
}

using Card = std::unique_ptr<ConferenceMsgStaticWidget>;

Card single()
{
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->singleInit(conferences(1));
    return card;
}

Card list(const QVector<ContactDetailMsg> &found)
{
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->multipleInit(found);
    return card;
}

Card editable()
{
    QVector<ContactDetailMsg> created = conferences(1);
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->createInviteConference(created);
    return card;
}

Card candidates(const ContactInviteMemberDetail &detail)
{
    auto card = std::make_unique<ConferenceMsgStaticWidget>();
    card->inviteMultiplePerson(detail);
    return card;
}

void paint(QWidget &widget, QImage &image)
{
    widget.resize(ViewSize);
    widget.render(&image);
}

// Not inlined: benchmarks/instructions counts what each of them takes.

[[gnu::noinline]] Card paintedCard(const std::function<Card()> &build, QImage &image)
{
    Card card = build();
    paint(*card, image);
    return card;
}

[[gnu::noinline]] std::unique_ptr<QWidget> paintedPlain(const PlainWidgets &plain, QImage &image)
{
    std::unique_ptr<QWidget> widget = plain.build();
    paint(*widget, image);
    return widget;
}

/// Milliseconds until @p painted has returned what it painted; destroying that does not count.
template <typename Painted>
double untilPainted(const Painted &painted)
{
    QImage image(ViewSize, QImage::Format_ARGB32_Premultiplied);
    const double start = threadMsecs();
    const auto widget = painted(image);
    const double elapsed = threadMsecs() - start;
    benchmark::DoNotOptimize(image.bits());
    // As in a host, where the event loop runs before a card is deleted.
    QCoreApplication::sendPostedEvents();
    return elapsed;
}

/// Alternates between the card and the same from Qt's own widgets; the reported time is the card's.
void againstPlainWidgets(benchmark::State &state, const std::function<Card()> &build)
{
    const auto read = [&build] {
        const auto card = build();
        card->grab();
        return PlainWidgets(*card);
    };
    const PlainWidgets plain = read();
    double cardTotal = 0;
    double plainTotal = 0;
    const auto timeCard = [&] {
        cardTotal += untilPainted([&build](QImage &image) { return paintedCard(build, image); });
    };
    bool cardFirst = true;
    for ([[maybe_unused]] auto iteration : state) {
        const double before = cardTotal;
        // Alternate within a pair, too: the second finds the caches warm.
        if (cardFirst) {
            timeCard();
        }
        plainTotal += untilPainted([&plain](QImage &image) { return paintedPlain(plain, image); });
        if (!cardFirst) {
            timeCard();
        }
        cardFirst = !cardFirst;
        state.SetIterationTime((cardTotal - before) / MillisecondsPerSecond);
    }
    const auto iterations = double(state.iterations());
    state.counters["widgets"] = plain.count();
    state.counters["card_us"] = cardTotal / iterations * MicrosecondsPerMillisecond;
    state.counters["plain_us"] = plainTotal / iterations * MicrosecondsPerMillisecond;
    state.counters["ratio"] = cardTotal / plainTotal;
}

void oneConference(benchmark::State &state)
{
    againstPlainWidgets(state, single);
}

void listOfConferences(benchmark::State &state)
{
    const QVector<ContactDetailMsg> found = conferences(int(state.range(0)));
    againstPlainWidgets(state, [&found] { return list(found); });
}

void editableConference(benchmark::State &state)
{
    againstPlainWidgets(state, editable);
}

void candidatesToPick(benchmark::State &state)
{
    const ContactInviteMemberDetail detail = people(int(state.range(0)));
    againstPlainWidgets(state, [&detail] { return candidates(detail); });
}

} // namespace

BENCHMARK(oneConference)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(listOfConferences)->Arg(3)->Arg(4)->Arg(10000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(editableConference)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(candidatesToPick)
    ->Arg(5)
    ->Arg(50)
    ->Arg(1000)
    ->Arg(10000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    return runBenchmarks(argc, argv);
}
