// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/textinput.h"

/// Opens a file for reading, "-" for standard input. Throws Fault when it cannot be opened.
TextInput openInput(const QString& fileName);
