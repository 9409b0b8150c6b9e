// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "filterfactory.h"
#include "options.h"
#include "output.h"

#include <algorithm>

namespace {

// Tells the shell to complete the name of a file.
const QLatin1String fileMark(":file");

const Option* optionOf(const QString& word, const std::vector<const Option*>& known)
{
    const auto found = std::find_if(known.begin(), known.end(), [&word](const Option* option) {
        return word == option->dashedName()
            || (option->letter && word == QLatin1Char('-') + QLatin1String(option->letter));
    });
    return found == known.end() ? nullptr : *found;
}

// What may stand for a word of a usage.
QStringList candidatesFor(const QString& usageWord)
{
    if (usageWord == QLatin1String("LANG"))
        return translationLanguages();
    if (usageWord == QLatin1String("[NAME]"))
        return FilterFactory::getFilters();
    const bool isFile =
        usageWord.contains(QLatin1String(".json")) || usageWord == QLatin1String("OUT");
    return isFile ? QStringList(fileMark) : QStringList();
}

// The next word of the names of commands that begin with these words.
QStringList nextWords(const QStringList& words)
{
    QStringList next;
    for (const Command& command : commands()) {
        const QStringList name = command.words();
        if (command.summary && name.size() > words.size() && name.mid(0, words.size()) == words)
            next += name.at(words.size());
    }
    next.removeDuplicates();
    return next;
}

QStringList candidates(const QStringList& before, const QString& current)
{
    QStringList words; // without options and their values
    const Option* open = nullptr; // still without its value
    for (const QString& word : before) {
        const Option* const option = optionOf(word, everyOption());
        if (!option && !open)
            words += word;
        open = option && option->value ? option : nullptr;
    }
    if (open)
        return candidatesFor(QLatin1String(open->value));
    const Command* const command = findCommand(words);
    if (current.startsWith(QLatin1Char('-'))) {
        QStringList names;
        for (const Option* const option : command ? optionsOf(*command) : everyOption())
            names += option->dashedName();
        return names;
    }
    if (!command)
        return nextWords(words);
    const QStringList operands = QString(QLatin1String(command->operands)).split(QLatin1Char(' '));
    return candidatesFor(operands.value(words.size() - command->words().size()));
}

} // namespace

int completeCommand(const Arguments& arguments)
{
    const QString current = arguments.operands().constLast();
    QStringList fitting;
    for (const QString& candidate :
         candidates(arguments.operands().mid(0, arguments.operands().size() - 1), current)) {
        if (candidate.startsWith(current) || candidate == fileMark)
            fitting += candidate + QLatin1Char('\n');
    }
    print(fitting.join(QString()));
    return exitSuccess;
}
