// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "filterset.h"

class Arguments;

/// The filters that a command was called with and where they come from.
struct FiltersInput
{
    FilterSet filters;
    QString fileName;
};

/// Reads --filters or --settings, one of which there must be, and says on standard error what the
/// service would read differently in the settings. Throws Fault for bad ones.
/// @param logs operands, of which none may then be standard input if the filters are
FiltersInput readFilters(const Arguments& arguments, const QStringList& logs);
