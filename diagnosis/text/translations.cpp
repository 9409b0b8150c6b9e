// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/translations.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <palx/appversionmanager.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <memory>

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
    if (!anyLoaded && !language.isEmpty())
        throw Fault{Diagnosis::tr("no translations for language \"%1\"").arg(language)};
    Diagnosis::keepLanguage();
}
