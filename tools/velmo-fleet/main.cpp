// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historyrecorder.h"
#include "terminal/option.h"
#include "terminal/output.h"
#include "text/fault.h"
#include "webserver.h"
#include "worker.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSysInfo>

#include <csignal>
#include <memory>
#include <optional>

namespace options {

constexpr Value seconds("SECONDS", Kind::Number, 0, std::numeric_limits<quint32>::max());

constexpr Option states{"states", nullptr, Value("TOPIC", Kind::Text),
                        QT_TRANSLATE_NOOP("Velmo", "Where kiosks publish their states."),
                        "kiosks/+/state"};
constexpr Option summaries{"summaries", nullptr, Value("TOPIC", Kind::Text),
                           QT_TRANSLATE_NOOP("Velmo", "Where their summaries are published."),
                           usualSummaries};
constexpr Option wills{
    "wills", nullptr, Value("TOPIC", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo", "Where a message, its will, says that a kiosk is gone."),
    "kiosks/+/will"};
constexpr Option status{"status", nullptr, Value("TOPIC", Kind::Text),
                        QT_TRANSLATE_NOOP("Velmo", "Where workers tell of themselves."),
                        usualStatus};
constexpr Option name{
    "name", nullptr, Value("NAME", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "What the worker goes by among the others; host and process without it.")};
constexpr Option partition{
    "partition", nullptr, Value("I/N", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo", "Which part of the kiosks it summarises, of so many."), "1/1"};
constexpr Option silent{
    "silent", nullptr, seconds,
    QT_TRANSLATE_NOOP("Velmo", "After how long a kiosk is told of as silent; 0 for never."), "120"};
constexpr Option forgetAfter{
    "forget", nullptr, Value("DAYS", Kind::Number, 0, 36500),
    QT_TRANSLATE_NOOP("Velmo",
                      "After how many days a kiosk that stays silent is forgotten; 0 for never."),
    "30"};
constexpr Option history{
    "history", nullptr, Value("PLACE", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Where to keep the history of the kiosks: a file of SQLite, or "
                      "postgresql://USER@HOST/DATABASE.")};
constexpr Option metrics{
    "metrics", nullptr, Value("ADDRESS", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Where the page of the kiosks is, and where Prometheus fetches the metrics, "
                      "as \"127.0.0.1:9464\".")};
constexpr Option language{
    "lang", nullptr, Value("LANG", Kind::Language),
    QT_TRANSLATE_NOOP("Velmo",
                      "The language of the summaries, as \"ru\", in place of the system's.")};
// In the order of the help.
const Option* const every[] = {
    &broker,      &states,  &summaries, &wills,        &status, &name,    &partition, &silent,
    &forgetAfter, &history, &metrics,   &passwordFile, &tlsCa,  &tlsCert, &tlsKey,    &language};

} // namespace options

namespace {

std::atomic<bool> stopAsked{false};

WorkerOptions workerOptions(const GivenOptions& given)
{
    const WorkerOptions worker{given.broker(),
                               given.isSet(options::name)
                                   ? given.value(options::name)
                                   : QStringLiteral("%1.%2")
                                         .arg(QSysInfo::machineHostName())
                                         .arg(QCoreApplication::applicationPid()),
                               Partition(given.value(options::partition)),
                               KioskTopic(given.value(options::states)),
                               KioskTopic(given.value(options::summaries)),
                               KioskTopic(given.value(options::wills)),
                               KioskTopic(given.value(options::status)),
                               std::chrono::seconds(given.number(options::silent)),
                               int(given.number(options::forgetAfter))};
    static const QRegularExpression separators(QStringLiteral("[/+#]"));
    if (worker.name.contains(separators))
        throw Fault{Velmo::tr("--name: expected a name without /, + and #")};
    const int levels = worker.states.nameLevels();
    if (levels != worker.summaries.nameLevels() || levels != worker.wills.nameLevels())
        throw Fault{Velmo::tr("--states, --summaries and --wills: expected as many levels of the "
                              "kiosk's name in each")};
    const bool hasPart = worker.states.hasPart();
    if (hasPart != worker.summaries.hasPart() || hasPart != worker.wills.hasPart())
        throw Fault{Velmo::tr("--states, --summaries and --wills: expected %1 in each or in none")
                        .arg(QStringLiteral("%part"))};
    return worker;
}

void run()
{
    loadAskedLanguage(options::language);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Velmo::tr("Makes summaries of what kiosks publish at an MQTT broker."));
    parser.addHelpOption();
    parser.addVersionOption();
    for (const Option* const option : options::every) {
        QCommandLineOption known = option->forParser();
        if (option->usual) {
            known.setDescription(
                Velmo::tr("%1; %2 without it.")
                    .arg(known.description().chopped(1), QString::fromLatin1(option->usual)));
        }
        parser.addOption(known);
    }
    if (!parser.parse(QCoreApplication::arguments()))
        throw Fault{parser.errorText()};
    parser.process(QCoreApplication::arguments()); // --help and --version
    const GivenOptions given(parser);
    for (const Option* const option : options::every)
        given.requireValue(*option);
    if (!parser.positionalArguments().isEmpty())
        throw Fault{
            Velmo::tr("unknown argument \"%1\"").arg(parser.positionalArguments().constFirst())};
    const WorkerOptions chosen = workerOptions(given);
    Metrics metrics(chosen.part.text());
    std::unique_ptr<HistoryRecorder> history;
    if (given.isSet(options::history)) {
        history = std::make_unique<HistoryRecorder>(given.value(options::history),
                                                    chosen.part.text(), chosen.name);
    }
    Worker worker(chosen, metrics, history.get());
    std::optional<WebServer> server;
    if (given.isSet(options::metrics)) {
        server.emplace(given.value(options::metrics), metrics.registry(),
                       WebServer::Sources{[&worker](bool all) { return worker.json(all); },
                                          given.value(options::history)});
    }
    worker.run(stopAsked);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velmo-fleet"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VERSION));
    qSetMessagePattern(QStringLiteral("velmo-fleet: %{message}"));
    const auto stop = [](int) { stopAsked = true; };
    std::signal(SIGTERM, stop);
    std::signal(SIGINT, stop);
    try {
        run();
        return exitSuccess;
    } catch (const Fault& fault) {
        printError(fault.message);
        return exitBadInput;
    }
}
