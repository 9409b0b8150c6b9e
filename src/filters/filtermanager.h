// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

/// Holds nothing and does nothing; programs that were built with it still find it.
class VELMOLIB_EXPORT FilterManager
{
public:
    FilterManager();
    ~FilterManager();
};
