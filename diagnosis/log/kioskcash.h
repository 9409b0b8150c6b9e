// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashcount.h"
#include "log/cashledger.h"

#include <QStringList>

#include <algorithm>
#include <vector>

/// Where the money of one kiosk is.
struct KioskCash
{
    QString kiosk; ///< empty where it is not named
    std::vector<CashPeriod> periods;
    std::vector<Contradiction> contradictions;
    std::vector<CashDifference> differences; ///< one for each count
    std::vector<CashDifference> notCounted; ///< of places of which others are
    bool isCut = false; ///< lines behind the time that is asked for are left out

    /// Whether nothing is short, over or not counted.
    bool areCountsRight() const
    {
        return notCounted.empty()
            && std::all_of(differences.begin(), differences.end(),
                           [](const CashDifference& d) { return d.difference == 0; });
    }
};

/// Of all kiosks that the logs are of.
struct CashAnswer
{
    QStringList logs; ///< their names, as LogPosition counts them
    std::vector<KioskCash> kiosks;
    Summary summary;
    int devices = 0;
    QStringList notes; ///< of the order of the lines
};
