// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "filtersfile.h"
#include "settings/arrayfile.h"

class Arguments;

/// Opens a file for reading, "-" for standard input. Throws Fault when it cannot be opened.
TextInput openInput(const QString& fileName);

/// Opens and reads a settings list, "-" for standard input. Throws Fault for anything else.
ArrayFile readSettings(const QString& fileName);

/// The filters that a command was called with and where they come from.
struct FiltersInput
{
    FilterSet filters;
    QString fileName;
    QStringList findings; ///< what the service would read differently in the settings

    /// The rules in words, a line each, under a heading.
    QString rulesText(const QString& heading) const;
};

/// Reads --filters or --settings, whichever there is, and says on standard error what the
/// service would read differently in the settings. Throws Fault for bad ones.
/// @param logs operands, of which none may then be standard input if the filters are
FiltersInput readFilters(const Arguments& arguments, const QStringList& logs);

/// The same of one file that holds either, told apart by its content; an empty list has no filters.
FiltersInput readFilters(const QString& fileName);
