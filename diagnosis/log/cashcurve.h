// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashperiod.h"

/// Draws as SVG what the cassette of a device held, from its first period to the last: the least as
/// a line, the range above it as a band, and each collection with what was taken out. The axis has
/// times where all are known, or else lines. Colours are left to the style sheet.
/// @param periods of the device, at least one
QString cashCurve(const std::vector<CashPeriod>& periods);
