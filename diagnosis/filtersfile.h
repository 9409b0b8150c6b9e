// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/filterset.h"
#include "settings/arrayfile.h"

/// What a JSON array holds, by its content.
enum class ListKind {
    Filters, ///< {"name": ..., "params": {...}}
    Settings, ///< {"group": ..., "key": ..., "value": ...}
    Other ///< none of the two, for example nothing
};

ListKind kindOf(const ArrayFile& file);

/// Throws Fault when the file is of the one kind where the other is wanted; what is wrong with a
/// file of neither kind, its reader says.
void requireKind(const ArrayFile& file, ListKind wanted);

/// Takes the filters of a filters file, or those that a settings list implies
/// (FilterFactory::createFilters()), and of a settings list the names of devices too. Throws Fault
/// for a file of the other kind and, in a filters file, an unknown filter or parameter and a value
/// that a parameter cannot hold.
FilterSet filterSetOf(const ArrayFile& file, ListKind kind);
