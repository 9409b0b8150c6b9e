// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "paymentscreen.h"

#include <palx/appversionmanager.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTranslator>

#include <cstdio>
#include <memory>

namespace {

// The translations of the program's components, from where they stand beside the program in the
// build folder and when installed. English texts do for what is missing.
void loadTranslations(const QString& language)
{
    const QString folder =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS);
    QStringList components = palx::AppVersionManager::localisations();
    components.removeDuplicates();
    for (const QString& component : std::as_const(components)) {
        const QString name = component + QLatin1Char('_') + language;
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        if (translator->load(name, folder))
            QCoreApplication::installTranslator(translator.release());
        else
            fprintf(stderr, "paymentscreen: no %s.qm in %s\n", qPrintable(name),
                    qPrintable(folder));
    }
}

// {"<device id>": "<name>", ...}
QMap<int, QString> readNames(const QString& fileName)
{
    QFile file(fileName);
    QMap<int, QString> names;
    if (!file.open(QIODevice::ReadOnly)) {
        fprintf(stderr, "paymentscreen: %s: %s\n", qPrintable(fileName),
                qPrintable(file.errorString()));
        return names;
    }
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    for (auto name = object.begin(); name != object.end(); ++name)
        names.insert(name.key().toInt(), name.value().toString());
    return names;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows what the acceptor service on the session bus publishes."));
    parser.addHelpOption();
    const QCommandLineOption names(QStringLiteral("names"),
                                   QStringLiteral("Display names by device identifier."),
                                   QStringLiteral("NAMES.json"));
    const QCommandLineOption language(QStringLiteral("lang"),
                                      QStringLiteral("Language of the texts, for example ru."),
                                      QStringLiteral("LANG"));
    parser.addOptions({names, language});
    parser.process(app);
    if (parser.isSet(language))
        loadTranslations(parser.value(language));

    PaymentScreen screen(parser.isSet(names) ? readNames(parser.value(names))
                                             : QMap<int, QString>());
    screen.resize(900, 600);
    screen.show();
    return QApplication::exec();
}
