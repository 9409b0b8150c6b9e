// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QString>
#include <QTranslator>

#include <cstdio>
#include <memory>
#include <vector>

/// What Gallery.qml cannot do itself.
class Gallery : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Brings all texts into a language, "en" or "ru".
    Q_INVOKABLE void speak(const QString& language)
    {
        m_translators.clear();
        for (const char* component : {"velmolib", "diagnosis", "controls", "kiosk"}) {
            auto translator = std::make_unique<QTranslator>();
            const QString name = QLatin1String(component) + QLatin1Char('_') + language;
            if (translator->load(name, QStringLiteral(TRANSLATIONS))
                && QCoreApplication::installTranslator(translator.get()))
                m_translators.push_back(std::move(translator));
        }
        Q_EMIT spoken();
    }

    /// Ends the program when a picture could not be written.
    Q_INVOKABLE void fail(const QString& file)
    {
        fprintf(stderr, "gallery: %s: cannot be written\n", qPrintable(file));
        QCoreApplication::exit(2);
    }

Q_SIGNALS:
    void spoken();

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
