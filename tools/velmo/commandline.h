#pragma once

#include <QStringList>

class QCommandLineParser;

/// Adds the options that every command has, --help and --lang, and parses the arguments. Prints
/// the help and returns false when that is asked for. --lang installs the translations of every
/// component that is registered for localisation. Throws Fault for an option that is unknown or
/// lacks its value, and for a language without translations.
bool parseArguments(QCommandLineParser& parser, const QStringList& arguments);
