// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "gallery.h"
#include "screen/language.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlApplicationEngine>
#include <QtQml>
#include <QUrl>
#include <QVariantMap>

#include <cstdio>

namespace {

// A list of samples for each page, from samples/<page>.json; without those that cannot be read,
// about which it complains.
QVariantMap readSamples(bool& isSound)
{
    QVariantMap samples;
    const QDir folder(QStringLiteral(PAGES "/samples"));
    const QFileInfoList files =
        folder.entryInfoList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QFileInfo& info : files) {
        QFile file(info.filePath());
        QJsonParseError error;
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        if (!document.isArray()) {
            fprintf(stderr, "gallery: %s: at byte %d: %s\n", qPrintable(info.filePath()),
                    int(error.offset),
                    document.isNull() ? qPrintable(error.errorString()) : "expected an array");
            isSound = false;
            continue;
        }
        samples.insert(info.completeBaseName(), document.array().toVariantList());
    }
    return samples;
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows every control of Velmolib.Controls in every state."));
    parser.addHelpOption();
    const QCommandLineOption screenshots(QStringLiteral("screenshots"),
                                         QStringLiteral("Write pictures of all pages there."),
                                         QStringLiteral("FOLDER"));
    const QCommandLineOption only(QStringLiteral("only"),
                                  QStringLiteral("Of pages whose name has this word."),
                                  QStringLiteral("WORD"));
    parser.addOptions({screenshots, only});
    parser.process(app);

    bool isSound = true;
    const QVariantMap samples = readSamples(isSound);
    const QString folder = parser.value(screenshots);
    if (!folder.isEmpty() && !QDir().mkpath(folder)) {
        fprintf(stderr, "gallery: %s: cannot be made\n", qPrintable(folder));
        isSound = false;
    }
    if (!isSound)
        return 2;

    QQmlApplicationEngine engine;
    Gallery gallery;
    Language language(QStringLiteral("en"));
    QObject::connect(&language, &Language::currentChanged, &engine, &QQmlEngine::retranslate);
    qmlRegisterSingletonInstance("Kiosk", 1, 0, "Language", &language);
    QObject::connect(&engine, &QQmlEngine::exit, &app, &QCoreApplication::exit);
    engine.addImportPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../qml"));
    engine.setInitialProperties({
        {QStringLiteral("gallery"), QVariant::fromValue<QObject*>(&gallery)},
        {QStringLiteral("samples"), samples},
        {QStringLiteral("folder"), folder.isEmpty() ? folder : QDir(folder).absolutePath()},
        {QStringLiteral("only"), parser.value(only)},
    });
    engine.load(QUrl::fromLocalFile(QStringLiteral(PAGES "/Gallery.qml")));
    return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
