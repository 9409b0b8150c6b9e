// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/program.h"

#include "text/translations.h"

#include <QCoreApplication>
#include <QDir>

namespace {

// The same place in the build folder and where the program is installed.
QString translationsFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS);
}

} // namespace

void loadLanguage(const QString& language)
{
    loadTranslations(translationsFolder(), {QStringLiteral("velmo")}, language);
}

QStringList translationLanguages()
{
    const QStringList files =
        QDir(translationsFolder()).entryList({QStringLiteral("velmolib_*.qm")});
    QStringList languages;
    for (const QString& file : files)
        languages += file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    return languages;
}
