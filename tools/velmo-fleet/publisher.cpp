// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "publisher.h"

#include "terminal/velmo.h"

#include <QDateTime>

#include <algorithm>

namespace {

constexpr int mostSent = 800; // summaries without an acknowledgement
constexpr std::chrono::seconds retryPause{60};

} // namespace

Publisher::Publisher(const KioskTopic& summaries, int part, Kiosks& kiosks,
                     BrokerConnection& broker, Metrics& metrics, LogLimit& log)
    : m_topic(summaries)
    , m_part(part)
    , m_kiosks(kiosks)
    , m_broker(broker)
    , m_metrics(metrics)
    , m_log(log)
{
}

void Publisher::reset()
{
    m_sent.clear();
    m_refused.clear();
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(),
                                   [this](const QString& name) {
                                       Kiosk* const kiosk = m_kiosks.find(name);
                                       if (kiosk)
                                           kiosk->isWaiting = false;
                                       return kiosk;
                                   }),
                    m_waiting.end());
}

void Publisher::add(const QString& name, Kiosk& kiosk)
{
    if (kiosk.isWaiting || m_refused.contains(name))
        return;
    kiosk.isWaiting = true;
    m_waiting.push_back(name);
}

void Publisher::takeOut(const QString& name)
{
    m_refused.remove(name);
    m_waiting.push_back(name);
}

void Publisher::send()
{
    while (m_broker.isConnected() && !m_waiting.empty() && m_sent.size() < mostSent) {
        const QString name = m_waiting.front();
        m_waiting.pop_front();
        send(name, m_kiosks.find(name));
    }
}

void Publisher::send(const QString& name, Kiosk* kiosk)
{
    if (kiosk)
        kiosk->isWaiting = false;
    if (kiosk && kiosk->isTold())
        return;
    int message =
        m_broker.publish(m_topic.of(name, m_part), kiosk ? kiosk->summary.text : QByteArray());
    while (kiosk && message == BrokerConnection::tooBig
           && m_kiosks.cut(name, *kiosk, kiosk->summary.text.size() / 2))
        message = m_broker.publish(m_topic.of(name, m_part), kiosk->summary.text);
    if (message <= 0) {
        if (m_broker.isConnected())
            refuse(name, QLatin1String(BrokerConnection::tooLarge));
        return;
    }
    m_metrics.published.Increment();
    m_sent.insert(message, {name, kiosk ? Kiosk::hash(kiosk->summary.text) : 0});
    if (kiosk) {
        kiosk->sent = message;
        kiosk->atBroker = 0; // what it had is replaced, or will be
    }
    if (kiosk && kiosk->summary.time != KioskSummary::noTime && !kiosk->isSilent()) {
        const qint64 age = QDateTime::currentMSecsSinceEpoch() - kiosk->summary.time;
        m_metrics.latency.Observe(double(std::max<qint64>(age, 0)) / 1000);
    }
}

bool Publisher::acknowledge(int message, const QString& refusal)
{
    const auto found = m_sent.find(message);
    if (found == m_sent.end())
        return false;
    const Sent sent = *found;
    m_sent.erase(found);
    Kiosk* const kiosk = m_kiosks.find(sent.kiosk);
    if (refusal.isEmpty()) {
        m_metrics.acknowledged.Increment();
        if (kiosk && kiosk->sent == message)
            kiosk->atBroker = sent.hash;
        return true;
    }
    const bool isOld = kiosk && sent.hash != Kiosk::hash(kiosk->summary.text);
    const bool isTooLarge = refusal == QLatin1String(BrokerConnection::tooLarge);
    if (isTooLarge && isOld)
        return true; // the newer one is on its way
    if (isTooLarge && kiosk && m_kiosks.cut(sent.kiosk, *kiosk, kiosk->summary.text.size() / 2))
        add(sent.kiosk, *kiosk);
    else
        refuse(sent.kiosk, refusal);
    return true;
}

void Publisher::refuse(const QString& name, const QString& refusal)
{
    m_metrics.publishRefused(refusal).Increment();
    m_refusal = refusal;
    m_refused.insert(name, Clock::now() + retryPause);
    m_log.warn(refusal,
               Velmo::tr("the broker does not take the summary of \"%1\": %2").arg(name, refusal));
}

void Publisher::retry()
{
    for (auto each = m_refused.begin(); each != m_refused.end();) {
        if (Clock::now() < *each) {
            ++each;
            continue;
        }
        m_waiting.push_back(each.key());
        each = m_refused.erase(each);
    }
}

QString Publisher::fault() const
{
    return m_refused.isEmpty()
        ? QString()
        : Velmo::tr("The broker does not take the summaries of %n kiosks: %1.", nullptr,
                    int(m_refused.size()))
              .arg(m_refusal);
}
