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

#include <cmath>
#include <cstdio>
#include <tuple>

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
                                  QStringLiteral("Language to begin with: %1.")
                                      .arg(Language::codes().join(QStringLiteral(", "))),
                                  QStringLiteral("LANG"), QStringLiteral("en"));
    const QCommandLineOption price(QStringLiteral("price"),
                                   QStringLiteral("What the customer has to pay; 0 for any sum."),
                                   QStringLiteral("SUM"), QStringLiteral("0"));
    const QCommandLineOption contact(QStringLiteral("contact"),
                                     QStringLiteral("Whom to call when money is stuck."),
                                     QStringLiteral("TEXT"));
    const QCommandLineOption idle(
        QStringLiteral("idle"),
        QStringLiteral("After how long without use the first language is back and the service "
                       "screen closed; 0 for never."),
        QStringLiteral("SECONDS"), QStringLiteral("60"));
    const QCommandLineOption pin(
        QStringLiteral("pin-file"),
        QStringLiteral(
            "The PIN of the service screen, 4 to 12 digits; without it that does not open."),
        QStringLiteral("FILE"));
    const QCommandLineOption density(
        QStringLiteral("density"),
        QStringLiteral(
            "Pixels in a millimetre of the screen, where it does not tell the right ones itself."),
        QStringLiteral("NUMBER"));
    const QCommandLineOption large(QStringLiteral("large-text"), QStringLiteral("Larger texts."));
    const QCommandLineOption contrast(QStringLiteral("high-contrast"),
                                      QStringLiteral("Light on black."));
    const QCommandLineOption still(QStringLiteral("no-motion"),
                                   QStringLiteral("Show changes without motion."));
    const QCommandLineOption full(QStringLiteral("fullscreen"),
                                  QStringLiteral("Fill the whole screen."));
    parser.addOptions(
        {names, lang, price, contact, idle, pin, density, large, contrast, still, full});
    parser.process(app);
    const std::tuple<const QCommandLineOption&, double, double> numbers[]{
        {price, 0, 1e15}, {idle, 0, 1e6}, {density, 0.5, 100}};
    for (const auto& [option, least, most] : numbers) {
        bool isNumber = false;
        const double number = parser.value(option).toDouble(&isNumber);
        const bool isWhole = &option != &price || number == std::trunc(number);
        if (parser.isSet(option) && !(isNumber && isWhole && number >= least && number <= most)) {
            fprintf(stderr, "kioskscreen: --%s %s: expected a %snumber from %g to %g\n",
                    qPrintable(option.names().constFirst()), qPrintable(parser.value(option)),
                    &option == &price ? "whole " : "", least, most);
            return 2;
        }
    }
    if (!Language::codes().contains(parser.value(lang))) {
        fprintf(stderr, "kioskscreen: --lang %s: expected one of %s\n",
                qPrintable(parser.value(lang)),
                qPrintable(Language::codes().join(QStringLiteral(", "))));
        return 2;
    }
    Language::checkFonts();

    QQmlApplicationEngine engine;
    Language language(parser.value(lang));
    QObject::connect(&language, &Language::currentChanged, &engine, &QQmlEngine::retranslate);
    ServiceLink link;
    qmlRegisterSingletonInstance("Kiosk", 1, 0, "Language", &language);
    qmlRegisterSingletonInstance("Kiosk", 1, 0, "ServiceLink", &link);
    // In the build folder the module stands beside the programs.
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../qml"));
    QVariantMap theme{{QStringLiteral("largeText"), parser.isSet(large)},
                      {QStringLiteral("highContrast"), parser.isSet(contrast)},
                      {QStringLiteral("motion"), !parser.isSet(still)}};
    if (parser.isSet(density))
        theme.insert(QStringLiteral("density"), parser.value(density).toDouble());
    QVariantMap properties{
        {QStringLiteral("names"),
         parser.isSet(names) ? readNames(parser.value(names)) : QVariantMap()},
        {QStringLiteral("price"), parser.value(price).toDouble()},
        {QStringLiteral("contact"), parser.value(contact)},
        {QStringLiteral("idleSeconds"), parser.value(idle).toDouble()},
        {QStringLiteral("pinFile"), parser.value(pin)},
        {QStringLiteral("theme"), theme},
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
