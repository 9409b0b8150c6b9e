// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "dispenserregistryitem.h"
#include "jsonwriter_p.h"

/// Writes registry rows as a JSON array of their maps.
void writeJson(JsonWriter& json, const QList<DispenserRegistryItem>& rows);
