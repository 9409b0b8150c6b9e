#pragma once

#include <QCommandLineOption>
#include <QStringList>

class QCommandLineParser;

/// -h and --help, the same for every command.
QCommandLineOption helpOption();

/// Parses the arguments; prints the help and returns false when @p help is among them. Throws
/// Fault for an option that is unknown or lacks its value.
bool parseArguments(QCommandLineParser& parser, const QStringList& arguments,
                    const QCommandLineOption& help);
