// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/kiosksummary.h"

#include <prometheus/counter.h>
#include <prometheus/gauge.h>
#include <prometheus/histogram.h>
#include <prometheus/registry.h>

#include <memory>

/// What a worker counts, for Prometheus to fetch. Kiosks and notes are those that the worker knows
/// of, from its own summaries and from those of the others; the rest is its own.
class Metrics
{
public:
    Metrics();

    std::shared_ptr<prometheus::Registry> registry() const { return m_registry; }

    /// How many kiosks are in that condition.
    prometheus::Gauge& kiosks(KioskSummary::Condition condition)
    {
        return *m_conditions[condition];
    }

private:
    std::shared_ptr<prometheus::Registry> m_registry;

    prometheus::Family<prometheus::Counter>& m_messages;
    prometheus::Family<prometheus::Gauge>& m_kiosks;
    prometheus::Family<prometheus::Gauge>& m_notes;
    prometheus::Gauge* m_conditions[KioskSummary::Fine + 1];

public:
    prometheus::Counter& states; ///< taken
    prometheus::Counter& faults; ///< messages that were no states
    prometheus::Counter& outdated; ///< states older than one that was known
    prometheus::Counter& summaries; ///< published
    prometheus::Counter& corrections; ///< published again over an older one
    prometheus::Gauge& inserted; ///< notes by what became of them
    prometheus::Gauge& rejected;
    prometheus::Gauge& returned;
    prometheus::Histogram& latency; ///< seconds from the state's own time to its summary
};
