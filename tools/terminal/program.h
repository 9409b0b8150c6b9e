// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

constexpr int exitSuccess = 0;
constexpr int exitFindings = 1; ///< of a check that read everything and found something
constexpr int exitBadInput = 2;

/// Shows the program's texts in a language, empty for the system's. Throws Fault for one that there
/// are no texts in.
void loadLanguage(const QString& language);

/// The languages that there are translations for.
QStringList translationLanguages();
