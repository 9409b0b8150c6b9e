// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// The settings list at 10 and at 1,000 devices; "per element" is what must not grow.

#include "acceptorsettings.h"
#include "benching.h"
#include "settingsmanager.h"

namespace {

QVariantList listOf(int devices)
{
    AcceptorSettings settings;
    settings.setList({});
    for (int i = 0; i < devices; ++i) {
        settings.updateValue(QStringLiteral("device%1").arg(i), QStringLiteral("device"),
                             QStringLiteral("device_id"), QStringLiteral("1"));
    }
    return settings.toList();
}

void perElement(benchmark::State& bench, int elements)
{
    bench.counters["per_element"] = benchmark::Counter(
        elements, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void setList(benchmark::State& bench)
{
    const QVariantList list = listOf(static_cast<int>(bench.range(0)));
    AcceptorSettings settings;
    for (auto _ : bench)
        settings.setList(list);
    perElement(bench, int(list.size()));
}

void toList(benchmark::State& bench)
{
    const QVariantList list = listOf(static_cast<int>(bench.range(0)));
    const AcceptorSettings settings;
    for (auto _ : bench)
        benchmark::DoNotOptimize(settings.toList());
    perElement(bench, int(list.size()));
}

void load(benchmark::State& bench)
{
    const quorbus::ClientSettings client(listOf(static_cast<int>(bench.range(0))));
    acceptorSettings::SettingsManager manager;
    for (auto _ : bench)
        manager.load(client);
    perElement(bench, manager.count());
}

void updateValue(benchmark::State& bench)
{
    listOf(static_cast<int>(bench.range(0)));
    AcceptorSettings settings;
    const QString group = QStringLiteral("device7");
    const QString value = QStringLiteral("even");
    for (auto _ : bench) {
        settings.updateValue(group, AcceptorSettings::HARDWARE_SECTION,
                             AcceptorSettings::PORT_PARITY, value);
    }
    perElement(bench, 1);
}

// The last entry of the list, which is the slowest to find.
void find(benchmark::State& bench)
{
    acceptorSettings::SettingsManager manager;
    manager.load(quorbus::ClientSettings(listOf(static_cast<int>(bench.range(0)))));
    const QVariantMap last = manager.toList().constLast().toMap();
    const QString group = last.value(QStringLiteral("group")).toString();
    const QString key = last.value(QStringLiteral("key")).toString();
    for (auto _ : bench)
        benchmark::DoNotOptimize(manager.find(group, key));
    perElement(bench, manager.count());
}

} // namespace

BENCHMARK(setList)->Name("settings_set_list/library")->Arg(10)->Arg(1000);
BENCHMARK(toList)->Name("settings_to_list/library")->Arg(10)->Arg(1000);
BENCHMARK(load)->Name("settings_load/library")->Arg(10)->Arg(1000);
BENCHMARK(updateValue)->Name("settings_update_value/library")->Arg(10)->Arg(1000);
BENCHMARK(find)->Name("store_find/library")->Arg(10)->Arg(1000);
