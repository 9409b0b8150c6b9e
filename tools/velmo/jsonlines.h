// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "textinput.h"

#include <functional>

/// Hands every line of a file to @p toText and writes what that returns to standard output. Blank
/// lines are passed over. A fault that @p toText throws names the file and the line; it ends the
/// run, or with @p keepGoing is reported and counted, and @p skipLine told. Shows progress on
/// standard error when that is a terminal and standard output is not.
/// @return the exit code
int processLines(
    TextInput& file, bool keepGoing,
    const std::function<QByteArray(const QByteArray& line)>& toText,
    const std::function<void()>& skipLine = [] {});
