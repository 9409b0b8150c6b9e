#include "acceptorsettings.h"
#include "cataloguecommands.h"
#include "commandline.h"
#include "fault.h"
#include "output.h"
#include "replaycommand.h"
#include "settingscommand.h"
#include "statecommands.h"

#include <palx/appversionmanager.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <cstdio>

namespace {

const struct Command
{
    QLatin1String name;
    QLatin1String summary;
    int (*run)(const QStringList& arguments);
} commands[] = {
    {QLatin1String("replay"),
     QLatin1String("What happened in a session, and why notes were refused."), replayCommand},
    {QLatin1String("report"), QLatin1String("What a published service state means."),
     reportCommand},
    {QLatin1String("state"), QLatin1String("Checks a device state and rewrites it."), stateCommand},
    {QLatin1String("settings"), QLatin1String("Shows, changes and checks the service's settings."),
     settingsCommand},
    {QLatin1String("devices"), QLatin1String("The catalogue of device models."), devicesCommand},
    {QLatin1String("filters"), QLatin1String("The note filters and their parameters."),
     filtersCommand},
};

int runWithoutCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    QString description = QStringLiteral("Answers questions about the cash devices of a kiosk.\n\n"
                                         "Commands (velmo COMMAND --help tells more):");
    for (const Command& command : commands)
        description += QStringLiteral("\n  %1  %2").arg(command.name, -8).arg(command.summary);
    parser.setApplicationDescription(description);
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("One of the commands."));
    const QCommandLineOption version = parser.addVersionOption();

    if (!parseArguments(parser, arguments))
        return exitSuccess;
    if (parser.isSet(version)) {
        const palx::AppVersion library =
            palx::AppVersionManager::version(QStringLiteral("velmolib"));
        print(QStringLiteral("velmo %1 (library built %2)\n")
                  .arg(library.version(), library.buildTime()));
    } else if (parser.positionalArguments().isEmpty()) {
        throw Fault{QStringLiteral("no command given; velmo --help lists them")};
    } else {
        throw Fault{QStringLiteral("unknown command \"%1\"; velmo --help lists them")
                        .arg(parser.positionalArguments().constFirst())};
    }
    return exitSuccess;
}

int run(const QStringList& arguments)
{
    // The first word that is a command: options may stand before it.
    const QStringList words = arguments.mid(1);
    for (const QString& word : words) {
        for (const Command& command : commands) {
            if (word == command.name)
                return command.run(arguments);
        }
    }
    return runWithoutCommand(arguments);
}

} // namespace

void printError(const QString& message)
{
    QString line = QStringLiteral("velmo: ");
    for (const QChar c : message) {
        const bool printable = c.unicode() >= ' ' && c.unicode() != 0x7f;
        line += printable ? QString(c)
                          : QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    fprintf(stderr, "%s\n", qUtf8Printable(line));
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    // The library's progress messages; QT_LOGGING_RULES=default.debug=true brings them back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    int exitCode = exitBadInput;
    try {
        exitCode = run(QCoreApplication::arguments());
    } catch (const Fault& fault) {
        printError(fault.message);
    }
    AcceptorSettings().setList({}); // deletes the devices
    return exitCode;
}
