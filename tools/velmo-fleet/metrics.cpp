// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "metrics.h"

using prometheus::BuildCounter;
using prometheus::BuildGauge;
using prometheus::BuildHistogram;

Metrics::Metrics(const QString& part)
    : m_registry(std::make_shared<prometheus::Registry>())
    , m_part{{"part", part.toStdString()}}
    , m_received(BuildCounter()
                     .Name("velmo_fleet_messages_received_total")
                     .Help("Messages from the broker by what they were.")
                     .Labels(m_part)
                     .Register(*m_registry))
    , m_refused(BuildCounter()
                    .Name("velmo_fleet_messages_refused_total")
                    .Help("Messages that were not taken, by reason.")
                    .Labels(m_part)
                    .Register(*m_registry))
    , m_publishRefused(BuildCounter()
                           .Name("velmo_fleet_publish_refusals_total")
                           .Help("Messages that the broker did not take, by its reason.")
                           .Labels(m_part)
                           .Register(*m_registry))
    , m_kiosks(BuildGauge()
                   .Name("velmo_fleet_kiosks")
                   .Help("Kiosks by condition.")
                   .Labels(m_part)
                   .Register(*m_registry))
    , m_faults(BuildGauge()
                   .Name("velmo_fleet_faults")
                   .Help("Kiosks that have a fault, by its reason.")
                   .Labels(m_part)
                   .Register(*m_registry))
    , m_notes(BuildGauge()
                  .Name("velmo_fleet_notes")
                  .Help("Notes and coins that the devices of all kiosks counted.")
                  .Labels(m_part)
                  .Register(*m_registry))
    , m_historyConnected(gauge("velmo_fleet_history_connected", "Whether the history answers."))
    , m_historyWriter(gauge("velmo_fleet_history_writer",
                            "Whether this worker writes the history of its part."))
    , m_historyWaiting(gauge("velmo_fleet_history_waiting", "Changes that are not written yet."))
    , m_historyWritten(counter("velmo_fleet_history_written_total", "Changes that were written."))
    , m_historyLost(
          counter("velmo_fleet_history_lost_total", "Changes for which there was no room."))
    , states(m_received.Add({{"kind", "state"}}))
    , wills(m_received.Add({{"kind", "will"}}))
    , summariesRead(m_received.Add({{"kind", "summary"}}))
    , otherParts(m_received.Add({{"kind", "other_part"}}))
    , published(counter("velmo_fleet_summaries_published_total", "Summaries sent to the broker."))
    , acknowledged(counter("velmo_fleet_summaries_acknowledged_total",
                           "Summaries that the broker has taken."))
    , reconnects(
          counter("velmo_fleet_reconnects_total", "Connections to the broker after the first one."))
    , dropped(counter("velmo_fleet_dropped_messages_total",
                      "Messages of all its clients that the broker had no room for."))
    , forgotten(counter("velmo_fleet_forgotten_total", "Kiosks that were forgotten."))
    , connected(gauge("velmo_fleet_connected", "Whether there is a connection to the broker."))
    , ready(gauge("velmo_fleet_ready", "Whether all that the broker has retained is read."))
    , wrongClocks(gauge("velmo_fleet_wrong_clocks", "Kiosks whose clock is wrong."))
    , inserted(m_notes.Add({{"outcome", "inserted"}}))
    , rejected(m_notes.Add({{"outcome", "rejected"}}))
    , returned(m_notes.Add({{"outcome", "returned"}}))
    , latency(BuildHistogram()
                  .Name("velmo_fleet_latency_seconds")
                  .Help("From a state's own time to when its summary was published.")
                  .Labels(m_part)
                  .Register(*m_registry)
                  .Add({},
                       prometheus::Histogram::BucketBoundaries{0.001, 0.005, 0.01, 0.05, 0.1, 0.5,
                                                               1, 5, 30, 120}))
{
    for (int i = 0; i <= KioskSummary::Fine; ++i) {
        m_conditions[i] =
            &m_kiosks.Add({{"condition", KioskSummary::name(KioskSummary::Condition(i))}});
    }
    // Prometheus sees no rise from nothing.
    for (const char* const reason : {"unreadable", "too_large", "name", "topic"})
        refused(reason);
    for (const char* const reason : {"not_authorized", "packet_too_large"})
        publishRefused(QLatin1String(reason));
    BuildGauge()
        .Name("velmo_fleet_build_info")
        .Help("Always 1.")
        .Labels(m_part)
        .Register(*m_registry)
        .Add({{"version", VERSION}})
        .Set(1);
}

prometheus::Counter& Metrics::counter(const char* name, const char* help)
{
    return BuildCounter().Name(name).Help(help).Labels(m_part).Register(*m_registry).Add({});
}

prometheus::Gauge& Metrics::gauge(const char* name, const char* help)
{
    return BuildGauge().Name(name).Help(help).Labels(m_part).Register(*m_registry).Add({});
}

void Metrics::set(const HistoryRecorder::Status& history)
{
    m_historyConnected.Set(history.fault.isEmpty());
    m_historyWriter.Set(history.isWriter);
    m_historyWaiting.Set(double(history.waiting));
    m_historyWritten.Increment(double(history.written) - m_historyWritten.Value());
    m_historyLost.Increment(double(history.lost) - m_historyLost.Value());
}

prometheus::Gauge& Metrics::faults(const QString& reason)
{
    constexpr int most = 30; // which are written by others
    const QString told =
        m_reasons.size() < most || m_reasons.contains(reason) ? reason : QStringLiteral("other");
    prometheus::Gauge*& known = m_reasons[told];
    if (!known)
        known = &m_faults.Add({{"reason", told.toStdString()}});
    return *known;
}

prometheus::Counter& Metrics::refused(const char* reason)
{
    return m_refused.Add({{"reason", reason}});
}

prometheus::Counter& Metrics::publishRefused(const QString& reason)
{
    return m_publishRefused.Add({{"reason", reason.toStdString()}});
}
