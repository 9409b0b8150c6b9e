// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "devicestate.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

/// Registers the benchmarks of every record's maps.
void measureRecords();

/// Two roads must lead to the same before their times are compared.
inline void mustBeEqual(bool equal, const char* what)
{
    if (equal)
        return;
    std::fprintf(stderr, "bench: not the same result: %s\n", what);
    std::exit(1);
}

/// Heap allocations of this program since it began.
long allocations();

/// Counts the heap allocations of each run of a benchmark.
class CountAllocations
{
public:
    explicit CountAllocations(benchmark::State& state)
        : m_state(state)
        , m_before(allocations())
    {
    }

    ~CountAllocations()
    {
        m_state.counters["allocations"] = benchmark::Counter(double(allocations() - m_before),
                                                             benchmark::Counter::kAvgIterations);
    }

private:
    benchmark::State& m_state;
    const long m_before;
};

inline DeviceState sampleState(int rows)
{
    DeviceState state;
    state.enabled = state.online = true;
    state.state = STATE_ACCEPTING;
    state.threadId = 3;
    state.deviceId = 7;
    state.sessionSum = 1500;
    state.currentNote = 500;
    state.stateText = QStringLiteral("note in transport");
    state.idString = QStringLiteral("IPRO-RC-100 041802");
    for (int i = 0; i < rows; ++i) {
        state.dispenserRegistry.append({3, 7, static_cast<quint16>(i), Acceptors::Bill,
                                        QStringLiteral("RUB"), 100U * unsigned(i + 1), 24, 1});
    }
    return state;
}

inline QString plainJson(const QVariantMap& map)
{
    const QJsonDocument document(QJsonObject::fromVariantMap(map));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}
