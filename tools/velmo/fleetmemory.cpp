// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleetmemory.h"

#include "text/fault.h"

#include <QDateTime>

namespace {

constexpr qint64 longestAge = 10000; // milliseconds

} // namespace

FleetMemory::FleetMemory(const QString& place)
    : m_place(place)
{
    read();
}

void FleetMemory::read()
{
    m_age.start();
    if (!isThere())
        return;
    try {
        const History history(m_place);
        m_now = history.now(QDateTime::currentMSecsSinceEpoch());
        m_fault.clear();
        history.requireWriter();
    } catch (const Fault& fault) {
        m_fault = fault.message;
    }
}

void FleetMemory::refresh()
{
    if (m_age.elapsed() >= longestAge)
        read();
}

std::optional<FleetMemory::Since> FleetMemory::since(const FleetKiosk& kiosk) const
{
    const bool isTold = kiosk.since != KioskSummary::noTime;
    // The history may be behind what the broker has. In it a silence begins when it is noticed, by
    // the summary when the kiosk was heard of last.
    const auto known = m_now.constFind(kiosk.name);
    if (known != m_now.constEnd() && known->condition == kiosk.condition)
        return Since{isTold ? qMin(known->since, kiosk.since) : known->since,
                     known->timesThisMonth};
    if (isTold)
        return Since{kiosk.since, 0};
    return {};
}

QString durationText(qint64 passed)
{
    const qint64 minutes = qMax<qint64>(passed, 0) / 60000;
    if (minutes < 1)
        return Velmo::tr("less than a minute");
    if (minutes < 120)
        return Velmo::tr("%n minutes", nullptr, int(minutes));
    if (minutes < qint64(48) * 60)
        return Velmo::tr("%n hours", nullptr, int(minutes / 60));
    return Velmo::tr("%n days", nullptr, int(minutes / 60 / 24));
}

QString timeText(std::optional<qint64> time)
{
    return time ? QDateTime::fromMSecsSinceEpoch(*time).toString(QStringLiteral("yyyy-MM-dd hh:mm"))
                : QString();
}
