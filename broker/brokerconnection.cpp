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
#include <utility>

namespace {

Q_LOGGING_CATEGORY(brokerLog, "velmo.broker")

constexpr int keepAlive = 30; // seconds
constexpr int inFlight = 1000; // messages without an acknowledgement, where the broker allows it
constexpr int firstRefusal = 128; // of the reasons that MQTT 5 knows
constexpr std::chrono::seconds longestPause{10};
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

// A property of a message: for how many seconds the broker keeps it.
class Expiry
{
public:
    explicit Expiry(quint32 seconds)
    {
        if (seconds > 0) {
            Mosquitto::library().property_add_int32(&m_property, MQTT_PROP_MESSAGE_EXPIRY_INTERVAL,
                                                    seconds);
        }
    }
    ~Expiry() { Mosquitto::library().property_free_all(&m_property); }
    Expiry(const Expiry&) = delete;
    Expiry& operator=(const Expiry&) = delete;

    const mosquitto_property* property() const { return m_property; }

    // Whoever takes it frees it.
    mosquitto_property* release() { return std::exchange(m_property, nullptr); }

private:
    mosquitto_property* m_property = nullptr;
};

// "Not authorized" as "not_authorized".
QString nameOfReason(int reason)
{
    if (reason == MQTT_RC_PACKET_TOO_LARGE)
        return QLatin1String(BrokerConnection::tooLarge);
    const QString text = QString::fromLatin1(Mosquitto::library().reason_string(reason));
    return text.toLower().remove(QLatin1Char('.')).replace(QLatin1Char(' '), QLatin1Char('_'));
}

} // namespace

BrokerConnection::BrokerConnection(const BrokerOptions& options, Receiver receive)
    : m_options(options)
    , m_receive(std::move(receive))
{
    create();
}

// A new client, which knows nothing of what the one before had in hand.
void BrokerConnection::create()
{
    const Mosquitto& library = Mosquitto::library();
    if (m_client)
        library.destroy(m_client);
    m_unacknowledged = 0;
    m_client = library.create(nullptr, true, this);
    if (!m_client)
        throw Fault{QString::fromLocal8Bit(library.strerror(MOSQ_ERR_NOMEM))};
    library.int_option(m_client, MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V5);
    library.int_option(m_client, MOSQ_OPT_RECEIVE_MAXIMUM, inFlight);
    library.int_option(m_client, MOSQ_OPT_SEND_MAXIMUM, inFlight);
    // Nothing is sent but by loop_write(), in few and large pieces.
    library.threaded_set(m_client, true);
    if (!m_options.user.isEmpty()) {
        require(library.username_pw_set(m_client, m_options.user.toUtf8().constData(),
                                        m_options.password.toUtf8().constData()),
                m_options.user);
    }
    if (!m_options.caFile.isEmpty()) {
        require(library.tls_set(m_client, QFile::encodeName(m_options.caFile).constData(), nullptr,
                                textOrNull(QFile::encodeName(m_options.certificateFile)),
                                textOrNull(QFile::encodeName(m_options.keyFile)), nullptr),
                QStringLiteral("TLS"));
    }
    if (!m_willTopic.isEmpty()) {
        Expiry expiry(m_willExpiry);
        require(library.will_set_v5(m_client, m_willTopic.toUtf8().constData(), int(m_will.size()),
                                    m_will.constData(), 1, true, expiry.release()),
                m_willTopic);
    }
    library.connect_v5_callback_set(
        m_client, [](mosquitto*, void* self, int reason, int, const mosquitto_property*) {
            connectionOf(self)->takeConnect(reason);
        });
    library.message_callback_set(
        m_client, [](mosquitto*, void* self, const mosquitto_message* message) {
            ++connectionOf(self)->m_events;
            const QByteArray payload = QByteArray::fromRawData(
                static_cast<const char*>(message->payload), message->payloadlen);
            if (std::strcmp(message->topic, droppedTopic) == 0)
                connectionOf(self)->takeDropped(payload);
            else
                connectionOf(self)->m_receive(QString::fromUtf8(message->topic), payload,
                                              message->retain);
        });
    library.publish_v5_callback_set(
        m_client, [](mosquitto*, void* self, int message, int reason, const mosquitto_property*) {
            ++connectionOf(self)->m_events;
            --connectionOf(self)->m_unacknowledged;
            if (connectionOf(self)->m_acknowledged) {
                connectionOf(self)->m_acknowledged(
                    message, reason < firstRefusal ? QString() : nameOfReason(reason));
            }
        });
    library.subscribe_callback_set(
        m_client, [](mosquitto*, void* self, int message, int /*count*/, const int* granted) {
            ++connectionOf(self)->m_events;
            if (granted[0] >= firstRefusal && message != connectionOf(self)->m_droppedRequest) {
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

void BrokerConnection::setWill(const QString& topic, const QByteArray& payload, quint32 expiry)
{
    m_willTopic = topic;
    m_will = payload;
    m_willExpiry = expiry;
}

void BrokerConnection::connect()
{
    const auto now = std::chrono::steady_clock::now();
    if (now < m_nextAttempt)
        return;
    m_pause = m_pause.count() == 0 ? std::chrono::seconds(1) : std::min(2 * m_pause, longestPause);
    m_nextAttempt = now + m_pause;
    create();
    const int result = Mosquitto::library().connect_bind_v5(
        m_client, m_options.host.toUtf8().constData(), m_options.port, keepAlive, nullptr, nullptr);
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
    ++m_connections;
    m_fault.clear();
    m_pause = std::chrono::seconds(0);
    m_unanswered = 1; // this one
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
    const Subscription subscription{filter, qos, ownToo ? 0 : MQTT_SUB_OPT_NO_LOCAL};
    const bool isNew =
        std::none_of(m_subscriptions.begin(), m_subscriptions.end(),
                     [&](const Subscription& known) { return known.filter == filter; });
    if (isNew)
        m_subscriptions.push_back(subscription);
    if (m_isConnected)
        request(subscription);
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

int BrokerConnection::publish(const QString& topic, const QByteArray& payload, quint32 expiry)
{
    if (!m_isConnected)
        return 0;
    const Expiry property(expiry);
    int message = 0;
    const int result = Mosquitto::library().publish_v5(
        m_client, &message, topic.toUtf8().constData(), int(payload.size()), payload.constData(), 1,
        true, property.property());
    if (result == MOSQ_ERR_OVERSIZE_PACKET)
        return tooBig;
    if (result != MOSQ_ERR_SUCCESS) {
        warn(QStringLiteral("%1: %2").arg(
            topic, QString::fromLocal8Bit(Mosquitto::library().strerror(result))));
        return 0;
    }
    ++m_unacknowledged;
    return message;
}

bool BrokerConnection::read(int most)
{
    if (!m_isOpen) {
        connect();
        return false;
    }
    const Mosquitto& library = Mosquitto::library();
    int result = library.loop_misc(m_client);
    const quint64 first = m_events;
    quint64 before = m_events - 1;
    while (result == MOSQ_ERR_SUCCESS && m_isOpen && before != m_events
           && m_events - first < quint64(most)) {
        before = m_events;
        result = library.loop_read(m_client, 1);
    }
    if (result != MOSQ_ERR_SUCCESS && m_isOpen) // else the broker has said why
        lose(QString::fromLocal8Bit(library.strerror(result)));
    return m_isOpen && before != m_events;
}

void BrokerConnection::write()
{
    const Mosquitto& library = Mosquitto::library();
    if (!m_isOpen || !library.want_write(m_client))
        return;
    // The library writes each packet by itself; the system shall send them together, and at once.
    const int socket = library.socket(m_client);
    const auto gather = [socket](int isGathering) {
        setsockopt(socket, IPPROTO_TCP, TCP_CORK, &isGathering, sizeof isGathering);
    };
    gather(1);
    const int result = library.loop_write(m_client, 1);
    if (result == MOSQ_ERR_SUCCESS)
        gather(0);
    else
        lose(QString::fromLocal8Bit(library.strerror(result)));
}

void BrokerConnection::wait(std::chrono::milliseconds timeout)
{
    pollfd socket{-1, POLLIN, 0}; // poll passes over a negative one
    if (m_isOpen) {
        const Mosquitto& library = Mosquitto::library();
        socket.fd = library.socket(m_client);
        if (library.want_write(m_client))
            socket.events |= POLLOUT;
        // A broker that gathers what it sends waits for the acknowledgement of what it has sent,
        // which the system would delay by 40 ms. The option lasts for a while only.
        const int now = 1;
        setsockopt(socket.fd, IPPROTO_TCP, TCP_QUICKACK, &now, sizeof now);
        // What TLS has read already, poll does not tell of.
        if (!m_options.caFile.isEmpty())
            timeout = std::min(timeout, std::chrono::milliseconds(10));
    }
    ::poll(&socket, 1, int(timeout.count()));
}

void BrokerConnection::disconnect()
{
    m_isEnding = true;
    if (!m_isOpen)
        return;
    Mosquitto::library().disconnect_v5(m_client, 0, nullptr);
    write();
}
