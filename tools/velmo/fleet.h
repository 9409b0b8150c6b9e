// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "kiosktopic.h"
#include "options.h"
#include "service/kiosksummary.h"

#include <QHash>
#include <QRegularExpression>

#include <array>
#include <vector>

/// A kiosk as its summary tells of it.
struct FleetKiosk
{
    QString name;
    KioskSummary::Condition condition = KioskSummary::Unknown;
    qint64 time = KioskSummary::noTime;
    qint64 since = KioskSummary::noTime; ///< of those that are silent or unknown
    std::vector<KioskFault> faults; ///< worst first
    bool isReadable = false; ///< the summary
};

/// Whether one name comes before another one as people count: k2 before k10.
bool isNaturallyLess(const QString& left, const QString& right);

/// The conditions, worst first, as programs know them.
QStringList conditionKeys();

/// A condition in the language that is shown.
QString conditionText(KioskSummary::Condition condition);

/// So many kiosks are in each condition.
using ConditionCounts = std::array<int, KioskSummary::Fine + 1>;

/// The kiosks whose summaries have arrived.
class Fleet
{
public:
    /// @param summary empty for a kiosk that was taken out of the fleet
    void take(const QString& kiosk, const QByteArray& summary);

    int size() const { return int(m_kiosks.size()); }
    const QHash<QString, FleetKiosk>& kiosks() const { return m_kiosks; }

    ConditionCounts counts() const;
    int unreadable() const; ///< so many summaries cannot be read

private:
    QHash<QString, FleetKiosk> m_kiosks;
};

/// The kiosks that --kiosk, --condition, --reason and --region leave.
class FleetSelection
{
public:
    /// Throws Fault for a condition or reason that there is none of.
    explicit FleetSelection(const GivenOptions& arguments);

    bool isAll() const;

    /// Of which a kiosk's name decides.
    bool hasName(const QString& kiosk) const;
    bool has(const FleetKiosk& kiosk) const;

    /// The kiosks that it has, worst first; those that are fine only where that is asked for.
    std::vector<FleetKiosk> listed(const Fleet& fleet) const;

private:
    std::vector<QRegularExpression> m_names;
    std::vector<KioskSummary::Condition> m_conditions;
    QStringList m_reasons;
    QStringList m_regions;
};
