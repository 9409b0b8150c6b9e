// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "dispenserregistryitem.h"
#include "json/jsonreader.h"
#include "json/jsonwriter.h"

/// Writes registry rows as a JSON array of their maps.
void writeJson(JsonWriter& json, const QList<DispenserRegistryItem>& rows);

/// Passes over any value; over such an array it is faster than JsonReader::skipValue().
bool skipJsonRows(JsonReader& json);
