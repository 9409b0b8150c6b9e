// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/kioskcash.h"

#include <QByteArray>

/// An object a line.
QByteArray cashJson(const CashAnswer& answer);

/// A row for each place, and a header. The counts have a table of their own.
QByteArray cashCsv(const CashAnswer& answer);

QString cashText(const CashAnswer& answer);
