// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// A line of one of several logs, as one number: those of a log have its index in the upper bits.
namespace LogPosition {

constexpr int lineBits = 40;

constexpr qint64 of(int log, qint64 line)
{
    return (qint64(log) << lineBits) | line;
}
constexpr int log(qint64 position)
{
    return int(position >> lineBits);
}
constexpr qint64 line(qint64 position)
{
    return position & ((qint64(1) << lineBits) - 1);
}

} // namespace LogPosition
