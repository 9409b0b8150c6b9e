// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filtermanager.h"

FilterManager::FilterManager() = default;

FilterManager::~FilterManager() = default;
