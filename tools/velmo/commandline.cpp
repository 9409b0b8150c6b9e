#include "commandline.h"

#include "fault.h"

#include <QCommandLineParser>

#include <cstdio>

QCommandLineOption helpOption()
{
    return QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                              QStringLiteral("Print this help."));
}

bool parseArguments(QCommandLineParser& parser, const QStringList& arguments,
                    const QCommandLineOption& help)
{
    if (!parser.parse(arguments))
        throw Fault{parser.errorText()};
    if (!parser.isSet(help))
        return true;
    fputs(qUtf8Printable(parser.helpText()), stdout);
    return false;
}
