// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "options.h"

#include <limits>

const std::vector<Command>& commands()
{
    constexpr int anyNumber = std::numeric_limits<int>::max();
    static const std::vector<Command> table{
        {"explain",
         "LOG.jsonl... (--filters FILTERS.json | --settings SETTINGS.json)",
         1,
         anyNumber,
         QT_TRANSLATE_NOOP("Velmo", "Why notes were refused: one answer for every note of a log."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Tells for each note what became of it and why: every filter that objected, with the "
             "lines that counted and what clears them, or what was the matter with the device. A "
             "session log has one JSON object a line, plain or compressed by gzip: what a device "
             "reported, or a published state {\"device_states\": [...]}, with \"time\" and "
             "\"session\": \"start\" where known."),
         {&options::filters, &options::settings, &options::session, &options::device,
          &options::refusals, &options::summary, &options::exitCode, &options::json, &options::html,
          &options::keepGoing},
         explainCommand},
        {"compare",
         "A.json B.json LOG.jsonl...",
         3,
         anyNumber,
         QT_TRANSLATE_NOOP("Velmo", "What other filters would have decided."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Tells every note of the logs that A accepts and B refuses, or the reverse, why, and "
             "what each refused in all. A and B are filters or settings, told apart by what they "
             "hold. Both judge what happened: what would have followed another verdict, a log does "
             "not say. The exit code is 1 when they differ."),
         {&options::json, &options::keepGoing},
         compareCommand},
        {"replay",
         "LOG.jsonl (--filters FILTERS.json | --settings SETTINGS.json)",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "What happened in a session log, event by event."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Plays what the devices reported through the worker, the note filters and the "
             "published state, and shows for every line what came of it."),
         {&options::filters, &options::settings, &options::json, &options::keepGoing},
         replayCommand},
        {"report",
         "STATE.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "What a published service state means."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "What the customer is told, whether money may be accepted and why not, and the "
             "service report, for a published service state {\"device_states\": [...]}, with "
             "\"time\" where known, or for many, one a line."),
         {&options::names, &options::json, &options::watch, &options::keepGoing},
         reportCommand},
        {"fleet",
         "",
         0,
         0,
         QT_TRANSLATE_NOOP("Velmo", "The kiosks that need somebody, and why."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Shows the kiosks of which nothing is heard, those where no device could take money, "
             "and those where some device does not work, worst first, of the summaries that "
             "velmo-fleet keeps at an MQTT broker."),
         {&options::broker, &options::summaries, &options::watch, &options::json, &options::wait,
          &options::passwordFile, &options::tlsCa, &options::tlsCert, &options::tlsKey},
         fleetCommand},
        {"state",
         "STATE.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "Checks a device state and rewrites it."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Checks every key and value of a device state, and writes it as the compact "
             "text that the service sends."),
         {&options::map},
         stateCommand},
        {"settings show",
         "LIST.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "The settings as the service would use them."),
         QT_TRANSLATE_NOOP("Velmo",
                           "Marks what is at its default, and what the list lacks. With --json a "
                           R"(list of {"path", "value", "default", "source"}.)"),
         {&options::json, &options::formatted},
         showSettingsCommand},
        {"settings get",
         "LIST.json GROUP/KEY",
         2,
         2,
         QT_TRANSLATE_NOOP("Velmo", "One value as the service would use it."),
         nullptr,
         {&options::source},
         getSettingCommand},
        {"settings set",
         "LIST.json GROUP/KEY=VALUE...",
         2,
         anyNumber,
         QT_TRANSLATE_NOOP("Velmo", "Changes values, in the list or into another file."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Changes what it is told to, and what a device needs whose model or interface "
             "changes; every other byte stays. What would leave new errors is refused. A file "
             "that cannot be written whole is left as it was."),
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         setSettingsCommand},
        {"settings unset",
         "LIST.json GROUP/KEY...",
         2,
         anyNumber,
         QT_TRANSLATE_NOOP("Velmo", "Removes settings, so that their defaults apply."),
         nullptr,
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         unsetSettingsCommand},
        {"settings add-device",
         "LIST.json MODEL [KEY=VALUE...]",
         2,
         anyNumber,
         QT_TRANSLATE_NOOP("Velmo", "Adds a device with the defaults of its model."),
         QT_TRANSLATE_NOOP("Velmo",
                           "MODEL is the number or name of velmo devices. The device gets the "
                           "first free index, and the device count is raised to have it in."),
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         addDeviceCommand},
        {"settings remove-device",
         "LIST.json INDEX",
         2,
         2,
         QT_TRANSLATE_NOOP("Velmo", "Removes a device and moves up those behind it."),
         nullptr,
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         removeDeviceCommand},
        {"settings check",
         "LIST.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "What the service would ignore, miss or read differently."),
         QT_TRANSLATE_NOOP("Velmo",
                           "An error is where the service would do something else than the list "
                           "says, or a device would not work; a warning is odd, but harmless. The "
                           "exit code is 1 when it finds something."),
         {&options::json},
         checkSettingsCommand},
        {"settings diff",
         "A.json B.json",
         2,
         2,
         QT_TRANSLATE_NOOP("Velmo", "What the service would do differently with another list."),
         QT_TRANSLATE_NOOP("Velmo", "The exit code is 1 when the lists differ."),
         {&options::json},
         diffSettingsCommand},
        {"settings filters",
         "LIST.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "The note filters that the settings imply."),
         QT_TRANSLATE_NOOP("Velmo", "With --json a filters file."),
         {&options::json},
         settingsFiltersCommand},
        {"settings routes",
         "LIST.json",
         1,
         1,
         QT_TRANSLATE_NOOP("Velmo", "The route map."),
         nullptr,
         {},
         showRoutesCommand},
        {"devices",
         "",
         0,
         0,
         QT_TRANSLATE_NOOP("Velmo", "The catalogue of device models."),
         nullptr,
         {&options::json},
         devicesCommand},
        {"filters",
         "[NAME]",
         0,
         1,
         QT_TRANSLATE_NOOP("Velmo", "The note filters and their parameters."),
         QT_TRANSLATE_NOOP("Velmo",
                           "What each filter does, and its parameters with the pattern of a valid "
                           "value."),
         {&options::json},
         filtersCommand},
        // What the shell asks for; the last word is the one that is being typed.
        {"complete", "WORD...", 1, anyNumber, nullptr, nullptr, {}, completeCommand},
        // The manual page, of a template with the places for what these rows say.
        {"manual", "TEMPLATE", 1, 1, nullptr, nullptr, {}, manualCommand},
    };
    return table;
}
