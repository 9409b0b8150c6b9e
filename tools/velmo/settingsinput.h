// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/arrayfile.h"

/// Opens and reads a settings list, "-" for standard input. Throws Fault for anything else.
ArrayFile readSettings(const QString& fileName);
