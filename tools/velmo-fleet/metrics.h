// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "historyrecorder.h"
#include "service/kiosksummary.h"

#include <prometheus/counter.h>
#include <prometheus/gauge.h>
#include <prometheus/histogram.h>
#include <prometheus/registry.h>

#include <QHash>
#include <QString>

#include <memory>

/// What a worker counts, for Prometheus to fetch. Kiosks, faults and notes are those of its part.
class Metrics
{
public:
    /// @param part "2/4", a label of everything
    explicit Metrics(const QString& part);

    std::shared_ptr<prometheus::Registry> registry() const { return m_registry; }

    /// How many kiosks are in that condition.
    prometheus::Gauge& kiosks(KioskSummary::Condition condition)
    {
        return *m_conditions[condition];
    }

    /// How many kiosks have a fault for that reason.
    prometheus::Gauge& faults(const QString& reason);

    void set(const HistoryRecorder::Status& history);

    /// Messages that were not taken.
    /// @param reason one of few
    prometheus::Counter& refused(const char* reason);

    /// Publishes that the broker did not take.
    /// @param reason the broker's
    prometheus::Counter& publishRefused(const QString& reason);

private:
    std::shared_ptr<prometheus::Registry> m_registry;
    const prometheus::Labels m_part;
    prometheus::Family<prometheus::Counter>& m_received;
    prometheus::Family<prometheus::Counter>& m_refused;
    prometheus::Family<prometheus::Counter>& m_publishRefused;
    prometheus::Family<prometheus::Gauge>& m_kiosks;
    prometheus::Family<prometheus::Gauge>& m_faults;
    prometheus::Family<prometheus::Gauge>& m_notes;
    prometheus::Gauge* m_conditions[KioskSummary::Fine + 1];
    QHash<QString, prometheus::Gauge*> m_reasons;

    prometheus::Gauge& m_historyConnected;
    prometheus::Gauge& m_historyWriter;
    prometheus::Gauge& m_historyWaiting;
    prometheus::Counter& m_historyWritten;
    prometheus::Counter& m_historyLost;

    prometheus::Counter& counter(const char* name, const char* help);
    prometheus::Gauge& gauge(const char* name, const char* help);

public:
    prometheus::Counter& states; ///< received of its part
    prometheus::Counter& wills;
    prometheus::Counter& summariesRead;
    prometheus::Counter& otherParts; ///< states of other parts, which were passed over
    prometheus::Counter& published;
    prometheus::Counter& acknowledged;
    prometheus::Counter& reconnects;
    prometheus::Counter& dropped; ///< messages, as the broker tells
    prometheus::Counter& forgotten; ///< kiosks
    prometheus::Gauge& connected;
    prometheus::Gauge& ready; ///< whether all that was retained is read
    prometheus::Gauge& wrongClocks; ///< kiosks
    prometheus::Gauge& inserted; ///< notes by what became of them
    prometheus::Gauge& rejected;
    prometheus::Gauge& returned;
    prometheus::Histogram& latency; ///< seconds from the state's own time to its summary
};
