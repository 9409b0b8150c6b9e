// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

namespace operands {

constexpr Operand sessionLogs{{"LOG.jsonl", Kind::File}, Operand::Several};
constexpr Operand state{{"STATE.json", Kind::File}};
constexpr Operand list{{"LIST.json", Kind::File}};
constexpr Operand a{{"A.json", Kind::File}};
constexpr Operand b{{"B.json", Kind::File}};

} // namespace operands

const std::vector<Command>& commands()
{
    using namespace operands;
    static const std::vector<Command> table{
        {"explain",
         {sessionLogs},
         {&options::session, &options::device, &options::from, &options::to, &options::note,
          &options::outcome, &options::refusals, &options::contradictions, &options::summary,
          &options::utc, &options::exitCode, &options::json, &options::html, &options::keepGoing},
         explainCommand,
         QT_TRANSLATE_NOOP("Velmo", "Why notes were refused: one answer for every note of a log."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Tells for each note what became of it and why: every filter that objected, with the "
             "lines that counted and what clears them, or what was the matter with the device. A "
             "session log has one JSON object a line, plain or compressed by gzip: what a device "
             "reported, or a published state {\"device_states\": [...]}, with \"time\" and "
             "\"session\": \"start\" where known."),
         {&options::filters, &options::settings}},
        {"cash",
         {sessionLogs},
         {&options::counted, &options::from, &options::to, &options::device, &options::last,
          &options::perFile, &options::utc, &options::exitCode, &options::json, &options::csv,
          &options::html, &options::keepGoing},
         cashCommand,
         QT_TRANSLATE_NOOP("Velmo", "Where the money is: what lies in each cassette and channel."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Tells for each device, from one collection of its cassette to the next, what came, "
             "went and moved, what must lie there now, within which range that is known and why, "
             "and what in the logs does not add up. Several logs are of one kiosk, and are put in "
             "the order of their times.")},
        {"compare",
         {a, b, sessionLogs},
         {&options::json, &options::keepGoing},
         compareCommand,
         QT_TRANSLATE_NOOP("Velmo", "What other filters would have decided."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Tells every note of the logs that A accepts and B refuses, or the reverse, why, and "
             "what each refused in all. A and B are filters or settings, told apart by what they "
             "hold. Both judge what happened: what would have followed another verdict, a log does "
             "not say. The exit code is 1 when they differ.")},
        {"replay",
         {{{"LOG.jsonl", Kind::File}}},
         {&options::json, &options::keepGoing},
         replayCommand,
         QT_TRANSLATE_NOOP("Velmo", "What happened in a session log, event by event."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Plays what the devices reported through the worker, the note filters and the "
             "published state, and shows for every line what came of it."),
         {&options::filters, &options::settings}},
        {"report",
         {state},
         {&options::names, &options::json, &options::watch, &options::keepGoing},
         reportCommand,
         QT_TRANSLATE_NOOP("Velmo", "What a published service state means."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "What the customer is told, whether money may be accepted and why not, and the "
             "service report, for a published service state {\"device_states\": [...]}, with "
             "\"time\" where known, or for many, one a line.")},
        {"fleet",
         {{{"MONTH", Kind::Text}, Operand::Optional}},
         {&options::broker,       &options::summaries, &options::status,       &options::history,
          &options::kiosk,        &options::condition, &options::reason,       &options::region,
          &options::allFaults,    &options::count,     &options::availability, &options::due,
          &options::watch,        &options::json,      &options::exitCode,     &options::wait,
          &options::passwordFile, &options::tlsCa,     &options::tlsCert,      &options::tlsKey},
         fleetCommand,
         QT_TRANSLATE_NOOP("Velmo", "The kiosks that need somebody, and why."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Shows the kiosks of which nothing is heard, those where no device could take money, "
             "and those where some device does not work, worst first, of the summaries that "
             "velmo-fleet keeps at an MQTT broker, with the worst fault of each. Where, by what "
             "the workers tell of themselves, some may be missing or out of date, it says so, "
             "and the exit code is 2. With --history it tells for how long; --availability and "
             "--due ask the history alone.")},
        {"fleet history",
         {{{"KIOSK", Kind::Text}}},
         {&options::history, &options::from, &options::to, &options::json},
         fleetHistoryCommand,
         QT_TRANSLATE_NOOP("Velmo", "What became of a kiosk, and when."),
         QT_TRANSLATE_NOOP("Velmo",
                           "Tells of the conditions that it was in, of its faults and of the "
                           "collections of its cassettes, newest last, by what velmo-fleet "
                           "remembers at --history.")},
        {"fleet forget",
         {{{"KIOSK", Kind::Text}, Operand::Several}},
         {&options::broker, &options::states, &options::summaries, &options::wills, &options::wait,
          &options::passwordFile, &options::tlsCa, &options::tlsCert, &options::tlsKey},
         fleetForgetCommand,
         QT_TRANSLATE_NOOP("Velmo", "Takes kiosks that are no more out of the fleet."),
         QT_TRANSLATE_NOOP("Velmo",
                           "Ends what the broker keeps of them: state, summary and will. Where one "
                           "of them is not there, nothing is done. One that still publishes comes "
                           "back, and is named.")},
        {"state",
         {state},
         {&options::map},
         stateCommand,
         QT_TRANSLATE_NOOP("Velmo", "Checks a device state and rewrites it."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Checks every key and value of a device state, and writes it as the compact "
             "text that the service sends.")},
        {"settings show",
         {list},
         {&options::json, &options::formatted},
         showSettingsCommand,
         QT_TRANSLATE_NOOP("Velmo", "The settings as the service would use them."),
         QT_TRANSLATE_NOOP("Velmo",
                           "Marks what is at its default, and what the list lacks. With --json a "
                           R"(list of {"path", "value", "default", "source"}.)")},
        {"settings get",
         {list, {{"GROUP/KEY", Kind::SettingPath}}},
         {&options::source},
         getSettingCommand,
         QT_TRANSLATE_NOOP("Velmo", "One value as the service would use it.")},
        {"settings set",
         {list, {{"GROUP/KEY=VALUE", Kind::Assignment}, Operand::Several}},
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         setSettingsCommand,
         QT_TRANSLATE_NOOP("Velmo", "Changes values, in the list or into another file."),
         QT_TRANSLATE_NOOP(
             "Velmo",
             "Changes what it is told to, and what a device needs whose model or interface "
             "changes; every other byte stays. What would leave new errors is refused. A file "
             "that cannot be written whole is left as it was.")},
        {"settings unset",
         {list, {{"GROUP/KEY", Kind::SettingPath}, Operand::Several}},
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         unsetSettingsCommand,
         QT_TRANSLATE_NOOP("Velmo", "Removes settings, so that their defaults apply.")},
        {"settings add-device",
         {list,
          {{"MODEL", Kind::Model}},
          {{"KEY=VALUE", Kind::DeviceAssignment}, Operand::AnyNumber}},
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         addDeviceCommand,
         QT_TRANSLATE_NOOP("Velmo", "Adds a device with the defaults of its model."),
         QT_TRANSLATE_NOOP("Velmo",
                           "MODEL is the number or name of velmo devices. The device gets the "
                           "first free index, and the device count is raised to have it in.")},
        {"settings remove-device",
         {list, {{"INDEX", Kind::DeviceIndex}}},
         {&options::dryRun, &options::output, &options::force, &options::quiet},
         removeDeviceCommand,
         QT_TRANSLATE_NOOP("Velmo", "Removes a device and moves up those behind it.")},
        {"settings check",
         {list},
         {&options::json},
         checkSettingsCommand,
         QT_TRANSLATE_NOOP("Velmo", "What the service would ignore, miss or read differently."),
         QT_TRANSLATE_NOOP("Velmo",
                           "An error is where the service would do something else than the list "
                           "says, or a device would not work; a warning is odd, but harmless. The "
                           "exit code is 1 when it finds something.")},
        {"settings diff",
         {a, b},
         {&options::json},
         diffSettingsCommand,
         QT_TRANSLATE_NOOP("Velmo", "What the service would do differently with another list."),
         QT_TRANSLATE_NOOP("Velmo", "The exit code is 1 when the lists differ.")},
        {"settings filters",
         {list},
         {&options::json},
         settingsFiltersCommand,
         QT_TRANSLATE_NOOP("Velmo", "The note filters that the settings imply."),
         QT_TRANSLATE_NOOP("Velmo", "With --json a filters file.")},
        {"settings routes",
         {list},
         {},
         showRoutesCommand,
         QT_TRANSLATE_NOOP("Velmo", "The route map.")},
        {"devices",
         {},
         {&options::json},
         devicesCommand,
         QT_TRANSLATE_NOOP("Velmo", "The catalogue of device models.")},
        {"filters",
         {{{"NAME", Kind::FilterName}, Operand::Optional}},
         {&options::json},
         filtersCommand,
         QT_TRANSLATE_NOOP("Velmo", "The note filters and their parameters."),
         QT_TRANSLATE_NOOP("Velmo",
                           "What each filter does, and its parameters with the pattern of a valid "
                           "value.")},
        // What the shell asks for; the last word is the one that is being typed.
        {"complete", {{{"WORD", Kind::Text}, Operand::Several}}, {}, completeCommand},
        // The manual page, of a template with the places for what these rows say.
        {"manual", {{{"TEMPLATE", Kind::File}}}, {}, manualCommand},
    };
    return table;
}
