// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "worker.h"

#include "historyrecorder.h"
#include "terminal/velmo.h"

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr int batch = 200; // messages between two rounds of sending
constexpr seconds quiet{1}; // without a retained message, after which there are no more
constexpr seconds forgettingPause{3600};
constexpr seconds droppedKnownAfter{20}; // mosquitto tells of it every ten
constexpr quint32 statusExpiry = 86400; // seconds
constexpr qint64 day = 86400000; // milliseconds
constexpr int mostLeft = 100000; // kiosks whose names are kept

// Now, in milliseconds since 1970; not finer, so that workers agree.
qint64 wholeSecond()
{
    return QDateTime::currentSecsSinceEpoch() * 1000;
}

} // namespace

Worker::Worker(const WorkerOptions& options, Metrics& metrics, HistoryRecorder* history)
    : m_options(options)
    , m_metrics(metrics)
    , m_history(history)
    , m_qos(options.part.count() > 1 && !options.states.hasPart() ? 0 : 1)
    , m_kiosks(metrics)
    , m_silence(options.silence)
    , m_broker(options.broker,
               [this](const QString& topic, const QByteArray& payload, bool isRetained) {
                   take(topic, payload, isRetained);
               })
    , m_publisher(options.summaries, options.part.number(), m_kiosks, m_broker, metrics, m_log)
{
    WorkerStatus gone = status();
    gone.isGone = true;
    m_broker.setWill(options.status.of(options.name), gone.json(), statusExpiry);
    m_broker.setAcknowledged(
        [this](int message, const QString& refusal) { acknowledge(message, refusal); });
    m_broker.watchDropped();
    // In this order the broker sends what it has retained, so that by each is known what the next
    // one is judged by.
    m_broker.subscribe(options.status.filter(), m_qos, /*ownToo=*/false);
    m_broker.subscribe(options.summaries.filter(options.part.number()), m_qos, /*ownToo=*/false);
    m_broker.subscribe(options.states.filter(options.part.number()), m_qos);
    m_broker.subscribe(options.wills.filter(options.part.number()), m_qos);
}

void Worker::run(const std::atomic<bool>& isStopped)
{
    while (!isStopped) {
        m_broker.wait(milliseconds(200));
        const std::lock_guard lock(m_mutex);
        turn();
    }
    const std::lock_guard lock(m_mutex);
    const auto latest = Clock::now() + seconds(5);
    m_broker.publish(m_options.status.of(m_options.name), {});
    while (m_broker.isConnected() && m_broker.unacknowledged() > 0 && Clock::now() < latest) {
        m_broker.write();
        m_broker.wait(milliseconds(200));
        m_broker.read(batch);
    }
    m_broker.disconnect();
}

void Worker::turn()
{
    // What has waited while the program was stopped came at some time since then. That all of it is
    // read is not seen, but it is soon.
    const Clock::time_point now = Clock::now();
    if (now - m_lastTurn > SilenceWatch::longestTurn)
        m_caughtUpAt = now + seconds(1);
    if (now >= m_caughtUpAt)
        m_turnedAt = wholeSecond();
    m_lastTurn = now;
    m_silence.turn(now, m_isListening && m_broker.isConnected());
    const bool isBehind = m_broker.read(batch);
    if (isBehind && now < m_caughtUpAt)
        m_caughtUpAt = now + seconds(1);
    followConnection();
    // Before sending: what the history is told now is published, too, whatever arrives next.
    if (!isBehind && Clock::now() >= m_nextSecond)
        turnEverySecond();
    m_publisher.send();
    m_broker.write();
}

// When all that has arrived is known.
void Worker::turnEverySecond()
{
    m_nextSecond = Clock::now() + seconds(1);
    if (m_history)
        m_metrics.set(m_history->status());
    m_metrics.dropped.Increment(double(m_broker.dropped()) - m_metrics.dropped.Value());
    if (!m_broker.isSubscribed())
        return;
    if (m_isGathering && hasGathered())
        endGathering();
    if (m_isListening) {
        lookForSilence();
        lookForForgotten();
        lookForGone();
    }
    const bool hasDropped = m_broker.dropped() > m_droppedKnown && Clock::now() > m_nextGathering;
    if (!m_isGathering && (m_mustVerify || hasDropped)) {
        startGathering();
        m_broker.subscribe(m_options.summaries.filter(m_options.part.number()), m_qos,
                           /*ownToo=*/false);
        if (hasDropped) {
            m_broker.subscribe(m_options.states.filter(m_options.part.number()), m_qos);
            m_droppedKnown = m_broker.dropped();
            m_nextGathering = Clock::now() + m_dropPause;
            m_dropPause = std::min<seconds>(2 * m_dropPause, statusPause);
        }
    }
    m_publisher.retry();
    publishStatus();
}

void Worker::followConnection()
{
    const bool isConnected = m_broker.isConnected();
    m_metrics.connected.Set(isConnected);
    if (isConnected)
        m_lastConnected = QDateTime::currentMSecsSinceEpoch();
    if (isConnected && m_connection == m_broker.connections())
        return;
    m_isListening = false;
    m_metrics.ready.Set(0);
    if (!isConnected)
        return;
    if (m_connection > 0)
        m_metrics.reconnects.Increment();
    m_connection = m_broker.connections();
    m_isStoreNew = true;
    m_status.clear();
    m_publisher.reset();
    startGathering();
}

void Worker::startGathering()
{
    m_mustVerify = false;
    waitForRetained();
    m_retained.clear();
    m_kiosks.forEach([this](const QString&, Kiosk& kiosk) {
        kiosk.isStateRead = m_isListening;
        kiosk.wasTold = kiosk.isTold() || (m_isGathering && kiosk.wasTold); // if that did not end
        kiosk.atBroker = 0;
        if (!m_publisher.isUnderWay(kiosk))
            kiosk.sent = 0;
    });
    m_isGathering = true;
}

// More may come: what was known of the end is so no longer.
void Worker::waitForRetained()
{
    m_lastRetained = Clock::now();
    m_endProbe = 0;
    m_isEndProbed = false;
}

// When nothing has come for a while although the broker answers.
bool Worker::hasGathered()
{
    if (m_endProbe == 0 && Clock::now() - m_lastRetained > quiet)
        m_endProbe = publishStatus(/*isProbe=*/true);
    return m_isEndProbed;
}

void Worker::endGathering()
{
    m_isGathering = false;
    m_broker.unsubscribe(m_options.summaries.filter(m_options.part.number()));
    // What is known of a kiosk of which the broker has nothing is published again, unless the
    // broker has what was there before: then the kiosk was taken out of the fleet meanwhile. Of one
    // that left, and has no state again, the broker has a summary that came late or was not taken
    // out.
    const auto gone = m_kiosks.namesOf([this](const QString& name, const Kiosk&) {
        return m_left.contains(name)
            || (!m_isListening && !m_isStoreNew && !m_retained.contains(name));
    });
    for (const QString& name : gone)
        forget(name);
    if (!m_isListening) {
        // Where the broker has nothing at all its store may be lost; where the topic tells the
        // part a name says nothing of it.
        const bool isTold =
            !m_retained.isEmpty() && (!m_options.states.hasPart() || m_options.part.count() == 1);
        m_goneKnownAt = isTold ? Clock::now() + droppedKnownAfter : Clock::time_point::max();
        m_silence.restart();
        m_isListening = true;
        m_metrics.ready.Set(1);
    }
    m_kiosks.forEach([this](const QString& name, Kiosk& kiosk) {
        if (!kiosk.isTold())
            m_publisher.add(name, kiosk);
    });
    m_retained.clear();
}

void Worker::tell(const QString& name, const KioskSummary& summary, quint64 message,
                  const PublishedState* state)
{
    Kiosk& kiosk = m_kiosks.set(name, summary);
    kiosk.message = message;
    kiosk.wasTold = false;
    // Of one that is silent by what the broker had kept, a newer state may be on its way.
    if (m_isListening || !kiosk.isSilent())
        m_publisher.add(name, kiosk);
    if (m_history)
        m_history->record(kiosk.record(name, state));
}

void Worker::hear(Kiosk& kiosk)
{
    kiosk.heardOf = m_silence.now();
    kiosk.heardAt = m_turnedAt;
}

void Worker::loseSight(const QString& name, KioskSummary::Condition condition, const char* reason,
                       const QString& text)
{
    const Kiosk& kiosk = *m_kiosks.find(name);
    const KioskFault fault{KioskFault::noDevice, KioskFault::noDevice, QLatin1String(reason), text};
    // Of two workers that heard it, both say the same.
    const bool isOverdue = condition == KioskSummary::Silent && m_silence.isSilent(kiosk.heardOf);
    const qint64 since =
        isOverdue && kiosk.heardAt != KioskSummary::noTime ? kiosk.heardAt : wholeSecond();
    tell(name, KioskSummary::withoutState(kiosk.summary, name, condition, fault, since),
         kiosk.message, nullptr);
}

void Worker::forget(const QString& name)
{
    m_kiosks.remove(name);
    if (m_left.size() >= mostLeft)
        m_left.clear();
    m_left.insert(name);
    m_publisher.takeOut(name);
    m_metrics.forgotten.Increment();
    if (m_history)
        m_history->forget(name, QDateTime::currentMSecsSinceEpoch());
}

void Worker::lookForSilence()
{
    const auto silent = m_kiosks.namesOf([this](const QString&, const Kiosk& kiosk) {
        return !kiosk.isSilent() && m_silence.isSilent(kiosk.heardOf);
    });
    for (const QString& name : silent) {
        loseSight(name, KioskSummary::Silent, "silent",
                  Velmo::tr("The kiosk has been silent for more than %1 s.")
                      .arg(m_options.silence.count()));
    }
    const auto doubtful = m_kiosks.namesOf([this](const QString&, const Kiosk& kiosk) {
        return !kiosk.isSilent() && m_silence.mayBeSilent(kiosk.heardOf);
    });
    if (doubtful.empty())
        return;
    if (const int message = publishStatus(/*isProbe=*/true))
        m_silence.sendProbe(message);
}

// The broker gives an empty state back, and with that the kiosk is forgotten.
void Worker::lookForForgotten()
{
    if (m_options.forgetAfter == 0 || Clock::now() < m_nextForgetting)
        return;
    m_nextForgetting = Clock::now() + forgettingPause;
    const qint64 latest = QDateTime::currentMSecsSinceEpoch() - m_options.forgetAfter * day;
    const auto old = m_kiosks.namesOf([&](const QString&, const Kiosk& kiosk) {
        return kiosk.isSilent() && kiosk.summary.since != KioskSummary::noTime
            && kiosk.summary.since < latest;
    });
    for (const QString& name : old)
        m_broker.publish(m_options.states.of(name, m_options.part.number()), {});
}

// A kiosk that left while no worker ran is in the history still, but not at the broker; unless that
// had no room to send what it has.
void Worker::lookForGone()
{
    if (!m_history || Clock::now() < m_goneKnownAt)
        return;
    m_goneKnownAt = Clock::time_point::max();
    if (m_broker.dropped() > 0)
        return;
    QSet<QString> here;
    m_kiosks.forEach([&](const QString& name, const Kiosk&) { here.insert(name); });
    m_history->forgetGone(
        [here, part = m_options.part](const QString& name) {
            return part.has(name) && !here.contains(name);
        },
        QDateTime::currentMSecsSinceEpoch());
}

// Returns the message's number, 0 for none.
int Worker::publishStatus(bool isProbe)
{
    const QByteArray text = status().json();
    if (!isProbe && text == m_status && Clock::now() < m_nextStatus)
        return 0;
    const int message = m_broker.publish(m_options.status.of(m_options.name), text, statusExpiry);
    if (message <= 0)
        return 0;
    m_status = m_lastStatus = text;
    m_nextStatus = Clock::now() + statusPause;
    return message;
}

void Worker::acknowledge(int message, const QString& refusal)
{
    if (!m_publisher.acknowledge(message, refusal) && !refusal.isEmpty()) {
        m_metrics.publishRefused(refusal).Increment();
        m_log.warn(QStringLiteral("status ") + refusal,
                   Velmo::tr("the broker does not take what is published: %1").arg(refusal));
    }
    m_silence.acknowledge(message);
    if (message == m_endProbe) {
        m_isEndProbed = true;
        m_nextSecond = Clock::now();
    }
}

QStringList Worker::faults() const
{
    QStringList faults;
    if (!m_publisher.fault().isEmpty())
        faults += m_publisher.fault();
    if (m_broker.dropped() > 0)
        faults += Velmo::tr("The broker had no room for messages and dropped them.");
    if (Clock::now() < m_nameTakenUntil)
        faults += Velmo::tr("Another worker has the same name.");
    const QString history = m_history ? m_history->status().fault : QString();
    if (!history.isEmpty())
        faults += Velmo::tr("Nothing is written to the history: %1").arg(history);
    return faults;
}

WorkerStatus Worker::status() const
{
    WorkerStatus status;
    status.worker = m_options.name;
    status.part = m_options.part.number();
    status.parts = m_options.part.count();
    status.kiosks = m_kiosks.size();
    status.changes = m_kiosks.changes();
    status.isReady = m_isListening;
    status.since = m_begin;
    status.faults = faults();
    return status;
}

QByteArray Worker::json(bool all)
{
    const std::lock_guard lock(m_mutex);
    const QByteArray head = JsonText::object({{"part", m_options.part.text()},
                                              {"time", KioskSummary::momentText(m_lastConnected)},
                                              {"connected", m_broker.isConnected()},
                                              {"ready", m_isListening},
                                              {"fault", m_broker.fault()},
                                              {"faults", JsonText::list(faults())}});
    return head.chopped(1) + ',' + m_kiosks.json(all) + '}';
}
