// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// The catalogue, against a switch.

#include "acceptors.h"
#include "benching.h"

namespace {

int plainType(Acceptors::Supported id)
{
    switch (id) {
    case Acceptors::JcmIproId003:
    case Acceptors::EsspPayout:
        return 6;
    case Acceptors::PuloonLcdm2:
        return 4;
    case Acceptors::CCTalk:
        return 2;
    case Acceptors::SmartHopper:
        return 7;
    case Acceptors::Uniteller:
    case Acceptors::PosD200:
        return 3;
    default:
        return 1;
    }
}

template <auto Question>
void ask(benchmark::State& bench)
{
    auto id = Acceptors::PosD200; // the last one of the table
    const CountAllocations count(bench);
    for (auto _ : bench) {
        benchmark::DoNotOptimize(id);
        benchmark::DoNotOptimize(Question(id));
    }
}

} // namespace

BENCHMARK(ask<Acceptors::devName>)->Name("catalogue_name/library");
BENCHMARK(ask<Acceptors::devType>)->Name("catalogue_type/library");
BENCHMARK(ask<Acceptors::canDispense>)->Name("catalogue_dispense/library");
BENCHMARK(ask<plainType>)->Name("catalogue_type/plain");
