// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "kiosktopic.h"

/// Every option, under one name and with one meaning in every command.
namespace options {

constexpr Option help{"help", "h", Value(), QT_TRANSLATE_NOOP("Velmo", "Print this help.")};
constexpr Option language{
    "lang", nullptr, Value("LANG", Kind::Language),
    QT_TRANSLATE_NOOP("Velmo", "The language of the texts, as \"ru\", in place of the system's.")};
constexpr Option version{
    "version", "v", Value(),
    QT_TRANSLATE_NOOP("Velmo", "Print the version of the library and the time of its build.")};
constexpr Option filters{
    "filters", nullptr, Value("FILTERS.json", Kind::File),
    QT_TRANSLATE_NOOP(
        "Velmo",
        R"(The note filters: [{"name":"AttemptsFilter","params":{"denom":1000,"attempts":2}}, ...])")};
constexpr Option settings{
    "settings", nullptr, Value("SETTINGS.json", Kind::File),
    QT_TRANSLATE_NOOP("Velmo",
                      "In place of --filters: the filters that the service's settings imply.")};
constexpr Option json{"json", nullptr, Value(),
                      QT_TRANSLATE_NOOP("Velmo", "Print JSON in place of text.")};
constexpr Option keepGoing{
    "keep-going", nullptr, Value(),
    QT_TRANSLATE_NOOP(
        "Velmo", "Skip bad lines and what cannot be read of a log; the exit code is still 2.")};
constexpr Option session{"session", nullptr, Value("N", Kind::Number),
                         QT_TRANSLATE_NOOP("Velmo", "Only session N, counted from 1 in each log.")};
constexpr Option device{"device", nullptr,
                        Value("ID", Kind::Number, 0, std::numeric_limits<quint32>::max()),
                        QT_TRANSLATE_NOOP("Velmo", "Only the device with that identifier.")};
constexpr Option from{
    "from", nullptr, Value("TIME", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only from that time on, as 2026-11-16T10:05:12 of the local zone, with Z or "
                      "an offset, or from the beginning of a date.")};
constexpr Option to{"to", nullptr, Value("TIME", Kind::Text),
                    QT_TRANSLATE_NOOP("Velmo", "Only up to that time, or to the end of a date.")};
constexpr Option note{"note", nullptr, Value("VALUE", Kind::Number, 1),
                      QT_TRANSLATE_NOOP("Velmo", "Only notes of that face value.")};
constexpr Option outcome{
    "outcome", nullptr, Value("NAME", Kind::Outcome),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only notes of which that became: refused, taken, stuck, rejected, returned "
                      "or unknown.")};
constexpr Option utc{"utc", nullptr, Value(), QT_TRANSLATE_NOOP("Velmo", "Show times in UTC.")};
constexpr Option refusals{"refusals", nullptr, Value(),
                          QT_TRANSLATE_NOOP("Velmo", "Show only what the filters refused.")};
constexpr Option contradictions{"contradictions", nullptr, Value(),
                                QT_TRANSLATE_NOOP("Velmo", "Show only what does not add up.")};
constexpr Option summary{"summary", nullptr, Value(),
                         QT_TRANSLATE_NOOP("Velmo", "Show only the summary.")};
constexpr Option exitCode{
    "exit-code", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo",
                      "Make the exit code 1 when the filters refused something, something does "
                      "not add up, or a kiosk that is selected needs somebody.")};
constexpr Option html{
    "html", nullptr, Value("PAGE.html", Kind::File),
    QT_TRANSLATE_NOOP("Velmo", "Write a page with pictures to PAGE.html in place of text.")};
constexpr Option counted{
    "counted", nullptr, Value("FILE", Kind::File),
    QT_TRANSLATE_NOOP("Velmo",
                      "What was counted, to be held against the ledger: a table with the "
                      "columns device, place, denomination, count, or such a JSON list.")};
constexpr Option csv{
    "csv", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo", "Print a table for spreadsheets: with --counted, of the counts.")};
constexpr Option last{"last", nullptr, Value(),
                      QT_TRANSLATE_NOOP("Velmo", "Only the newest period of each device.")};
constexpr Option perFile{"per-file", nullptr, Value(),
                         QT_TRANSLATE_NOOP("Velmo", "Each log is of a kiosk of its own.")};
constexpr Option names{
    "names", nullptr, Value("NAMES.json", Kind::File),
    QT_TRANSLATE_NOOP("Velmo", R"(Display names by device identifier: {"1": "Validator"}.)")};
constexpr Option watch{
    "watch", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo", "Show what is new as it comes, on a cleared terminal.")};
constexpr Option summaries{
    "summaries", nullptr, Value("TOPIC", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo", "Where the summaries are; kiosks/+/summary without it."),
    usualSummaries};
constexpr Option status{
    "status", nullptr, Value("TOPIC", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Where the workers tell of themselves; velmo-fleet/+/status without it."),
    usualStatus};
constexpr Option states{
    "states", nullptr, Value("TOPIC", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo", "Where the kiosks publish; kiosks/+/state without it."),
    "kiosks/+/state"};
constexpr Option wills{
    "wills", nullptr, Value("TOPIC", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo", "Where their wills are; kiosks/+/will without it."),
    "kiosks/+/will"};
constexpr Option history{"history", nullptr, Value("PLACE", Kind::File),
                         QT_TRANSLATE_NOOP("Velmo",
                                           "What velmo-fleet remembers: a file of SQLite, or "
                                           "postgresql://user@host:port/db?host=/socket/dir.")};
constexpr Option kiosk{
    "kiosk", nullptr, Value("PATTERN", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only kiosks of such names, with * for any characters and ? for "
                      "one; may be given several times.")};
constexpr Option condition{
    "condition", nullptr, Value("NAME", Kind::Condition),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only kiosks that are unknown, silent, out_of_order, faulty or fine; may be "
                      "given several times.")};
constexpr Option reason{
    "reason", nullptr, Value("NAME", Kind::Reason),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only kiosks with a fault of that reason, as stacker_full; may be given "
                      "several times.")};
constexpr Option region{
    "region", nullptr, Value("NAME", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Only kiosks whose names begin with that, up to the first of / - _ and "
                      "the point; may be given several times.")};
constexpr Option count{
    "count", nullptr, Value("WHAT", Kind::Count),
    QT_TRANSLATE_NOOP("Velmo",
                      "In place of the kiosks, how many there are of each reason or "
                      "region.")};
constexpr Option allFaults{
    "long", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo", "Every fault of a kiosk, or what cannot be said, on its own line.")};
constexpr Option availability{
    "availability", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo",
                      "How much of a month, as 2026-11, kiosks were in service; this "
                      "month without one.")};
constexpr Option due{
    "due", nullptr, Value("TIME", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "What will be empty or full within that time, as 90m, 48h, 3d or 2w.")};
constexpr Option wait{
    "wait", nullptr, Value("SECONDS", Kind::Number, 1, 3600),
    QT_TRANSLATE_NOOP("Velmo",
                      "How long to wait for what is missing while nothing comes; 1 without it."),
    "1"};
constexpr Option map{"map", nullptr, Value(),
                     QT_TRANSLATE_NOOP("Velmo", "Write the state as an indented map.")};
constexpr Option formatted{"formatted", nullptr, Value(),
                           QT_TRANSLATE_NOOP("Velmo", "Print the formatted map.")};
constexpr Option source{
    "source", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo", "Say whether the value is from the list or a default.")};
constexpr Option dryRun{"dry-run", "n", Value(),
                        QT_TRANSLATE_NOOP("Velmo", "Write nothing; print what would change.")};
constexpr Option force{"force", "f", Value(),
                       QT_TRANSLATE_NOOP("Velmo", "Write it with the errors that it will have.")};
constexpr Option quiet{"quiet", "q", Value(),
                       QT_TRANSLATE_NOOP("Velmo", "Do not tell what was changed.")};
constexpr Option output{"output", "o", Value("OUT", Kind::File),
                        QT_TRANSLATE_NOOP("Velmo", "Write to OUT, \"-\" for standard output.")};

} // namespace options
