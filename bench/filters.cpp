// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// A chain of four filters over its worst case, against a plain loop over the same list.

#include "benching.h"
#include "filterchain.h"
#include "filterfactory.h"

namespace {

constexpr int eventCount = 10000;

// Neither rejections nor stacked notes: every filter walks to the end.
StatesList session()
{
    DeviceState event;
    event.currentNote = 500;
    StatesList events;
    for (int i = 0; i < eventCount; ++i)
        events.append(event);
    return events;
}

void chain(benchmark::State& bench)
{
    StatesList events = session();
    FilterChain filterChain;
    filterChain.setEvents(&events);
    const QString denom = QStringLiteral("denom");
    const std::pair<const char*, QVariantMap> filtersInUse[] = {
        {filters::ACCEPT_FILTER, {{QStringLiteral("acceptAll"), true}}},
        {filters::ATTEMPTS_FILTER, {{denom, 500}, {QStringLiteral("attempts"), 3}}},
        {filters::DENOM_COUNT_FILTER, {{denom, 500}, {QStringLiteral("count"), 3}}},
        {filters::SESSION_SUM_FILTER, {{QStringLiteral("sessionSum"), 5000}}}};
    for (const auto& [name, params] : filtersInUse)
        filterChain.add(FilterFactory::createFilter(QLatin1String(name), params));
    mustBeEqual(filterChain.validate() == AbstractFilter::FILTER_ACCEPT, "chain");
    const CountAllocations count(bench);
    for (auto _ : bench)
        benchmark::DoNotOptimize(filterChain.validate());
}

bool plainVerdict(const StatesList& events)
{
    int rejections = 0;
    for (auto i = events.size() - 1; i > 0; --i) {
        const State state = events.at(i).state;
        rejections += state == STATE_REJECTED;
        if (rejections >= 3)
            return false;
        if (state == STATE_STACKED)
            break;
    }
    int accepted = 0;
    State later = STATE_BUSY;
    for (auto i = events.size() - 1; i > 0; --i) {
        const DeviceState& event = events.at(i);
        accepted +=
            event.state == STATE_ACCEPTED && later != STATE_ACCEPTED && event.currentNote == 500;
        if (accepted >= 3)
            return false;
        later = event.state;
    }
    return events.last().sessionSum + events.last().currentNote <= 5000;
}

void plainLoop(benchmark::State& bench)
{
    const StatesList events = session();
    for (auto _ : bench)
        benchmark::DoNotOptimize(plainVerdict(events));
}

} // namespace

BENCHMARK(chain)->Name("chain/library");
BENCHMARK(plainLoop)->Name("chain/plain");
