#include "commandline.h"

#include "fault.h"
#include "output.h"

#include <palx/appversionmanager.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTranslator>

#include <memory>

namespace {

void loadTranslations(const QString& language)
{
    // The same place in the build folder and where the tool is installed.
    const QString folder =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS);
    QStringList components = palx::AppVersionManager::localisations();
    components.removeDuplicates();
    bool anyLoaded = false;
    for (const QString& component : std::as_const(components)) {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        if (translator->load(component + QLatin1Char('_') + language, folder))
            anyLoaded = QCoreApplication::installTranslator(translator.release()) || anyLoaded;
    }
    if (!anyLoaded)
        throw Fault{QStringLiteral("no translations for language \"%1\"").arg(language)};
}

} // namespace

bool parseArguments(QCommandLineParser& parser, const QStringList& arguments)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help."));
    const QCommandLineOption language(
        QStringLiteral("lang"),
        QStringLiteral("Show the library's texts in a language, as \"ru\"."),
        QStringLiteral("LANG"));
    parser.addOptions({help, language});
    if (!parser.parse(arguments))
        throw Fault{parser.errorText()};
    if (parser.isSet(help)) {
        print(parser.helpText());
        return false;
    }
    if (parser.isSet(language))
        loadTranslations(parser.value(language));
    return true;
}
