// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "worker.h"

#include "historyrecorder.h"
#include "terminal/velmo.h"
#include "text/fault.h"
#include "text/textinput.h"

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr int batch = 200; // messages between two rounds of sending
constexpr seconds quiet{1}; // without a retained message, after which there are no more
constexpr seconds statusPause{600};
constexpr seconds forgettingPause{3600};
constexpr seconds droppedKnownAfter{20}; // mosquitto tells of it every ten
constexpr quint32 statusExpiry = 86400; // seconds
constexpr qint64 clockTolerance = 300000; // milliseconds that a kiosk's clock may be wrong
constexpr qint64 day = 86400000; // milliseconds

// What is taken of a message.
constexpr int longestName = 128;
constexpr int largestState = 256 * 1024;
constexpr size_t mostDevices = 64;

bool isName(const QString& name)
{
    return name.size() <= longestName && std::all_of(name.begin(), name.end(), [](QChar each) {
               return each.category() != QChar::Other_Control;
           });
}

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
    m_silence.turn(Clock::now(), m_isListening && m_broker.isConnected());
    const bool isBehind = m_broker.read(batch);
    followConnection();
    m_publisher.send();
    m_broker.write();
    if (!isBehind && Clock::now() >= m_nextSecond)
        turnEverySecond();
}

// When all that has arrived is known.
void Worker::turnEverySecond()
{
    m_nextSecond = Clock::now() + seconds(1);
    if (m_history)
        m_metrics.set(m_history->status());
    if (!m_broker.isSubscribed())
        return;
    if (m_isGathering && Clock::now() - m_lastRetained > quiet)
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
            m_metrics.dropped.Increment(double(m_broker.dropped() - m_droppedKnown));
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
    m_isGathering = true;
    m_mustVerify = false;
    m_lastRetained = Clock::now();
    m_retained.clear();
    m_kiosks.forEach([](const QString&, Kiosk& kiosk) {
        kiosk.wasTold = kiosk.isTold();
        kiosk.atBroker = 0;
    });
}

void Worker::endGathering()
{
    m_isGathering = false;
    m_broker.unsubscribe(m_options.summaries.filter(m_options.part.number()));
    if (!m_isListening) {
        // What is known of a kiosk of which the broker has nothing is published again, unless the
        // broker has what was there before: then the kiosk was taken out of the fleet meanwhile.
        if (!m_isStoreNew) {
            const auto gone = m_kiosks.namesOf(
                [this](const QString& name, const Kiosk&) { return !m_retained.contains(name); });
            for (const QString& name : gone)
                forget(name);
        }
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

void Worker::take(const QString& topic, const QByteArray& payload, bool isRetained)
{
    if (isRetained)
        m_lastRetained = Clock::now();
    struct Road
    {
        const KioskTopic& pattern;
        prometheus::Counter& count;
        void (Worker::*take)(const QString&, const QByteArray&, bool);
    };
    const Road roads[] = {{m_options.states, m_metrics.states, &Worker::takeState},
                          {m_options.wills, m_metrics.wills, &Worker::takeWill},
                          {m_options.summaries, m_metrics.summariesRead, &Worker::takeSummary}};
    for (const Road& road : roads) {
        const QString name = road.pattern.kioskOf(topic);
        if (name.isEmpty())
            continue;
        if (!road.pattern.hasPart() && !m_options.part.has(name)) {
            m_metrics.otherParts.Increment();
            return;
        }
        road.count.Increment();
        if (!isName(name)) {
            refuse("name", topic, Velmo::tr("the name of the kiosk is too long, or no text"));
            return;
        }
        if (isRetained)
            m_retained.insert(name);
        (this->*road.take)(name, payload, isRetained);
        return;
    }
    const QString worker = m_options.status.kioskOf(topic);
    if (worker.isEmpty())
        refuse("topic", topic, Velmo::tr("the topic is of no kiosk"));
    else
        takeStatus(worker, payload, isRetained);
}

void Worker::takeStatus(const QString& name, const QByteArray& payload, bool isRetained)
{
    if (name == m_options.name) {
        // A broker that crashed may have read a store from before.
        if (payload == m_lastStatus || WorkerStatus::read(payload).isGone)
            m_isStoreNew = false;
        m_status.clear(); // it may say that this worker is gone
    } else if (!isRetained) {
        // What a worker that ends had in hand may be older than what this one has published.
        m_mustVerify = m_mustVerify || payload.isEmpty() || WorkerStatus::read(payload).isGone;
    }
}

void Worker::takeSummary(const QString& name, const QByteArray& payload, bool /*isRetained*/)
{
    if (payload.isEmpty())
        return;
    Kiosk* kiosk = m_kiosks.find(name);
    const quint64 hash = Kiosk::hash(payload);
    try {
        if (!kiosk) {
            const QByteArray kept(payload.constData(), payload.size());
            kiosk = &m_kiosks.set(name, KioskSummary(kept));
            kiosk->heardOf = m_silence.now();
        } else if (hash != Kiosk::hash(kiosk->summary.text)) {
            adoptSilence(name, KioskSummary(QByteArray(payload.constData(), payload.size())));
            kiosk = m_kiosks.find(name);
        }
        kiosk->atBroker = hash;
    } catch (const Fault& fault) {
        refuse("unreadable", m_options.summaries.of(name, m_options.part.number()), fault.message);
    }
}

// That a kiosk fell silent no state tells: another worker has noticed it first, or while this one
// was away.
void Worker::adoptSilence(const QString& name, const KioskSummary& told)
{
    constexpr qint64 second = 1000; // in which workers do not agree
    const Kiosk& kiosk = *m_kiosks.find(name);
    if (told.condition != KioskSummary::Silent || told.faults.empty())
        return;
    const bool wasAway = !m_isListening && !m_isStoreNew && kiosk.wasTold;
    const bool isHeardSince =
        kiosk.heardAt != KioskSummary::noTime && kiosk.heardAt > told.since + second;
    if (wasAway)
        tell(name, told, /*message=*/0, nullptr); // the state that comes next says whether it is so
    else if (!isHeardSince && isSilenceAfter(name, kiosk.summary, told))
        tell(name, told, kiosk.message, nullptr);
}

void Worker::takeState(const QString& name, const QByteArray& payload, bool isRetained)
{
    if (payload.isEmpty()) {
        if (m_kiosks.find(name))
            forget(name);
        return;
    }
    Kiosk* kiosk = m_kiosks.find(name);
    const quint64 message = Kiosk::hash(payload);
    const bool isKnown = kiosk && kiosk->message == message;
    if (kiosk && !isRetained)
        hear(*kiosk);
    if (isKnown && (isRetained || kiosk->summary.condition > KioskSummary::Silent))
        return;
    const char* reason = "too_large";
    try {
        if (payload.size() > largestState)
            throw Fault{Velmo::tr("it is larger than %1 KiB").arg(largestState / 1024)};
        reason = "unreadable";
        const PublishedState state = readServiceState(decoded(payload));
        reason = "too_large";
        if (state.devices.size() > mostDevices)
            throw Fault{Velmo::tr("it tells of more than %1 devices").arg(mostDevices)};
        const KioskSummary summary(name, state, m_writer);
        const bool isToldSilent = isRetained && kiosk && kiosk->isSilent() && kiosk->message == 0
            && !kiosk->summary.faults.empty();
        if (isToldSilent && isSilenceAfter(name, summary, kiosk->summary)) {
            tell(name, KioskSummary(kiosk->summary), message, nullptr);
            return;
        }
        tell(name, summary, message, &state);
        m_kiosks.find(name)->heardOf = m_silence.now();
        if (!isRetained) {
            hear(*m_kiosks.find(name));
            judgeClock(name);
        }
    } catch (const Fault& fault) {
        refuse(reason, m_options.states.of(name, m_options.part.number()), fault.message);
        if (!kiosk)
            return;
        kiosk->message = message;
        loseSight(
            name, KioskSummary::Unknown, "unreadable",
            Velmo::tr("What the kiosk published last cannot be read: %1.").arg(fault.message));
    }
}

// Whether the kiosk fell silent after just that state.
bool Worker::isSilenceAfter(const QString& name, const KioskSummary& state,
                            const KioskSummary& silence)
{
    return silence.text
        == KioskSummary::withoutState(state, name, KioskSummary::Silent, silence.faults[0],
                                      silence.since)
               .text;
}

void Worker::takeWill(const QString& name, const QByteArray& payload, bool isRetained)
{
    Kiosk* const kiosk = m_kiosks.find(name);
    // One that stays at the broker is told of once: a state that came after it counts.
    const quint64 will = payload.isEmpty() ? 0 : Kiosk::hash(payload);
    if (!kiosk || (isRetained && kiosk->will == will))
        return;
    kiosk->will = will;
    if (will != 0)
        loseSight(name, KioskSummary::Silent, "gone", Velmo::tr("The kiosk is offline."));
}

void Worker::hear(Kiosk& kiosk)
{
    kiosk.heardOf = m_silence.now();
    kiosk.heardAt = wholeSecond();
}

void Worker::judgeClock(const QString& name)
{
    Kiosk& kiosk = *m_kiosks.find(name);
    const qint64 ahead = kiosk.summary.time == KioskSummary::noTime
        ? 0
        : kiosk.summary.time - QDateTime::currentMSecsSinceEpoch();
    const bool isWrong = std::abs(double(ahead)) > clockTolerance;
    m_kiosks.setClockWrong(kiosk, isWrong);
    if (isWrong) {
        m_log.warn(QStringLiteral("clock"),
                   Velmo::tr("the clock of \"%1\" is wrong by %2 s").arg(name).arg(ahead / 1000));
    }
}

void Worker::refuse(const char* reason, const QString& topic, const QString& text)
{
    m_metrics.refused(reason).Increment();
    m_log.warn(QLatin1String(reason), QStringLiteral("%1: %2").arg(topic, text));
}

void Worker::tell(const QString& name, const KioskSummary& summary, quint64 message,
                  const PublishedState* state)
{
    Kiosk& kiosk = m_kiosks.set(name, summary);
    kiosk.message = message;
    m_publisher.add(name, kiosk);
    if (m_history)
        m_history->record(kiosk.record(name, state));
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
    if (!doubtful.empty())
        publishStatus(/*isProbe=*/true);
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

void Worker::publishStatus(bool isProbe)
{
    const QByteArray text = status().json();
    if (!isProbe && text == m_status && Clock::now() < m_nextStatus)
        return;
    const int message = m_broker.publish(m_options.status.of(m_options.name), text, statusExpiry);
    if (message <= 0)
        return;
    m_status = m_lastStatus = text;
    m_nextStatus = Clock::now() + statusPause;
    if (isProbe)
        m_silence.sendProbe(message);
}

void Worker::acknowledge(int message, const QString& refusal)
{
    if (!m_publisher.acknowledge(message, refusal) && !refusal.isEmpty()) {
        m_metrics.publishRefused(refusal).Increment();
        m_log.warn(QStringLiteral("status ") + refusal,
                   Velmo::tr("the broker does not take what is published: %1").arg(refusal));
    }
    m_silence.acknowledge(message);
}

QStringList Worker::faults() const
{
    QStringList faults;
    if (!m_publisher.fault().isEmpty())
        faults += m_publisher.fault();
    if (m_broker.dropped() > 0)
        faults += Velmo::tr("The broker had no room for messages and dropped them.");
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
