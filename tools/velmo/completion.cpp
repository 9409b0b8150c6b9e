// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"
#include "acceptorsettings.h"
#include "commands.h"
#include "filterfactory.h"
#include "fleettable.h"
#include "input.h"
#include "log/outcome.h"
#include "settings/settingslist.h"

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

// The settings of a file and of the table, for the devices that the file has.
QStringList settingPaths(const QString& fileName)
{
    QStringList paths;
    for (const ServiceSetting& setting : ServiceSetting::listed({}))
        paths += setting.path();
    QList<int> devices;
    try {
        if (fileName != QLatin1String("-")) {
            const SettingsList list(readSettings(fileName));
            devices = list.devices().keys();
            for (const SettingsList::Used& used : list.used())
                paths += used.setting.path();
        }
    } catch (const Fault&) {
        devices = {0};
    }
    const QList<SettingDescription> rows = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& row : rows) {
        for (const int device : std::as_const(devices))
            paths += row.path().replace(QLatin1Char('#'), QString::number(device));
    }
    paths.removeDuplicates();
    return paths;
}

QStringList deviceKeys()
{
    QStringList keys;
    const QList<SettingDescription> rows = AcceptorSettings::settingDescriptions();
    for (const SettingDescription& row : rows) {
        if (row.group().contains(QLatin1Char('/')))
            keys += row.key();
    }
    keys.removeDuplicates();
    return keys;
}

QStringList devicesOf(const QString& fileName)
{
    QStringList indexes;
    try {
        const SettingsList list(readSettings(fileName));
        for (auto device = list.devices().keyBegin(); device != list.devices().keyEnd(); ++device)
            indexes += QString::number(*device);
    } catch (const Fault&) {
    }
    return indexes;
}

// Names of two words would need quotes.
QStringList modelNames()
{
    QStringList names;
    const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
    for (const SupportedDevice& row : catalogue) {
        const QString name = row.value(QStringLiteral("protocol")).toString();
        names += row.value(QStringLiteral("id")).toString();
        if (!name.contains(QLatin1Char(' ')))
            names += name;
    }
    return names;
}

// Each with "=", or, behind it, with what may be chosen.
QStringList assignmentsTo(const QStringList& paths, const QString& current)
{
    const QString path = current.section(QLatin1Char('='), 0, 0);
    QStringList words;
    if (!current.contains(QLatin1Char('='))) {
        for (const QString& known : paths)
            words += known + QLatin1Char('=');
        return words;
    }
    const int slash = int(path.lastIndexOf(QLatin1Char('/')));
    const ServiceSetting setting = ServiceSetting::find(path.left(slash), path.mid(slash + 1));
    for (const QString& choice : setting.choices())
        words += path + QLatin1Char('=') + choice;
    return words;
}

// What may stand for a value.
// @param operands those before it
QStringList candidatesFor(Kind kind, const QStringList& operands = {}, const QString& current = {})
{
    const QString fileName = operands.value(0);
    switch (kind) {
    case Kind::File:
        return {fileMark};
    case Kind::SettingPath:
        return settingPaths(fileName);
    case Kind::Assignment:
        return assignmentsTo(settingPaths(fileName), current);
    case Kind::DeviceAssignment:
        return assignmentsTo(deviceKeys(), current);
    case Kind::Model:
        return modelNames();
    case Kind::DeviceIndex:
        return devicesOf(fileName);
    case Kind::Language:
        return translationLanguages();
    case Kind::FilterName:
        return FilterFactory::getFilters();
    case Kind::Outcome:
        return outcomeKeys();
    case Kind::Condition:
        return conditionKeys();
    case Kind::Reason:
        return KioskFault::knownReasons();
    case Kind::Count:
        return FleetTable::countKeys();
    case Kind::Number:
    case Kind::Text:
    case Kind::None:
        break;
    }
    return {};
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
        open = option && option->value.name ? option : nullptr;
    }
    if (open)
        return candidatesFor(open->value.kind);
    const Command* const command = findCommand(words);
    if (current.startsWith(QLatin1Char('-'))) {
        QStringList names;
        for (const Option* const option : command ? optionsOf(*command) : everyOption())
            names += option->dashedName();
        return names;
    }
    const QStringList next = nextWords(words);
    if (!command)
        return next;
    const QStringList operands = words.mid(command->words().size());
    const Operand* const operand = command->operandAt(int(operands.size()));
    return next + (operand ? candidatesFor(operand->value.kind, operands, current) : QStringList());
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
