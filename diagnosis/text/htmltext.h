// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A text as it stands between the tags of a page or between the double quotes of an attribute:
/// nothing in it is markup. Characters that nobody sees, or that turn the direction of the text
/// around them, are written out as \uXXXX.
QString htmlText(const QString& text);
