// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "dispenserregistryitem.h"
#include "json/jsonwriter.h"

/// Writes registry rows as a JSON array of their maps.
void writeJson(JsonWriter& json, const QList<DispenserRegistryItem>& rows);
