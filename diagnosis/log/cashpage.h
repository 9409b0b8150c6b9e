// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/kioskcash.h"

class QIODevice;

/// Writes a page to look at of where the money is: what lies where now, and for each device the
/// course of its cassette and its periods, the newest first. Throws Fault when it cannot be
/// written.
void writeCashPage(QIODevice& page, const CashAnswer& answer);
