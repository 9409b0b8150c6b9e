// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// In milliseconds.
struct HistoryTime
{
    static constexpr qint64 hour = qint64(3600) * 1000;
    static constexpr qint64 day = 24 * hour;
};
