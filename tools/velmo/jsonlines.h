// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/textinput.h"

#include <functional>
#include <optional>

/// Hands the next line of a file that is not blank to @p take; false at its end. A fault in it that
/// @p take throws, or the end of what can be read of the file, goes to @p skip with @p keepGoing
/// and is thrown without. A last line without line feed that is the beginning of an object goes to
/// @p skip always: it may be being written.
bool takeLine(TextInput& file, bool keepGoing,
              const std::function<void(const QByteArray& line)>& take,
              const std::function<void(const QString& fault)>& skip);

/// Hands every line of a file to @p toText and writes what that returns to standard output. Faults
/// name the file and the line; those that takeLine() skips are reported and counted, and @p
/// skipLine told. Shows progress on standard error when that is a terminal and standard output is
/// not.
/// @param ending is set to a fault that ends the file, in place of throwing it; null to throw it
/// @return the exit code
int processLines(
    TextInput& file, bool keepGoing,
    const std::function<QByteArray(const QByteArray& line)>& toText,
    const std::function<void()>& skipLine = [] {}, std::optional<Fault>* ending = nullptr);
