// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/diagnosis.h"

#include "text/fault.h"

#include <palx/appversionmanager.h>

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QLocale>
#include <QTranslator>

#include <atomic>
#include <memory>

namespace {

std::atomic<bool> isLanguageKept{false};

} // namespace

QString Diagnosis::tr(const char* text, const char* disambiguation, int n)
{
    if (n >= 0 || disambiguation || !isLanguageKept)
        return QCoreApplication::translate("Diagnosis", text, disambiguation, n);
    thread_local QHash<const char*, QString> known;
    QString& translation = known[text];
    if (translation.isNull())
        translation = QCoreApplication::translate("Diagnosis", text);
    return translation;
}

QStringList translationLanguages(const QString& folder)
{
    const QStringList files = QDir(folder).entryList({QStringLiteral("velmolib_*.qm")});
    QStringList languages;
    for (const QString& file : files)
        languages += file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    return languages;
}

void loadTranslations(const QString& folder, const QStringList& own, const QString& language)
{
    QStringList components = palx::AppVersionManager::localisations();
    components << QStringLiteral("diagnosis") << own;
    components.removeDuplicates();
    bool anyLoaded = false;
    for (const QString& component : std::as_const(components)) {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        const QString prefix = component + QLatin1Char('_');
        const bool isLoaded = language.isEmpty()
            ? translator->load(QLocale::system(), prefix, QString(), folder)
                || translator->load(prefix + QLatin1String("en"), folder)
            : translator->load(prefix + language, folder);
        if (isLoaded)
            anyLoaded = QCoreApplication::installTranslator(translator.release()) || anyLoaded;
    }
    if (!anyLoaded && !language.isEmpty()) {
        throw Fault{Diagnosis::tr("no translations for language \"%1\"; there are: %2")
                        .arg(language, translationLanguages(folder).join(QStringLiteral(", ")))};
    }
    isLanguageKept = true;
}
