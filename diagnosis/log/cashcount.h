// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashperiod.h"

#include <QString>
#include <QVector>

#include <optional>
#include <vector>

class TextInput;

/// What somebody counted of one kind of money in one place.
struct CashCount
{
    QString where; ///< file and line, or element
    QString kiosk; ///< empty when it is not said
    quint32 device = 0;
    std::optional<quint32> thread;
    CashPlace place = CashPlace::Cassette;
    std::optional<int> channel;
    int denomination = 0;
    QString currency; ///< empty when it is not said
    std::optional<int> period;
    qint64 count = 0;
};

/// A count held against the ledger.
struct CashDifference
{
    CashCount count; ///< with the currency of the row that it is of
    quint32 thread = 0;
    std::optional<int> channel;
    int period = 0;
    PieceRange expected;
    qint64 difference = 0; ///< 0 within what is expected; below it for what is short
    std::vector<CashDoubt::Example> explanations; ///< the likeliest first

    /// "cassette", "channel 2", "reject"
    QString placeName() const;

    /// "right", "2 short", "1 over"
    QString verdict() const;

    bool isOfPlaceOf(const CashDifference& other) const;
    bool isOfRowOf(const CashDifference& other) const;
};

/// Reads what was counted: CSV with a header, or a JSON list of objects. Throws Fault, which names
/// the file and the line, for anything else.
std::vector<CashCount> readCashCounts(TextInput& file);

/// Holds a count against the period that it says, or else the newest that is over, or else the one
/// that is on. Throws Fault when no period or no channel fits, or several do.
CashDifference compareCount(const CashCount& count, const std::vector<CashPeriod>& periods);

/// The rows that may hold something in places that are counted otherwise, each as if 0 had been
/// counted and is right.
std::vector<CashDifference> rowsNotCounted(const std::vector<CashDifference>& counts,
                                           const std::vector<CashPeriod>& periods);

/// "cassette", "channel", "reject"
QString placeKey(CashPlace place);
