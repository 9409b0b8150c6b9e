// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "brokerconnection.h"

#include "mosquitto_p.h"
#include "text/diagnosis.h"
#include "text/fault.h"

#include <QFile>
#include <QLoggingCategory>

#include <algorithm>
#include <climits>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

namespace {

Q_LOGGING_CATEGORY(brokerLog, "velmo.broker")

constexpr int keepAlive = 30; // seconds
constexpr int inFlight = 1000; // messages without an acknowledgement, where the broker allows it
constexpr std::chrono::seconds longestPause{30};
constexpr char droppedTopic[] = "$SYS/broker/publish/messages/dropped";

void warn(const QString& text)
{
    qCWarning(brokerLog, "%s", qUtf8Printable(text));
}

BrokerConnection* connectionOf(void* object)
{
    return static_cast<BrokerConnection*>(object);
}

const char* textOrNull(const QByteArray& text)
{
    return text.isEmpty() ? nullptr : text.constData();
}

// Throws Fault for an error that no attempt to connect will mend.
void require(int result, const QString& what)
{
    if (result != MOSQ_ERR_SUCCESS) {
        throw Fault{QStringLiteral("%1: %2").arg(
            what, QString::fromLocal8Bit(Mosquitto::library().strerror(result)))};
    }
}

class SessionExpiry
{
public:
    explicit SessionExpiry(quint32 seconds)
    {
        Mosquitto::library().property_add_int32(&m_property, MQTT_PROP_SESSION_EXPIRY_INTERVAL,
                                                seconds);
    }
    ~SessionExpiry() { Mosquitto::library().property_free_all(&m_property); }
    SessionExpiry(const SessionExpiry&) = delete;
    SessionExpiry& operator=(const SessionExpiry&) = delete;

    const mosquitto_property* property() const { return m_property; }

private:
    mosquitto_property* m_property = nullptr;
};

} // namespace

BrokerConnection::BrokerConnection(const BrokerOptions& options, const QString& session,
                                   quint32 expiry, Receiver receive)
    : m_options(options)
    , m_expiry(session.isEmpty() ? 0 : expiry)
    , m_receive(std::move(receive))
{
    const Mosquitto& library = Mosquitto::library();
    m_client = library.create(textOrNull(session.toUtf8()), session.isEmpty(), this);
    if (!m_client)
        throw Fault{Diagnosis::tr("session \"%1\": cannot be used").arg(session)};
    library.int_option(m_client, MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V5);
    library.int_option(m_client, MOSQ_OPT_RECEIVE_MAXIMUM, inFlight);
    library.int_option(m_client, MOSQ_OPT_SEND_MAXIMUM, inFlight);
    library.int_option(m_client, MOSQ_OPT_TCP_NODELAY, 1);
    // Nothing is sent but by loop_write(): acknowledgements wait until what they are of is done.
    library.threaded_set(m_client, true);
    if (!options.user.isEmpty()) {
        require(library.username_pw_set(m_client, options.user.toUtf8().constData(),
                                        options.password.toUtf8().constData()),
                options.user);
    }
    if (!options.caFile.isEmpty()) {
        require(library.tls_set(m_client, QFile::encodeName(options.caFile).constData(), nullptr,
                                textOrNull(QFile::encodeName(options.certificateFile)),
                                textOrNull(QFile::encodeName(options.keyFile)), nullptr),
                QStringLiteral("TLS"));
    }
    library.connect_v5_callback_set(
        m_client, [](mosquitto*, void* self, int reason, int, const mosquitto_property*) {
            connectionOf(self)->takeConnect(reason);
        });
    library.message_callback_set(
        m_client, [](mosquitto*, void* self, const mosquitto_message* message) {
            ++connectionOf(self)->m_events;
            const QByteArray payload(static_cast<const char*>(message->payload),
                                     message->payloadlen);
            if (std::strcmp(message->topic, droppedTopic) == 0)
                connectionOf(self)->takeDropped(payload);
            else
                connectionOf(self)->m_receive(QString::fromUtf8(message->topic), payload,
                                              message->retain);
        });
    library.publish_callback_set(m_client, [](mosquitto*, void* self, int /*message*/) {
        ++connectionOf(self)->m_events;
        --connectionOf(self)->m_unacknowledged;
    });
    library.subscribe_callback_set(
        m_client, [](mosquitto*, void* self, int message, int /*count*/, const int* granted) {
            ++connectionOf(self)->m_events;
            if (granted[0] >= 128 && message != connectionOf(self)->m_droppedRequest) {
                connectionOf(self)->m_fault = Diagnosis::tr("The broker refuses a subscription.");
                warn(connectionOf(self)->m_fault);
            }
            connectionOf(self)->takeAnswer();
        });
    library.unsubscribe_callback_set(m_client, [](mosquitto*, void* self, int /*message*/) {
        ++connectionOf(self)->m_events;
        connectionOf(self)->takeAnswer();
    });
}

BrokerConnection::~BrokerConnection()
{
    Mosquitto::library().destroy(m_client);
}

void BrokerConnection::connect()
{
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextAttempt)
        return;
    m_pause = m_pause.count() == 0 ? std::chrono::seconds(1) : std::min(2 * m_pause, longestPause);
    m_nextAttempt = now + m_pause;
    const SessionExpiry expiry(m_expiry);
    const int result =
        Mosquitto::library().connect_bind_v5(m_client, m_options.host.toUtf8().constData(),
                                             m_options.port, keepAlive, nullptr, expiry.property());
    m_isOpen = result == MOSQ_ERR_SUCCESS;
    if (!m_isOpen)
        lose(QString::fromLocal8Bit(Mosquitto::library().strerror(result)));
}

void BrokerConnection::takeConnect(int reason)
{
    ++m_events;
    if (reason != 0) {
        lose(QString::fromLocal8Bit(Mosquitto::library().reason_string(reason)));
        return;
    }
    m_isConnected = true;
    m_fault.clear();
    m_pause = std::chrono::seconds(0);
    m_unanswered = 1; // this one
    // A broker that kept the session has the subscriptions; to repeat them brings what is retained.
    for (const Subscription& subscription : m_subscriptions)
        request(subscription);
    takeAnswer();
}

void BrokerConnection::takeAnswer()
{
    if (--m_unanswered == 0 && !m_isReady) {
        qCInfo(brokerLog, "%s",
               qUtf8Printable(
                   Diagnosis::tr("Connected to %1:%2.").arg(m_options.host).arg(m_options.port)));
        m_isReady = true;
    }
}

void BrokerConnection::lose(const QString& why)
{
    m_isOpen = false;
    m_isConnected = false;
    m_isReady = false;
    if (m_isEnding)
        return;
    const auto pause = std::chrono::duration_cast<std::chrono::seconds>(
        m_nextAttempt - std::chrono::steady_clock::now() + std::chrono::milliseconds(999));
    m_fault = Diagnosis::tr("No connection to %1:%2 (%3)")
                  .arg(m_options.host)
                  .arg(m_options.port)
                  .arg(why);
    warn(Diagnosis::tr("%1; next attempt in %2 s.")
             .arg(m_fault)
             .arg(std::max<qint64>(0, pause.count())));
}

void BrokerConnection::subscribe(const QString& filter, int qos, bool ownToo)
{
    m_subscriptions.push_back({filter, qos, ownToo ? 0 : MQTT_SUB_OPT_NO_LOCAL});
    if (m_isConnected)
        request(m_subscriptions.back());
}

void BrokerConnection::request(const Subscription& subscription)
{
    ++m_unanswered;
    int message = 0;
    require(Mosquitto::library().subscribe_v5(m_client, &message,
                                              subscription.filter.toUtf8().constData(),
                                              subscription.qos, subscription.options, nullptr),
            subscription.filter);
    if (subscription.filter == QLatin1String(droppedTopic))
        m_droppedRequest = message;
}

void BrokerConnection::unsubscribe(const QString& filter)
{
    m_subscriptions.erase(
        std::remove_if(m_subscriptions.begin(), m_subscriptions.end(),
                       [&](const Subscription& known) { return known.filter == filter; }),
        m_subscriptions.end());
    if (!m_isConnected)
        return;
    ++m_unanswered;
    require(Mosquitto::library().unsubscribe(m_client, nullptr, filter.toUtf8().constData()),
            filter);
}

void BrokerConnection::watchDropped()
{
    subscribe(QLatin1String(droppedTopic), 0);
    // The first to be asked for: behind what others bring, its messages might be dropped
    // themselves.
    std::rotate(m_subscriptions.begin(), m_subscriptions.end() - 1, m_subscriptions.end());
}

void BrokerConnection::takeDropped(const QByteArray& count)
{
    bool isNumber = false;
    const qint64 told = count.toLongLong(&isNumber);
    if (!isNumber || told < 0)
        return;
    // One that was started again counts anew.
    if (m_droppedBefore >= 0 && told > m_droppedBefore) {
        m_dropped += told - m_droppedBefore;
        warn(Diagnosis::tr(
            "The broker had no room for %n messages and dropped them. With mosquitto, "
            "max_queued_messages sets the room.",
            nullptr, int(std::min<qint64>(told - m_droppedBefore, INT_MAX))));
    }
    m_droppedBefore = told;
}

void BrokerConnection::publish(const QString& topic, const QByteArray& payload)
{
    const int result =
        Mosquitto::library().publish(m_client, nullptr, topic.toUtf8().constData(),
                                     int(payload.size()), payload.constData(), 1, true);
    // Without a connection it waits for the next one.
    if (result != MOSQ_ERR_SUCCESS && result != MOSQ_ERR_NO_CONN)
        require(result, topic);
    ++m_unacknowledged;
}

void BrokerConnection::read(int most)
{
    if (!m_isOpen) {
        connect();
        return;
    }
    const Mosquitto& library = Mosquitto::library();
    int result = library.loop_misc(m_client);
    const quint64 first = m_events;
    for (quint64 before = m_events - 1; result == MOSQ_ERR_SUCCESS && m_isOpen && before != m_events
         && m_events - first < quint64(most);) {
        before = m_events;
        result = library.loop_read(m_client, 1);
    }
    if (result != MOSQ_ERR_SUCCESS && m_isOpen) // else the broker has said why
        lose(QString::fromLocal8Bit(library.strerror(result)));
}

void BrokerConnection::write()
{
    const Mosquitto& library = Mosquitto::library();
    if (!m_isOpen || !library.want_write(m_client))
        return;
    const int result = library.loop_write(m_client, 1);
    if (result != MOSQ_ERR_SUCCESS)
        lose(QString::fromLocal8Bit(library.strerror(result)));
}

void BrokerConnection::wait(const std::vector<BrokerConnection*>& connections,
                            std::chrono::milliseconds timeout)
{
    const Mosquitto& library = Mosquitto::library();
    std::vector<pollfd> sockets;
    for (const BrokerConnection* connection : connections) {
        if (!connection->m_isOpen)
            continue;
        const bool wantsWrite = library.want_write(connection->m_client);
        const int socket = library.socket(connection->m_client);
        // A broker that gathers what it sends waits for the acknowledgement of what it has sent,
        // which the system would delay by 40 ms. The option lasts for a while only.
        const int now = 1;
        setsockopt(socket, IPPROTO_TCP, TCP_QUICKACK, &now, sizeof now);
        sockets.push_back({socket, short(POLLIN | (wantsWrite ? POLLOUT : 0)), 0});
        // What TLS has read already, poll does not tell of.
        if (!connection->m_options.caFile.isEmpty())
            timeout = std::min(timeout, std::chrono::milliseconds(10));
    }
    ::poll(sockets.data(), sockets.size(), int(timeout.count()));
}

void BrokerConnection::disconnect(bool endSession)
{
    m_isEnding = true;
    if (!m_isOpen)
        return;
    const SessionExpiry expiry(endSession ? 0 : m_expiry);
    Mosquitto::library().disconnect_v5(m_client, 0, expiry.property());
    write();
}
