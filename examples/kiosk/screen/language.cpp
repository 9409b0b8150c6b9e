// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "language.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <utility>

const QStringList Language::LANGUAGES{QStringLiteral("en"), QStringLiteral("ru")};

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

void Language::checkFonts()
{
    const QFontMetrics metrics{QFont()};
    const std::pair<const char*, QChar> letters[] = {{"Latin", u'A'}, {"Cyrillic", u'\u0416'}};
    for (const auto& [alphabet, letter] : letters) {
        if (!metrics.inFont(letter)) {
            fprintf(
                stderr,
                "kioskscreen: no font has %s letters; install one, fonts-dejavu-core for example\n",
                alphabet);
        }
    }
}

// The translations of the library, of its modules and of the screen itself: from beside the
// program, and those of an installed velmolib from where the system keeps shared data.
void Language::load()
{
    m_translators.clear();
    const QStringList folders =
        QStringList{QCoreApplication::applicationDirPath() + QStringLiteral("/../share/")
                    + QStringLiteral(TRANSLATIONS)}
        + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                    QStringLiteral(TRANSLATIONS), QStandardPaths::LocateDirectory);
    QStringList components{QStringLiteral("velmolib"), QStringLiteral("diagnosis"),
                           QStringLiteral("controls")};
    if (m_current != QLatin1String("en")) // which the screen's sources are in
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
