// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

/// The tables of a history. docs/formats.md says what is in them.
class HistorySchema
{
public:
    static constexpr int version = 1;
    static constexpr int cassette = -1; ///< its channel among the levels

    /// The statements that make this version of an older one, of 0 where there is nothing yet. In
    /// SQLite "%1" stands for "WITHOUT ROWID", in PostgreSQL for nothing.
    static std::vector<const char*> stepsFrom(int older);
};
