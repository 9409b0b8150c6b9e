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
/// from one second to ten. Each begins anew: the broker keeps nothing for it meanwhile, and what
/// it had not acknowledged is given up. It runs on the caller's thread, in read() and write(), and
/// belongs to it.
class BrokerConnection
{
public:
    /// @param payload lasts until it returns: a copy of it shares its bytes
    /// @param isRetained whether the broker had kept it from before the subscription
    using Receiver =
        std::function<void(const QString& topic, const QByteArray& payload, bool isRetained)>;

    /// @param message as publish() returned it
    /// @param refusal why the broker does not take it, as "not_authorized"; empty when it has it
    using Acknowledged = std::function<void(int message, const QString& refusal)>;

    static constexpr char tooLarge[] = "packet_too_large"; ///< a refusal

    /// @param receive is given each message that arrives. Throws Fault when libmosquitto is missing
    /// or an option cannot be used.
    BrokerConnection(const BrokerOptions& options, Receiver receive);
    ~BrokerConnection();
    BrokerConnection(const BrokerConnection&) = delete;
    BrokerConnection& operator=(const BrokerConnection&) = delete;

    /// What the broker is to publish, retained, when the connection breaks: before the first one.
    /// @param expiry for how many seconds it keeps that
    void setWill(const QString& topic, const QByteArray& payload, quint32 expiry);

    void setAcknowledged(Acknowledged acknowledged) { m_acknowledged = std::move(acknowledged); }

    /// Subscribes now, or once it is connected, and again after every loss of the connection. To do
    /// so once more brings what is retained once more.
    /// @param qos 0, or 1 for messages that are given again until they are acknowledged
    /// @param ownToo whether what this connection publishes itself comes back
    void subscribe(const QString& filter, int qos, bool ownToo = true);
    /// Until it subscribes once more, or there is another connection.
    void unsubscribe(const QString& filter);

    /// Counts the messages that the broker has no room for, of all its clients, and warns when they
    /// grow in number. Mosquitto tells it every ten seconds; of other brokers it is not known.
    void watchDropped();

    /// Publishes with QoS 1, retained.
    /// @param expiry for how many seconds the broker keeps it; 0 for ever
    /// @return a number above 0, by which its acknowledgement is told; 0 for what is given up:
    /// without a connection, or when no broker would take the topic; tooBig when the broker has
    /// said that it takes nothing of that size
    int publish(const QString& topic, const QByteArray& payload, quint32 expiry = 0);
    static constexpr int tooBig = -1;

    bool isConnected() const { return m_isConnected; }

    /// How many connections there were, this one included.
    int connections() const { return m_connections; }

    /// Why there is no connection or subscription, in words; empty when there is one, or has not
    /// been one yet.
    const QString& fault() const { return m_fault; }

    /// Messages that the broker has dropped since it first told, whoever they were for.
    qint64 dropped() const { return m_dropped; }

    /// How many published messages the broker has not acknowledged.
    int unacknowledged() const { return m_unacknowledged; }

    /// Whether the broker has answered every subscription.
    bool isSubscribed() const { return m_isConnected && m_unanswered == 0; }

    /// Connects when it is time to, reads what has arrived, and keeps the connection alive. What is
    /// to be sent, the acknowledgements of the messages read included, waits for write().
    /// @param most about how many messages to read
    /// @return whether there may be more
    bool read(int most);

    /// Sends what waits.
    void write();

    /// Waits until there is something to read, or room for what it wants to write; without a
    /// connection for all of the time.
    void wait(std::chrono::milliseconds timeout);

    /// Ends the connection in order, with what waits: no will is published.
    void disconnect();

private:
    struct Subscription
    {
        QString filter;
        int qos;
        int options; // as MQTT 5 has them
    };

    void create();
    void connect();
    void request(const Subscription& subscription);
    void lose(const QString& why);
    void takeConnect(int reason);
    void takeAnswer();
    void takeDropped(const QByteArray& count);

    const BrokerOptions m_options;
    const Receiver m_receive;
    Acknowledged m_acknowledged;
    QString m_willTopic; // empty without a will
    QByteArray m_will;
    quint32 m_willExpiry = 0;
    mosquitto* m_client = nullptr;
    QString m_fault;
    bool m_isOpen = false; // the socket, perhaps before the broker has answered
    bool m_isConnected = false;
    bool m_isEnding = false;
    int m_connections = 0;
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
