// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "language.h"
#include "servicelink.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlApplicationEngine>
#include <QScreen>
#include <QtQml>
#include <QWindow>

#include <cstdio>

namespace {

// {"<device id>": "<name>", ...}
QVariantMap readNames(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        fprintf(stderr, "kioskscreen: %s: %s\n", qPrintable(fileName),
                qPrintable(file.errorString()));
        return {};
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject())
        fprintf(stderr, "kioskscreen: %s: expected a JSON object\n", qPrintable(fileName));
    return document.object().toVariantMap();
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows what the acceptor service on the session bus publishes."));
    parser.addHelpOption();
    const QCommandLineOption names(QStringLiteral("names"),
                                   QStringLiteral("Display names by device identifier."),
                                   QStringLiteral("NAMES.json"));
    const QCommandLineOption lang(QStringLiteral("lang"),
                                  QStringLiteral("Language to begin with: en or ru."),
                                  QStringLiteral("LANG"), QStringLiteral("en"));
    const QCommandLineOption price(QStringLiteral("price"),
                                   QStringLiteral("What the customer has to pay; 0 for any sum."),
                                   QStringLiteral("SUM"), QStringLiteral("0"));
    const QCommandLineOption still(QStringLiteral("no-motion"),
                                   QStringLiteral("Show changes without motion."));
    const QCommandLineOption full(QStringLiteral("fullscreen"),
                                  QStringLiteral("Fill the whole screen."));
    parser.addOptions({names, lang, price, still, full});
    parser.process(app);

    QQmlApplicationEngine engine;
    Language language(parser.value(lang));
    QObject::connect(&language, &Language::currentChanged, &engine, &QQmlEngine::retranslate);
    ServiceLink link;
    qmlRegisterSingletonInstance("Kiosk", 1, 0, "Language", &language);
    qmlRegisterSingletonInstance("Kiosk", 1, 0, "ServiceLink", &link);
    // In the build folder the module stands beside the programs.
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../qml"));
    QVariantMap properties{
        {QStringLiteral("names"),
         parser.isSet(names) ? readNames(parser.value(names)) : QVariantMap()},
        {QStringLiteral("price"), parser.value(price).toDouble()},
        {QStringLiteral("motion"), !parser.isSet(still)},
    };
    if (parser.isSet(full)) {
        // Many a kiosk has no window manager, which would make the window as large as the screen.
        const QSize size = QGuiApplication::primaryScreen()->size();
        properties.insert(QStringLiteral("width"), size.width());
        properties.insert(QStringLiteral("height"), size.height());
        properties.insert(QStringLiteral("visibility"), QWindow::FullScreen);
    }
    engine.setInitialProperties(properties);
    engine.load(QUrl(QStringLiteral("qrc:/screen/Main.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
