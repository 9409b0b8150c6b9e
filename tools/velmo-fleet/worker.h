// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokerconnection.h"
#include "kiosks.h"
#include "kiosktopic.h"
#include "metrics.h"

#include <QString>

#include <atomic>
#include <chrono>

struct WorkerOptions
{
    BrokerOptions broker;
    QString name; ///< of its session at the broker
    QString group; ///< of the workers that share the states
    quint32 expiry = 0; ///< seconds that the broker keeps states for it while it is away
    KioskTopic states;
    KioskTopic summaries;
    KioskTopic wills; ///< a message there says that the kiosk is gone
    std::chrono::seconds silence{0}; ///< after which a kiosk is told of as silent; 0 for never
    bool isRetiring = false; ///< it takes what waits for it, and no more
};

/// Makes summaries of states. A state is acknowledged when the broker has acknowledged its summary,
/// so that nothing is lost whenever the worker dies: what was not acknowledged, the broker gives
/// again.
///
/// The members of a group do not get the states of a kiosk in order, so each sees the summaries of
/// all: whoever sees one that is older than what it knows publishes the newer one again.
class Worker
{
public:
    /// Throws Fault as BrokerConnection and Metrics do.
    Worker(const WorkerOptions& options, Metrics& metrics);

    /// Works until it is told to stop, or has retired; then all that was in hand is done.
    void run(const std::atomic<bool>& isStopped);

    QByteArray json(bool all) const { return m_kiosks.json(all); }

private:
    void takeState(const QString& topic, const QByteArray& text);
    void takeSummary(const QString& topic, const QByteArray& text);
    void tellSilent(const QString& kiosk, const QString& reason);
    void publish(const QString& kiosk, const KioskSummary& summary);
    void finishSummaries(const std::atomic<bool>& isStopped);
    bool hasRetired();

    const WorkerOptions m_options;
    Metrics& m_metrics;
    Kiosks m_kiosks;
    StateWriter m_writer;
    BrokerConnection m_summaries; // out to the broker, and those of the others in
    BrokerConnection m_states; // in; acknowledged by its write()
    Kiosks::Clock::time_point m_lastState = Kiosks::Clock::now();
    bool m_isUnsubscribed = false; // of one that retires
};
