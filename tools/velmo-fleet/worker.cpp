// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "worker.h"

#include "terminal/velmo.h"
#include "text/fault.h"
#include "text/textinput.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

Q_LOGGING_CATEGORY(fleetLog, "velmo.fleet")

constexpr int batch = 100; // messages between two rounds of acknowledgements
constexpr seconds retiringPause{3}; // without a state, after which no more are to come

QString shared(const WorkerOptions& options, const KioskTopic& topic)
{
    return QStringLiteral("$share/%1/%2").arg(options.group, topic.filter());
}

} // namespace

Worker::Worker(const WorkerOptions& options, Metrics& metrics)
    : m_options(options)
    , m_metrics(metrics)
    , m_kiosks(metrics)
    , m_summaries(
          options.broker, QString(), 0,
          [this](const QString& topic, const QByteArray& text, bool) { takeSummary(topic, text); })
    , m_states(
          options.broker, options.name, options.expiry,
          [this](const QString& topic, const QByteArray& text, bool) { takeState(topic, text); })
{
    m_summaries.watchDropped();
    m_summaries.subscribe(options.summaries.filter(), 0, /*ownToo=*/false);
    if (!options.isRetiring) {
        m_states.subscribe(shared(options, options.states), 1);
        m_states.subscribe(shared(options, options.wills), 1);
    }
}

void Worker::run(const std::atomic<bool>& isStopped)
{
    auto nextLook = Kiosks::Clock::now() + m_options.silence;
    bool isRetired = false;
    while (!isStopped && !isRetired) {
        BrokerConnection::wait({&m_summaries, &m_states}, milliseconds(200));
        m_summaries.read(batch);
        m_kiosks.setConnection(m_summaries.isConnected(), m_summaries.fault());
        // What other workers know first: it says which states are outdated.
        if (m_summaries.isSubscribed())
            m_states.read(batch);
        finishSummaries(isStopped);
        m_states.write();
        if (m_options.silence.count() > 0 && Kiosks::Clock::now() > nextLook) {
            for (const QString& kiosk : m_kiosks.silentFor(m_options.silence)) {
                tellSilent(kiosk,
                           Velmo::tr("The kiosk has been silent for more than %1 s.")
                               .arg(m_options.silence.count()));
            }
            nextLook = Kiosks::Clock::now() + seconds(1);
        }
        isRetired = m_options.isRetiring && hasRetired();
    }
    m_states.disconnect(isRetired);
    m_summaries.disconnect(true);
}

// The broker has all summaries when it returns, or it is time to stop; then the states that they
// are of are not acknowledged.
void Worker::finishSummaries(const std::atomic<bool>& isStopped)
{
    const auto latest = Kiosks::Clock::now() + seconds(5);
    m_summaries.write();
    while (m_summaries.unacknowledged() > 0) {
        if (isStopped && Kiosks::Clock::now() > latest) {
            throw Fault{Velmo::tr("the broker did not take %n summaries; their states are kept "
                                  "for the next start",
                                  nullptr, m_summaries.unacknowledged())};
        }
        BrokerConnection::wait({&m_summaries}, milliseconds(200));
        m_summaries.read(batch);
        m_summaries.write();
        m_kiosks.setConnection(m_summaries.isConnected(), m_summaries.fault());
    }
}

// A retiring member has told the broker to deal it no more, and waits until nothing comes.
bool Worker::hasRetired()
{
    if (!m_states.isConnected()) {
        m_lastState = Kiosks::Clock::now();
        return false;
    }
    if (!m_isUnsubscribed) {
        m_states.unsubscribe(shared(m_options, m_options.states));
        m_states.unsubscribe(shared(m_options, m_options.wills));
        m_states.write();
        m_isUnsubscribed = true;
    }
    return m_states.isSubscribed() && Kiosks::Clock::now() - m_lastState > retiringPause;
}

void Worker::takeState(const QString& topic, const QByteArray& text)
{
    m_lastState = Kiosks::Clock::now();
    const QString gone = m_options.wills.kioskOf(topic);
    if (!gone.isEmpty()) {
        if (!text.isEmpty()) // which ends a retained one
            tellSilent(gone, Velmo::tr("The kiosk is offline."));
        return;
    }
    const QString kiosk = m_options.states.kioskOf(topic);
    try {
        if (kiosk.isEmpty())
            throw Fault{Velmo::tr("the topic is of no kiosk")};
        const KioskSummary summary(kiosk, readServiceState(decoded(text)), m_writer);
        m_metrics.states.Increment();
        if (summary.time != KioskSummary::noTime && !tellsOrder(summary))
            qCWarning(fleetLog, "%s: %s", qUtf8Printable(topic),
                      qUtf8Printable(Velmo::tr("its time is in the future")));
        if (m_kiosks.take(kiosk, summary))
            publish(kiosk, summary);
        else
            m_metrics.outdated.Increment();
    } catch (const Fault& fault) {
        m_metrics.faults.Increment();
        qCWarning(fleetLog, "%s: %s", qUtf8Printable(topic), qUtf8Printable(fault.message));
    }
}

void Worker::tellSilent(const QString& kiosk, const QString& reason)
{
    const Kiosks::Kiosk* const known = m_kiosks.find(kiosk);
    const KioskSummary last =
        known ? known->newest : KioskSummary(kiosk, PublishedState(), m_writer);
    const KioskSummary summary = KioskSummary::withoutState(
        last, kiosk, KioskSummary::Silent, {-1, -1, QStringLiteral("silent"), reason},
        QDateTime::currentMSecsSinceEpoch());
    if (m_kiosks.take(kiosk, summary))
        publish(kiosk, summary);
}

void Worker::takeSummary(const QString& topic, const QByteArray& text)
{
    const QString kiosk = m_options.summaries.kioskOf(topic);
    if (kiosk.isEmpty())
        return;
    if (text.isEmpty()) { // whoever runs the fleet took it out
        m_kiosks.forget(kiosk);
        return;
    }
    try {
        const KioskSummary summary(text);
        if (!m_kiosks.take(kiosk, summary)) {
            m_metrics.corrections.Increment();
            publish(kiosk, m_kiosks.find(kiosk)->newest);
        }
    } catch (const Fault& fault) {
        m_metrics.faults.Increment();
        qCWarning(fleetLog, "%s: %s", qUtf8Printable(topic), qUtf8Printable(fault.message));
    }
}

void Worker::publish(const QString& kiosk, const KioskSummary& summary)
{
    m_summaries.publish(m_options.summaries.of(kiosk), summary.text);
    m_metrics.summaries.Increment();
    if (tellsOrder(summary) && summary.condition != KioskSummary::Silent) {
        const qint64 age = QDateTime::currentMSecsSinceEpoch() - summary.time;
        m_metrics.latency.Observe(double(std::max<qint64>(age, 0)) / 1000);
    }
}
