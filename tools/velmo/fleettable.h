// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "fleet.h"
#include "fleetmemory.h"

#include <map>

/// Shows kiosks as text and as JSON. Texts come from outside: nothing in them reaches the terminal
/// as a command.
class FleetTable
{
public:
    FleetTable(const FleetSelection& selection, const FleetMemory& memory, bool hasAllFaults)
        : m_selection(selection)
        , m_memory(memory)
        , m_hasAllFaults(hasAllFaults)
    {
    }

    /// A line for each kiosk that is listed, or for each of their faults, then the totals.
    /// @param most so many lines at most; 0 for any number
    QString text(const Fleet& fleet, int most = 0) const;

    /// How many kiosks there are of each reason or region.
    /// @param what "reason" or "region"
    QString countsText(const Fleet& fleet, const QString& what, int most = 0) const;

    /// A line for each kiosk that is listed, or for each count, then the totals.
    /// @param count "reason" or "region"; empty for the kiosks
    QByteArray json(const Fleet& fleet, const QString& count) const;

    /// The words that countsText() takes.
    static QStringList countKeys();

private:
    using Counts = std::map<QString, ConditionCounts, decltype(&isNaturallyLess)>;

    QStringList rowOf(const FleetKiosk& kiosk, bool isNarrow) const;
    QString sinceText(const FleetKiosk& kiosk, bool isNarrow) const;
    QString totals(const Fleet& fleet) const;
    Counts countsBy(const Fleet& fleet, const QString& what) const;
    QByteArray lineOf(const FleetKiosk& kiosk) const;

    const FleetSelection& m_selection;
    const FleetMemory& m_memory;
    const bool m_hasAllFaults;
};
