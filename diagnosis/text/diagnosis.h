// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// The words of what is diagnosed, in the language that is shown: Diagnosis::tr("...").
class Diagnosis
{
public:
    /// @param text a literal, or one of a constant table: remembered texts go by its address
    static QString tr(const char* text, const char* disambiguation = nullptr, int n = -1);
};

/// The languages that a folder has the library's translations into, by their codes.
QStringList translationLanguages(const QString& folder);

/// Installs the translations of a program: those of the library, of what is diagnosed, and its own.
/// English is loaded too: it has the plurals, and mends what is misspelt in the library. Throws
/// Fault for a language that is asked for and that there is nothing of. The language stays from
/// then on: texts without a number are looked up once.
/// @param folder where the .qm files are
/// @param own the names of the program's own, without language; perhaps none
/// @param language empty for the system's, or English where there is no translation for it
void loadTranslations(const QString& folder, const QStringList& own, const QString& language);
