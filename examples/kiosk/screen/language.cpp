// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "language.h"

#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QFontMetrics>
#include <QLocale>
#include <QStandardPaths>
#include <QVariantMap>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr char sourceLanguage[] = "en";

// Where the translations are: beside the program, and those of an installed velmolib where the
// system keeps shared data.
QStringList translationFolders()
{
    return QStringList{QCoreApplication::applicationDirPath() + QStringLiteral("/../share/")
                       + QStringLiteral(TRANSLATIONS)}
    + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral(TRANSLATIONS),
                                QStandardPaths::LocateDirectory);
}

// In the language itself, as on a key.
QString languageName(const QString& code)
{
    if (code == QLatin1String(sourceLanguage))
        return QStringLiteral("English"); // of no country
    const QLocale locale(code);
    QString name = locale.nativeLanguageName();
    return name.replace(0, 1, locale.toUpper(name.left(1)));
}

} // namespace

Language::Language(const QString& language, QObject* parent)
    : QObject(parent)
    , m_first(language)
    , m_current(language)
{
    load();
}

void Language::setCurrent(const QString& language)
{
    if (language == m_current)
        return;
    m_current = language;
    load();
    Q_EMIT currentChanged();
}

QStringList Language::codes()
{
    QStringList codes{QLatin1String(sourceLanguage)};
    const QStringList folders = translationFolders();
    for (const QString& folder : folders) {
        const QStringList files = QDir(folder).entryList({QStringLiteral("kiosk_*.qm")});
        for (const QString& file : files)
            codes += file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    }
    codes.removeDuplicates();
    codes.sort();
    return codes;
}

QVariantList Language::all()
{
    QVariantList languages;
    const QStringList all = codes();
    for (const QString& code : all)
        languages += QVariantMap{{QStringLiteral("code"), code},
                                 {QStringLiteral("name"), languageName(code)}};
    return languages;
}

void Language::checkFonts()
{
    const QFontMetrics metrics{QFont()};
    const QStringList all = codes();
    for (const QString& code : all) {
        const QString name = languageName(code);
        if (!std::all_of(name.begin(), name.end(),
                         [&](QChar letter) { return metrics.inFont(letter); })) {
            fprintf(stderr,
                    "kioskscreen: no font has the letters of \"%s\"; install one, "
                    "fonts-dejavu-core for example\n",
                    qPrintable(code));
        }
    }
}

// The translations of the library, of its modules and of the screen itself.
void Language::load()
{
    m_translators.clear();
    const QStringList folders = translationFolders();
    QStringList components{QStringLiteral("velmolib"), QStringLiteral("diagnosis"),
                           QStringLiteral("controls")};
    if (m_current != QLatin1String(sourceLanguage))
        components += QStringLiteral("kiosk");
    for (const QString& component : std::as_const(components)) {
        const QString name = component + QLatin1Char('_') + m_current;
        auto translator = std::make_unique<QTranslator>();
        const bool isLoaded =
            std::any_of(folders.begin(), folders.end(),
                        [&](const QString& folder) { return translator->load(name, folder); });
        if (!isLoaded) {
            fprintf(stderr, "kioskscreen: no %s.qm in %s\n", qPrintable(name),
                    qPrintable(folders.join(QStringLiteral(", "))));
        } else if (QCoreApplication::installTranslator(translator.get())) {
            m_translators.push_back(std::move(translator));
        }
    }
}
