// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/fault.h"
#include "words.h"

#include <QByteArrayList>
#include <QStringList>

#include <vector>

class QCommandLineParser;

constexpr int exitSuccess = 0;
constexpr int exitFindings = 1; ///< of a check that read everything and found something
constexpr int exitBadInput = 2;

/// An option of the command line. Its help is a source text of Velmo::tr().
struct Option
{
    const char* name; ///< without dashes
    const char* letter; ///< its short form; null without one
    const char* value; ///< what stands for its value in help; null for a switch
    const char* help;

    QString dashedName() const { return QStringLiteral("--") + QLatin1String(name); }

    QString withValue() const; ///< "--output OUT"
    QString usage() const; ///< "-o, --output OUT"
};

class Arguments;

/// A command or an action of one. Parsing, help, usage faults and completion all take it from here.
struct Command
{
    const char* name; ///< "report", or "settings show" for an action
    const char* operands; ///< as in the usage; options that it names are needed
    int leastOperands;
    int mostOperands;
    const char* summary; ///< one sentence, a source text of Velmo::tr(); null hides the command
    const char* details; ///< further ones for its own help, the same; null without
    const Option* options[12]; ///< besides --help and --lang; null after the last
    int (*run)(const Arguments& arguments);

    /// "velmo settings get LIST.json GROUP/KEY"
    QString usage() const;

    QStringList words() const { return QString(QLatin1String(name)).split(QLatin1Char(' ')); }
};

/// What a command was called with.
class Arguments
{
public:
    Arguments(const Command& command, const QCommandLineParser& parser,
              const QStringList& operands);

    bool isSet(const Option& option) const;
    QString value(const Option& option) const;
    const QStringList& operands() const { return m_operands; }

    /// For operands and options that do not go together: names the command's usage.
    Fault usageFault() const;

private:
    const Command& m_command;
    const QCommandLineParser& m_parser;
    const QStringList m_operands;
};

/// Every command, in the order of the help.
const std::vector<Command>& commands();

/// The command whose name these words begin with; null without one.
const Command* findCommand(const QStringList& words);

/// The options that a command takes, with those of every command.
std::vector<const Option*> optionsOf(const Command& command);

/// The options of all commands together.
const std::vector<const Option*>& everyOption();

/// The languages that there are translations for.
QStringList translationLanguages();

/// Runs the command that the arguments name. Throws Fault for bad ones.
/// @param arguments the program's name, then the rest of the command line
/// @return the exit code
int runCommand(const QByteArrayList& arguments);
