// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "metrics.h"

using prometheus::BuildCounter;
using prometheus::BuildGauge;
using prometheus::BuildHistogram;

Metrics::Metrics()
    : m_registry(std::make_shared<prometheus::Registry>())
    , m_messages(BuildCounter()
                     .Name("velmo_fleet_messages_total")
                     .Help("Messages by what they were.")
                     .Register(*m_registry))
    , m_kiosks(BuildGauge()
                   .Name("velmo_fleet_kiosks")
                   .Help("Kiosks by condition.")
                   .Register(*m_registry))
    , m_notes(BuildGauge()
                  .Name("velmo_fleet_notes")
                  .Help("Notes and coins that the devices of all kiosks counted.")
                  .Register(*m_registry))
    , states(m_messages.Add({{"kind", "state"}}))
    , faults(m_messages.Add({{"kind", "fault"}}))
    , outdated(m_messages.Add({{"kind", "outdated"}}))
    , summaries(m_messages.Add({{"kind", "summary"}}))
    , corrections(m_messages.Add({{"kind", "correction"}}))
    , inserted(m_notes.Add({{"outcome", "inserted"}}))
    , rejected(m_notes.Add({{"outcome", "rejected"}}))
    , returned(m_notes.Add({{"outcome", "returned"}}))
    , latency(BuildHistogram()
                  .Name("velmo_fleet_latency_seconds")
                  .Help("From a state's own time to when its summary was published.")
                  .Register(*m_registry)
                  .Add({},
                       prometheus::Histogram::BucketBoundaries{0.001, 0.005, 0.01, 0.05, 0.1, 0.5,
                                                               1, 5, 30, 120}))
{
    for (int i = 0; i <= KioskSummary::Fine; ++i)
        m_conditions[i] =
            &m_kiosks.Add({{"condition", KioskSummary::name(KioskSummary::Condition(i))}});
}
