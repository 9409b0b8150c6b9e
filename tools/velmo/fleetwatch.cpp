// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleetwatch.h"

#include <utility>

using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int batch = 1000; // messages between two looks at the clock
constexpr seconds longestConnecting{10};

// A worker tells how many kiosks there are from time to time only: when those have come, more may
// still be on their way.
constexpr milliseconds pauseAfterAll{30};

} // namespace

// What is kept of a status comes before the summaries that it is compared with. Nothing is lost on
// a connection, and summaries with QoS 0 come faster than the broker would have them acknowledged.
FleetWatch::FleetWatch(const Arguments& arguments)
    : m_pause(arguments.number(options::wait))
    , m_summaries(arguments.value(options::summaries))
    , m_status(arguments.value(options::status))
    , m_broker(arguments.broker(),
               [this](const QString& topic, const QByteArray& text, bool isRetained) {
                   take(topic, text, isRetained);
               })
{
    m_broker.subscribe(m_status.filter(), 0);
    m_broker.subscribe(m_summaries.filter(), 0);
}

void FleetWatch::gather()
{
    const auto begin = Clock::now();
    while (!m_broker.isSubscribed()) {
        work(milliseconds(200));
        if (!m_broker.fault().isEmpty())
            throw Fault{m_broker.fault()};
        if (Clock::now() - begin > longestConnecting)
            throw Fault{Velmo::tr("the broker does not answer")};
    }
    m_lastCome = Clock::now();
    const auto isDone = [this] {
        const auto quiet = Clock::now() - m_lastCome;
        return quiet >= m_pause || (quiet >= pauseAfterAll && m_workers.areAll(m_fleet.size()));
    };
    while (!isDone()) {
        work(pauseAfterAll);
        if (!m_broker.fault().isEmpty())
            throw Fault{m_broker.fault()};
    }
    m_broker.disconnect();
}

void FleetWatch::follow(const std::function<void()>& draw)
{
    Clock::time_point drawn;
    for (;;) {
        work(milliseconds(200));
        const bool isLost = !m_broker.fault().isEmpty();
        m_isFromBefore = m_isFromBefore || isLost;
        if ((isLost || m_broker.isSubscribed()) && Clock::now() - drawn >= seconds(1)) {
            drawn = Clock::now();
            draw();
        }
    }
}

bool FleetWatch::isComing() const
{
    return Clock::now() - m_lastCome < m_pause && !m_workers.areAll(m_fleet.size());
}

QStringList FleetWatch::faults() const
{
    QStringList faults = m_workers.faults(m_fleet.size(), m_status.filter());
    if (m_fleet.unreadable() > 0)
        faults +=
            Velmo::tr("The summaries of %n kiosks cannot be read.", nullptr, m_fleet.unreadable());
    return faults;
}

void FleetWatch::take(const QString& topic, const QByteArray& text, bool isRetained)
{
    // A new connection brings all that are kept once more, and tells nothing of those that are
    // gone.
    if (isRetained && std::exchange(m_isFromBefore, false)) {
        m_fleet = Fleet();
        m_workers = FleetWorkers();
    }
    const QString kiosk = m_summaries.kioskOf(topic);
    const bool isStatus = kiosk.isEmpty() && !m_status.kioskOf(topic).isEmpty();
    if (!kiosk.isEmpty())
        m_fleet.take(kiosk, text);
    else if (isStatus)
        m_workers.take(topic, text);
    if (isRetained || isStatus)
        m_lastCome = Clock::now();
}

void FleetWatch::work(milliseconds wait)
{
    m_broker.wait(wait);
    m_broker.read(batch);
    m_broker.write();
}
