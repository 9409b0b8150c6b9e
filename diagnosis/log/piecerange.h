// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// A number of pieces, as far as it is known.
struct PieceRange
{
    qint64 min = 0;
    std::optional<qint64> max = 0; ///< nothing when there is no limit

    static PieceRange exactly(qint64 pieces) { return {pieces, pieces}; }
    static PieceRange atLeast(qint64 pieces) { return {pieces, {}}; }

    bool isExact() const { return max && *max == min; }

    /// "exact", "range" or "at_least"
    QString certainty() const;

    /// "3", "3 to 5", "at least 3"
    QString text() const;

    PieceRange times(qint64 value) const;

    /// So many of the pieces may not be, or so many more may.
    void widen(qint64 fewer, qint64 more);

    PieceRange& operator+=(const PieceRange& other);
    PieceRange& operator-=(const PieceRange& other);
};
