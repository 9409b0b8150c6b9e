// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "fleet.h"

// What velmo fleet answers from the history alone; each returns the exit code and throws Fault
// where the history does not answer.

/// For how much of a month each kiosk was in service, least first, and all together.
int tellAvailability(const Arguments& arguments, const FleetSelection& selection);

/// What will be empty or full within --due, first that which is due first.
int tellDue(const Arguments& arguments, const FleetSelection& selection);
