// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The words of what is diagnosed, in the language that is shown: Diagnosis::tr("...").
class Diagnosis
{
public:
    /// @param text a literal, or one of a constant table: remembered texts go by its address
    static QString tr(const char* text, const char* disambiguation = nullptr, int n = -1);

    /// Tells that the language stays as it is, for the rest of the program: texts without a number
    /// are looked up once then.
    static void keepLanguage();
};
