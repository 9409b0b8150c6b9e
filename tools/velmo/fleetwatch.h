// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokerconnection.h"
#include "command.h"
#include "fleet.h"
#include "fleetworkers.h"

#include <chrono>
#include <functional>

/// Follows what the broker has of the kiosks and of the workers.
class FleetWatch
{
public:
    /// Throws Fault for options that cannot be used.
    explicit FleetWatch(const Arguments& arguments);

    /// Until as many summaries have come as the workers tell of, or nothing came for so long as
    /// --wait says. Throws Fault where there is no connection.
    void gather();

    /// For ever.
    /// @param draw is called once a second
    void follow(const std::function<void()>& draw);

    const Fleet& fleet() const { return m_fleet; }

    /// Why there is no connection now; empty while there is one.
    const QString& connectionFault() const { return m_broker.fault(); }

    /// Whether what is missing may still be on its way.
    bool isComing() const;

    /// What may be wrong with what has come, in sentences.
    QStringList faults() const;

private:
    void take(const QString& topic, const QByteArray& text, bool isRetained);
    void work(std::chrono::milliseconds wait);

    const std::chrono::seconds m_pause;
    const KioskTopic m_summaries;
    const KioskTopic m_status;
    BrokerConnection m_broker;
    Fleet m_fleet;
    FleetWorkers m_workers;
    bool m_isFromBefore = false; // the connection was lost since
    std::chrono::steady_clock::time_point m_lastCome; // what the broker had kept, or a status
};
