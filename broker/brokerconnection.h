// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokeroptions.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <vector>

struct mosquitto;

/// A connection to a broker, MQTT 5, that comes back by itself: the pauses between attempts grow
/// from one second to thirty. It runs on the caller's thread, in read() and write(), and belongs to
/// it.
class BrokerConnection
{
public:
    /// @param isRetained whether the broker had kept it from before the subscription
    using Receiver =
        std::function<void(const QString& topic, const QByteArray& payload, bool isRetained)>;

    /// @param session the name that the broker knows the session by; empty for one that ends with
    /// the connection
    /// @param expiry for how many seconds the broker keeps a named session without a connection
    /// @param receive is given each message that arrives. Throws Fault when libmosquitto is missing
    /// or an option cannot be used.
    BrokerConnection(const BrokerOptions& options, const QString& session, quint32 expiry,
                     Receiver receive);
    ~BrokerConnection();
    BrokerConnection(const BrokerConnection&) = delete;
    BrokerConnection& operator=(const BrokerConnection&) = delete;

    /// Subscribes now, or once it is connected, and again after every loss of the connection.
    /// @param qos 0, or 1 for messages that are given again until they are acknowledged
    /// @param ownToo whether what this connection publishes itself comes back
    void subscribe(const QString& filter, int qos, bool ownToo = true);
    void unsubscribe(const QString& filter);

    /// Counts the messages that the broker has no room for, of all its clients, and warns when they
    /// grow in number. Mosquitto tells it every ten seconds; of other brokers it is not known.
    void watchDropped();

    /// Publishes with QoS 1, retained; kept and repeated until the broker has it.
    void publish(const QString& topic, const QByteArray& payload);

    bool isConnected() const { return m_isConnected; }

    /// Why there is no connection or subscription, in words; empty when there is one, or has not
    /// been one yet.
    const QString& fault() const { return m_fault; }

    /// Whether the broker has told how many messages it dropped.
    bool tellsDropped() const { return m_droppedBefore >= 0; }

    /// Messages that the broker has dropped since it first told, whoever they were for.
    qint64 dropped() const { return m_dropped; }

    /// How many published messages the broker has not acknowledged.
    int unacknowledged() const { return m_unacknowledged; }

    /// Whether the broker has answered every subscription.
    bool isSubscribed() const { return m_isConnected && m_unanswered == 0; }

    /// Connects when it is time to, reads what has arrived, and keeps the connection alive. What is
    /// to be sent, the acknowledgements of the messages read included, waits for write().
    /// @param most about how many messages to read
    void read(int most);

    /// Sends what waits.
    void write();

    /// Waits until one of the connections has something to read, or has room for what it wants to
    /// write. One that is not connected is not waited for.
    static void wait(const std::vector<BrokerConnection*>& connections,
                     std::chrono::milliseconds timeout);

    /// Ends the connection in order, with what waits.
    /// @param endSession whether the broker shall forget a named session
    void disconnect(bool endSession);

private:
    struct Subscription
    {
        QString filter;
        int qos;
        int options; // as MQTT 5 has them
    };

    void connect();
    void request(const Subscription& subscription);
    void lose(const QString& why);
    void takeConnect(int reason);
    void takeAnswer();
    void takeDropped(const QByteArray& count);

    const BrokerOptions m_options;
    const quint32 m_expiry;
    const Receiver m_receive;
    mosquitto* m_client;
    QString m_fault;
    bool m_isOpen = false; // the socket, perhaps before the broker has answered
    bool m_isConnected = false;
    bool m_isEnding = false;
    int m_unacknowledged = 0;
    int m_unanswered = 0; // subscriptions and the ends of some
    bool m_isReady = false; // connected and subscribed, and told so
    quint64 m_events = 0; // so many things arrived
    int m_droppedRequest = 0; // the subscription, whose refusal does not matter
    qint64 m_droppedBefore = -1; // as the broker told last; negative: never
    qint64 m_dropped = 0;
    std::chrono::seconds m_pause{0};
    std::chrono::steady_clock::time_point m_nextAttempt;
    std::vector<Subscription> m_subscriptions;
};
