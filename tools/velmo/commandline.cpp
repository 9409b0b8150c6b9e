// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "command.h"
#include "options.h"
#include "output.h"
#include "table.h"
#include "text/nearest.h"
#include "text/translations.h"

#include <palx/appversionmanager.h>

#include <QCommandLineParser>
#include <QDir>
#include <QLocale>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

QCommandLineOption parserOption(const Option& option)
{
    QStringList names{QLatin1String(option.name)};
    if (option.letter)
        names.prepend(QLatin1String(option.letter));
    return {names, QString(), QLatin1String(option.value)};
}

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
    if (words.size() == 1 && isGroup(words.constFirst()))
        return commandsHelp(words.constFirst() + QLatin1Char(' '));
    if (const Command* const command = findCommand(words))
        return commandHelp(*command);
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

// The same place in the build folder and where the tool is installed.
QString translationsFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS);
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
    const auto found =
        std::find_if(commands().begin(), commands().end(), [&words](const Command& command) {
            const QStringList name = command.words();
            return words.mid(0, name.size()) == name;
        });
    return found == commands().end() ? nullptr : &*found;
}

std::vector<const Option*> optionsOf(const Command& command)
{
    std::vector<const Option*> all(
        std::begin(command.options),
        std::find(std::begin(command.options), std::end(command.options), nullptr));
    all.insert(all.end(), {&options::help, &options::language});
    return all;
}

QString Option::usage() const
{
    return (letter ? QStringLiteral("-%1, ").arg(QLatin1String(letter)) : QString()) + withValue();
}

QString Option::withValue() const
{
    return dashedName() + (value ? QLatin1Char(' ') + QLatin1String(value) : QString());
}

QString Command::usage() const
{
    QStringList parts{QStringLiteral("velmo"), QLatin1String(name)};
    if (*operands)
        parts += QLatin1String(operands);
    for (const Option* const option : options) {
        if (option && !QString(QLatin1String(operands)).contains(option->dashedName()))
            parts += QStringLiteral("[%1]").arg(option->withValue());
    }
    return parts.join(QLatin1Char(' '));
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

QStringList translationLanguages()
{
    const QStringList files =
        QDir(translationsFolder()).entryList({QStringLiteral("velmolib_*.qm")});
    QStringList languages;
    for (const QString& file : files)
        languages += file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    return languages;
}

Arguments::Arguments(const Command& command, const QCommandLineParser& parser,
                     const QStringList& operands)
    : m_command(command)
    , m_parser(parser)
    , m_operands(operands)
{
}

bool Arguments::isSet(const Option& option) const
{
    return m_parser.isSet(QLatin1String(option.name));
}

QString Arguments::value(const Option& option) const
{
    return m_parser.value(QLatin1String(option.name));
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
        parser.addOption(parserOption(*option));
    const bool isSound = parser.parse(arguments);
    const auto isSet = [&parser](const Option& option) {
        return parser.isSet(QLatin1String(option.name));
    };

    loadTranslations(translationsFolder(), {QStringLiteral("velmo")},
                     parser.value(QLatin1String(options::language.name)));
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
    if (asksHelp || isSet(options::help)) {
        print(helpOn(words.mid(asksHelp ? 1 : 0)));
        return exitSuccess;
    }
    if (words.isEmpty() && isSet(options::version))
        return printVersion();
    if (!command)
        throw unknownCommand(words);
    const std::vector<const Option*> allowed = optionsOf(*command);
    for (const Option* const option : everyOption()) {
        if (isSet(*option) && std::find(allowed.begin(), allowed.end(), option) == allowed.end())
            throw unknownOption(QLatin1String(option->name), allowed);
        // As where a script's variable is not set: it means nothing, least of all the default.
        if (isSet(*option) && option->value && parser.value(QLatin1String(option->name)).isEmpty())
            throw Fault{Velmo::tr("%1: expected a value").arg(option->dashedName())};
    }
    const Arguments given(*command, parser, words.mid(command->words().size()));
    const int operands = int(given.operands().size());
    if (operands < command->leastOperands || operands > command->mostOperands)
        throw given.usageFault();
    return command->run(given);
}
