// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashcount.h"
#include "log/cashledger.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

/// What velmo cash tells of one kiosk.
struct KioskCash
{
    QString kiosk; ///< empty where it is not named
    std::vector<CashPeriod> periods;
    std::vector<Contradiction> contradictions;
    std::vector<CashDifference> differences; ///< one for each count
};

/// What it tells of all.
struct CashAnswer
{
    QStringList logs; ///< their names, as LogPosition counts them
    std::vector<KioskCash> kiosks;
    Summary summary;
    int devices = 0;
    QStringList notes; ///< of the order of the lines
};

/// An object a line.
QByteArray cashJson(const CashAnswer& answer);

/// A row for each place, and a header. The counts have a table of their own.
QByteArray cashCsv(const CashAnswer& answer);

QString cashText(const CashAnswer& answer);
