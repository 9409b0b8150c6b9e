// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What is wrong with an input or an order. Thrown where it is found, for the program to report.
struct Fault
{
    QString message; ///< names the input, the place in it and the fault
};
