// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "worker.h"

#include "terminal/velmo.h"
#include "text/fault.h"
#include "text/textinput.h"

#include <algorithm>
#include <cmath>

// What a worker makes of the messages that it is sent.

namespace {

constexpr qint64 clockTolerance = 300000; // milliseconds that a kiosk's clock may be wrong

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

} // namespace

void Worker::take(const QString& topic, const QByteArray& payload, bool isRetained)
{
    if (isRetained)
        waitForRetained();
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
    const bool isGone = payload.isEmpty() || WorkerStatus::read(payload).isGone;
    // What a worker that ends had in hand may be older than what this one has published; so may be
    // what this one had on a connection before.
    if (isGone && !isRetained)
        m_mustVerify = true;
    if (name == m_options.name) {
        // A broker that crashed may have read a store from before.
        if (payload == m_lastStatus || isGone)
            m_isStoreNew = false;
        if (isRetained || isGone) {
            m_status.clear(); // it says what is not so
        } else {
            m_nameTakenUntil = Clock::now() + 2 * statusPause; // in which it tells again
            m_log.warn(QStringLiteral("worker"),
                       Velmo::tr("another worker has the same --name, \"%1\"").arg(name));
        }
    }
}

void Worker::takeSummary(const QString& name, const QByteArray& payload, bool /*isRetained*/)
{
    // One that was under way while this worker stopped reading them may be older than its own.
    if (!m_isGathering)
        return;
    Kiosk* kiosk = m_kiosks.find(name);
    if (payload.isEmpty()) {
        // Another worker heard that the kiosk left, just before this one would have.
        if (kiosk && !kiosk->isStateRead)
            forget(name);
        return;
    }
    if (kiosk && kiosk->sent != 0) {
        kiosk->atBroker = 0; // what came may be older than what was sent: that is sent once more
        return;
    }
    const quint64 hash = Kiosk::hash(payload);
    const auto told = [&payload] {
        return KioskSummary(QByteArray(payload.constData(), payload.size())); // a copy to keep
    };
    try {
        if (!kiosk) {
            kiosk = &m_kiosks.set(name, told());
            kiosk->heardOf = m_silence.now();
            kiosk->isStateRead = false;
        } else if (hash != Kiosk::hash(kiosk->summary.text)) {
            adoptSilence(name, told());
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
    if (kiosk)
        kiosk->isStateRead = true;
    m_left.remove(name);
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
        if (isRetained) {
            m_kiosks.find(name)->heardOf = m_silence.now();
        } else {
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
bool Worker::isSilenceAfter(const QString& name, KioskSummary state, const KioskSummary& silence)
{
    const auto isAfter = [&] {
        return silence.text
            == KioskSummary::withoutState(state, name, KioskSummary::Silent, silence.faults[0],
                                          silence.since)
                   .text;
    };
    return isAfter() || (state.cutTo(state.text.size(), name) && isAfter()); // the broker's limit
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
