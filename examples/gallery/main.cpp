// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlApplicationEngine>
#include <QTranslator>
#include <QUrl>
#include <QVariantMap>

#include <cstdio>
#include <memory>
#include <vector>

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
    QObject::connect(&gallery, &Gallery::spoken, &engine, &QQmlEngine::retranslate);
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

#include "main.moc"
