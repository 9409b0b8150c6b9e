// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingscheck.h"

#include <QIcon>
#include <QPalette>
#include <QSize>

#include <optional>

/// "Error" or "Warning", in the language that is shown.
QString findingWord(SettingsFinding::Level level);

/// Its sign. None for nothing found.
QIcon findingIcon(std::optional<SettingsFinding::Level> level);

constexpr QSize findingIconSize(16, 16);

/// A colour that can be read on a window of these colours.
QColor findingColor(SettingsFinding::Level level, const QPalette& palette);
