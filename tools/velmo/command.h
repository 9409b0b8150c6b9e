// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "terminal/option.h"
#include "terminal/output.h"
#include "text/fault.h"

#include <QByteArrayList>
#include <QStringList>

#include <vector>

/// What a command takes besides options.
struct Operand
{
    enum Count {
        One,
        Optional,
        Several, ///< one or more
        AnyNumber,
    };

    Value value;
    Count count = One;

    bool isNeeded() const { return count == One || count == Several; }
    bool isRepeated() const { return count == Several || count == AnyNumber; }

    QString usage() const; ///< "LOG.jsonl..."
};

class Arguments;

/// A command or an action of one. Parsing, help, usage faults, completion and the manual page all
/// take it from here.
struct Command
{
    const char* name; ///< "report", or "settings show" for an action
    Operand operands[3]; ///< in their order, only the last one repeated; nameless after the last
    const Option* options[24]; ///< besides those below, --help and --lang; null after the last
    int (*run)(const Arguments& arguments);
    const char* summary = nullptr; ///< one sentence of Velmo::tr(); null hides the command
    const char* details = nullptr; ///< further ones for its own help; null without
    const Option* eitherOf[2] = {}; ///< options of which there must be one; null without

    /// "velmo settings get LIST.json GROUP/KEY"
    QString usage() const;

    /// The operand that stands at an index of the command line; null where none may.
    const Operand* operandAt(int index) const;

    QStringList words() const { return QString(QLatin1String(name)).split(QLatin1Char(' ')); }
};

/// What a command was called with.
class Arguments : public GivenOptions
{
public:
    Arguments(const Command& command, const QCommandLineParser& parser, const QStringList& operands)
        : GivenOptions(parser)
        , m_command(command)
        , m_operands(operands)
    {
    }

    const QStringList& operands() const { return m_operands; }

    /// For operands and options that do not go together: names the command's usage.
    Fault usageFault() const;

private:
    const Command& m_command;
    const QStringList m_operands;
};

/// Every command, in the order of the help.
const std::vector<Command>& commands();

/// The command whose name these words begin with, of several the longest: "fleet history" rather
/// than "fleet"; null without one.
const Command* findCommand(const QStringList& words);

/// The options that a command takes, with those of every command.
std::vector<const Option*> optionsOf(const Command& command);

/// The options of all commands together.
const std::vector<const Option*>& everyOption();

/// Runs the command that the arguments name. Throws Fault for bad ones.
/// @param arguments the program's name, then the rest of the command line
/// @return the exit code
int runCommand(const QByteArrayList& arguments);
