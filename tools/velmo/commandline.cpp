// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "options.h"
#include "terminal/table.h"
#include "text/nearest.h"

#include <palx/appversionmanager.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

// A table of options as their help shows it.
QString optionsHelp(const std::vector<const Option*>& shown)
{
    QList<QStringList> rows;
    for (const Option* const option : shown)
        rows += QStringList{option->usage(), Velmo::tr(option->help)};
    return Velmo::tr("Options:") + QLatin1Char('\n') + formatList(rows);
}

// Those whose names begin with these words, as a list with their summaries.
QString commandsHelp(const QString& words)
{
    QList<QStringList> rows;
    for (const Command& command : commands()) {
        const QString name = QLatin1String(command.name);
        if (command.summary && name.startsWith(words))
            rows += QStringList{name, Velmo::tr(command.summary)};
    }
    return Velmo::tr("Commands (velmo help COMMAND tells more):") + QLatin1Char('\n')
        + formatList(rows);
}

QString commandHelp(const Command& command)
{
    QString text = Velmo::tr(command.summary);
    if (command.details)
        text += QLatin1Char(' ') + Velmo::tr(command.details);
    return Velmo::tr("Usage:") + QStringLiteral(" %1\n\n").arg(command.usage()) + wrapped(text)
        + QLatin1Char('\n') + optionsHelp(optionsOf(command));
}

QString generalHelp()
{
    return Velmo::tr("Usage:") + QStringLiteral(" velmo COMMAND ...\n\n")
        + wrapped(Velmo::tr("Answers questions about the cash devices of a kiosk."))
        + QLatin1Char('\n') + commandsHelp({}) + QLatin1Char('\n')
        + optionsHelp({&options::help, &options::language, &options::version});
}

// Whether commands have names that begin with this word and go on.
bool isGroup(const QString& word)
{
    return std::any_of(commands().begin(), commands().end(), [&word](const Command& command) {
        return QString(QLatin1String(command.name)).startsWith(word + QLatin1Char(' '));
    });
}

Fault unknownCommand(const QStringList& words)
{
    if (words.isEmpty())
        return {Velmo::tr("no command given; velmo --help lists them")};
    const QString group =
        isGroup(words.constFirst()) ? words.constFirst() + QLatin1Char(' ') : QString();
    QStringList names;
    for (const Command& command : commands()) {
        const QString name = QLatin1String(command.name);
        if (command.summary && name.startsWith(group))
            names += group.isEmpty() ? QStringList{name.section(QLatin1Char(' '), 0, 0), name}
                                     : QStringList(name);
    }
    if (!group.isEmpty() && words.size() == 1)
        return {Velmo::tr("usage: velmo %1 ... (known: %2)")
                    .arg(words.constFirst(), names.join(QStringLiteral(", ")))};
    const QString asked = group + words.at(group.isEmpty() ? 0 : 1);
    return {Velmo::tr("unknown command \"%1\"").arg(asked) + nearestKnown(asked, names)};
}

QString helpOn(const QStringList& words)
{
    if (words.isEmpty())
        return generalHelp();
    const Command* const command = findCommand(words);
    const bool asksGroup = words.size() == 1 && isGroup(words.constFirst());
    const QString group =
        asksGroup ? commandsHelp(words.constFirst() + QLatin1Char(' ')) : QString();
    if (command)
        return commandHelp(*command) + (asksGroup ? QLatin1Char('\n') + group : QString());
    if (asksGroup)
        return group;
    throw unknownCommand(words);
}

Fault unknownOption(const QString& name, const std::vector<const Option*>& known)
{
    QStringList names;
    for (const Option* const option : known)
        names += option->dashedName();
    const QString dashed = QString(name.size() == 1 ? 1 : 2, QLatin1Char('-')) + name;
    return {Velmo::tr("unknown option %1").arg(dashed) + nearestKnown(dashed, names)};
}

// Whether it has the operands and options that the command needs.
bool fits(const Command& command, const Arguments& arguments)
{
    const auto [either, other] = command.eitherOf;
    if (either && arguments.isSet(*either) == arguments.isSet(*other))
        return false;
    const int count = int(arguments.operands().size());
    const auto needed = std::count_if(
        std::begin(command.operands), std::end(command.operands),
        [](const Operand& operand) { return operand.value.name && operand.isNeeded(); });
    return count >= needed && (count == 0 || command.operandAt(count - 1));
}

int printVersion()
{
    const palx::AppVersion library = palx::AppVersionManager::version(QStringLiteral("velmolib"));
    print(Velmo::tr("velmo %1 (library built %2)").arg(library.version(), library.buildTime())
          + QLatin1Char('\n'));
    return exitSuccess;
}

} // namespace

const Command* findCommand(const QStringList& words)
{
    const Command* found = nullptr;
    for (const Command& command : commands()) {
        const QStringList name = command.words();
        if (words.mid(0, name.size()) == name && (!found || name.size() > found->words().size()))
            found = &command;
    }
    return found;
}

std::vector<const Option*> optionsOf(const Command& command)
{
    std::vector<const Option*> all(std::begin(command.eitherOf), std::end(command.eitherOf));
    all.insert(all.end(), std::begin(command.options), std::end(command.options));
    all.erase(std::remove(all.begin(), all.end(), nullptr), all.end());
    all.insert(all.end(), {&options::help, &options::language});
    return all;
}

QString Operand::usage() const
{
    const QString text = QLatin1String(value.name) + QLatin1String(isRepeated() ? "..." : "");
    return isNeeded() ? text : QStringLiteral("[%1]").arg(text);
}

QString Command::usage() const
{
    QStringList parts{QStringLiteral("velmo"), QLatin1String(name)};
    for (const Operand& operand : operands) {
        if (operand.value.name)
            parts += operand.usage();
    }
    const auto [either, other] = eitherOf;
    if (either)
        parts += QStringLiteral("(%1 | %2)").arg(either->withValue(), other->withValue());
    for (const Option* const option : options) {
        if (option)
            parts += QStringLiteral("[%1]").arg(option->withValue());
    }
    return parts.join(QLatin1Char(' '));
}

const Operand* Command::operandAt(int index) const
{
    const Operand* const end =
        std::find_if(std::begin(operands), std::end(operands),
                     [](const Operand& operand) { return !operand.value.name; });
    const int count = int(end - std::begin(operands));
    if (index < count)
        return &operands[index];
    return count > 0 && operands[count - 1].isRepeated() ? &operands[count - 1] : nullptr;
}

const std::vector<const Option*>& everyOption()
{
    static const std::vector<const Option*> all = [] {
        std::vector<const Option*> found{&options::version};
        for (const Command& command : commands()) {
            for (const Option* const option : optionsOf(command)) {
                if (std::find(found.begin(), found.end(), option) == found.end())
                    found.push_back(option);
            }
        }
        return found;
    }();
    return all;
}

Fault Arguments::usageFault() const
{
    return {Velmo::tr("usage: %1").arg(m_command.usage())};
}

int runCommand(const QByteArrayList& bytes)
{
    QStringList arguments;
    for (const QByteArray& argument : bytes)
        arguments += QString::fromLocal8Bit(argument);
    QCommandLineParser parser;
    for (const Option* const option : everyOption())
        parser.addOption(option->forParser());
    const bool isSound = parser.parse(arguments);
    const GivenOptions asked(parser);
    loadLanguage(asked.value(options::language));
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& text = arguments.at(i);
        if (text.contains(QChar(QChar::ReplacementCharacter)) && text.toLocal8Bit() != bytes.at(i))
            throw Fault{
                Velmo::tr("argument %1, \"%2\": wrong UTF-8").arg(QString::number(i), text)};
    }
    const QStringList words = parser.positionalArguments();
    const Command* const command = findCommand(words);
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty())
        throw unknownOption(unknown.constFirst(), command ? optionsOf(*command) : everyOption());
    if (!isSound)
        throw Fault{parser.errorText()};
    const bool asksHelp = words.value(0) == QLatin1String("help");
    if (asksHelp || asked.isSet(options::help)) {
        print(helpOn(words.mid(asksHelp ? 1 : 0)));
        return exitSuccess;
    }
    if (words.isEmpty() && asked.isSet(options::version))
        return printVersion();
    if (!command)
        throw unknownCommand(words);
    const std::vector<const Option*> allowed = optionsOf(*command);
    for (const Option* const option : everyOption()) {
        if (asked.isSet(*option)
            && std::find(allowed.begin(), allowed.end(), option) == allowed.end())
            throw unknownOption(QLatin1String(option->name), allowed);
        asked.requireValue(*option);
    }
    const Arguments given(*command, parser, words.mid(command->words().size()));
    if (!fits(*command, given))
        throw given.usageFault();
    return command->run(given);
}
