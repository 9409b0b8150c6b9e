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
                      "Make the exit code 1 when the filters refused something, or "
                      "something does not add up.")};
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
constexpr Option wait{
    "wait", nullptr, Value("SECONDS", Kind::Number, 1, 3600),
    QT_TRANSLATE_NOOP("Velmo",
                      "How long no further summary comes before all are taken to have "
                      "come; 1 without it."),
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
