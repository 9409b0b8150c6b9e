// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "arrayfile.h"

#include <QStringList>

/// What the service's model would ignore, coerce or fall back on in a settings list: one line for
/// each finding, with the place of its element.
QStringList checkSettings(const ArrayFile& file);
