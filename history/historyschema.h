// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

/// The tables of a history. docs/formats.md says what is in them.
class HistorySchema
{
public:
    static constexpr int version = 1;

    /// The statements that make this version of an older one; of 0 where there is nothing yet.
    static std::vector<const char*> stepsFrom(int version);
};
