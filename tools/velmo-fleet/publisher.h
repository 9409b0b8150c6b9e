// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokerconnection.h"
#include "kiosks.h"
#include "kiosktopic.h"
#include "loglimit.h"
#include "metrics.h"

#include <QHash>
#include <QString>

#include <chrono>
#include <deque>

/// Sends the summaries of kiosks to the broker, the newest of each, and sees to it that the broker
/// takes them: what it refuses is told, and tried again after a minute.
class Publisher
{
public:
    /// @param part of the topics
    Publisher(const KioskTopic& summaries, int part, Kiosks& kiosks, BrokerConnection& broker,
              Metrics& metrics, LogLimit& log);

    /// There is a new connection: nothing is known of what the broker has. What was to be sent is
    /// to be added again, unless the broker has it; only what is taken out still waits.
    void reset();

    /// Whether the broker has not acknowledged the summary that it was sent last.
    bool isUnderWay(const Kiosk& kiosk) const { return m_sent.contains(kiosk.sent); }

    /// The kiosk's summary is to be sent, unless the broker has it.
    void add(const QString& name, Kiosk& kiosk);

    /// The kiosk is no longer one of the fleet: its summary is to go.
    void takeOut(const QString& name);

    /// Sends as much as the broker may have in hand.
    void send();

    /// @return whether the message was sent by this one
    bool acknowledge(int message, const QString& refusal);

    /// Tries those again whose time has come.
    void retry();

    /// What the broker refuses, in words; empty for nothing.
    QString fault() const;

private:
    using Clock = std::chrono::steady_clock;

    struct Sent
    {
        QString kiosk;
        quint64 hash; // of its summary; 0 where that is taken out
    };

    void send(const QString& name, Kiosk* kiosk);
    void refuse(const QString& name, const QString& refusal);

    const KioskTopic m_topic;
    const int m_part;
    Kiosks& m_kiosks;
    BrokerConnection& m_broker;
    Metrics& m_metrics;
    LogLimit& m_log;
    std::deque<QString> m_waiting; // a name that is not known is taken out
    QHash<int, Sent> m_sent;
    QHash<QString, Clock::time_point> m_refused; // when it is tried again
    QString m_refusal; // why, the last one
};
