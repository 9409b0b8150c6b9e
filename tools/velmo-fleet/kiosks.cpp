// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kiosks.h"

#include "metrics.h"

#include "kiosktopic.h"
#include "json/jsontext.h"

#include <QDateTime>

bool tellsOrder(const KioskSummary& summary)
{
    // A kiosk's clock may be ahead a little; one that is far ahead would hold back all that
    // follows.
    constexpr qint64 tolerance = 300000; // milliseconds
    return summary.time != KioskSummary::noTime
        && summary.time <= QDateTime::currentMSecsSinceEpoch() + tolerance;
}

Kiosks::Kiosks(Metrics& metrics)
    : m_metrics(metrics)
{
}

bool Kiosks::take(const QString& kiosk, const KioskSummary& summary)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_kiosks.find(kiosk);
    if (known == m_kiosks.end()) {
        m_kiosks.insert(kiosk, {summary, Clock::now()});
        count(summary, 1);
        return true;
    }
    const bool isOlder =
        tellsOrder(summary) && tellsOrder(known->newest) && summary.time < known->newest.time;
    if (isOlder)
        return false;
    count(known->newest, -1);
    count(summary, 1);
    if (summary.condition != KioskSummary::Silent)
        known->heardOf = Clock::now();
    known->newest = summary;
    return true;
}

void Kiosks::forget(const QString& kiosk)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto known = m_kiosks.find(kiosk);
    if (known == m_kiosks.end())
        return;
    count(known->newest, -1);
    m_kiosks.erase(known);
}

const Kiosks::Kiosk* Kiosks::find(const QString& kiosk) const
{
    const auto known = m_kiosks.constFind(kiosk);
    return known == m_kiosks.constEnd() ? nullptr : &*known;
}

std::vector<QString> Kiosks::silentFor(std::chrono::seconds time) const
{
    const Clock::time_point latest = Clock::now() - time;
    std::vector<QString> silent;
    for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk) {
        if (kiosk->newest.condition != KioskSummary::Silent && kiosk->heardOf < latest)
            silent.push_back(kiosk.key());
    }
    return silent;
}

void Kiosks::count(const KioskSummary& summary, int sign)
{
    m_metrics.kiosks(summary.condition).Increment(sign);
    m_metrics.inserted.Increment(double(sign * summary.inserted));
    m_metrics.rejected.Increment(double(sign * summary.rejected));
    m_metrics.returned.Increment(double(sign * summary.returned));
}

void Kiosks::setConnection(bool isConnected, const QString& fault)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isConnected = isConnected;
    m_fault = fault;
    if (isConnected)
        m_connectedAt = QDateTime::currentMSecsSinceEpoch();
}

QByteArray Kiosks::json(bool all) const
{
    const auto timeText = [](qint64 time) {
        return time == KioskSummary::noTime
            ? JsonText::null()
            : JsonText(QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toString(Qt::ISODateWithMs));
    };
    const auto cause = [](const KioskFault& fault) {
        return JsonText::object(
            {{"device", fault.device}, {"thread", fault.thread}, {"reason", fault.reason}});
    };
    const std::lock_guard<std::mutex> lock(m_mutex);
    QByteArray kiosks;
    int counts[KioskSummary::Fine + 1] = {};
    for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk) {
        const KioskSummary& newest = kiosk->newest;
        ++counts[newest.condition];
        if (newest.condition == KioskSummary::Fine && !all)
            continue;
        kiosks +=
            (kiosks.isEmpty() ? "" : ",")
            + JsonText::object(
                {{"kiosk", kiosk.key()},
                 {"region", regionOf(kiosk.key())},
                 {"condition", QString(QLatin1String(KioskSummary::name(newest.condition)))},
                 {"time", timeText(newest.time)},
                 {"since", timeText(newest.since)},
                 {"faults",
                  JsonText::list(newest.faults,
                                 [](const KioskFault& fault) { return JsonText(fault.text); })},
                 {"causes", JsonText::list(newest.faults, cause)}});
    }
    return R"({"part":"1/1","time":)" + timeText(m_connectedAt)
        + ",\"connected\":" + JsonText(m_isConnected) + ",\"ready\":" + JsonText(true)
        + ",\"fault\":" + JsonText(m_fault) + ",\"counts\":"
        + JsonText::object({{"unknown", counts[0]},
                            {"silent", counts[1]},
                            {"out_of_order", counts[2]},
                            {"faulty", counts[3]},
                            {"fine", counts[4]}})
        + ",\"kiosks\":[" + kiosks + "]}";
}
