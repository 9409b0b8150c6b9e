// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

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
constexpr Option group{"group", nullptr, Value("NAME", Kind::Text),
                       QT_TRANSLATE_NOOP("Velmo", "The workers that share the states."), "velmo"};
constexpr Option name{
    "name", nullptr, Value("NAME", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "What its session at the broker goes by; each worker has its own, the same "
                      "at each start.")};
constexpr Option expire{
    "expire", nullptr, seconds,
    QT_TRANSLATE_NOOP("Velmo", "How long the broker keeps states for it while it is away."),
    "86400"};
constexpr Option silent{
    "silent", nullptr, seconds,
    QT_TRANSLATE_NOOP("Velmo", "After how long a kiosk is told of as silent; 0 for never."), "120"};
constexpr Option metrics{
    "metrics", nullptr, Value("ADDRESS", Kind::Text),
    QT_TRANSLATE_NOOP("Velmo",
                      "Where the page of the kiosks is, and where Prometheus fetches the "
                      "metrics, as \"127.0.0.1:9464\".")};
constexpr Option language{
    "lang", nullptr, Value("LANG", Kind::Language),
    QT_TRANSLATE_NOOP("Velmo",
                      "The language of the summaries, as \"ru\", in place of the system's.")};
constexpr Option retire{
    "retire", nullptr, Value(),
    QT_TRANSLATE_NOOP("Velmo",
                      "Take what waits for the session, then end it: for a worker that is not to "
                      "come back.")};

// In the order of the help.
const Option* const every[] = {&broker, &states,  &summaries, &wills,    &group,
                               &name,   &expire,  &silent,    &metrics,  &passwordFile,
                               &tlsCa,  &tlsCert, &tlsKey,    &language, &retire};

} // namespace options

namespace {

std::atomic<bool> stopAsked{false};

WorkerOptions workerOptions(const GivenOptions& given)
{
    const WorkerOptions worker{given.broker(),
                               given.isSet(options::name) ? given.value(options::name)
                                                          : QSysInfo::machineHostName(),
                               given.value(options::group),
                               quint32(given.number(options::expire)),
                               KioskTopic(given.value(options::states)),
                               KioskTopic(given.value(options::summaries)),
                               KioskTopic(given.value(options::wills)),
                               std::chrono::seconds(given.number(options::silent)),
                               given.isSet(options::retire)};
    static const QRegularExpression separators(QStringLiteral("[/+#]"));
    if (worker.name.isEmpty() || worker.group.isEmpty() || worker.group.contains(separators))
        throw Fault{Velmo::tr("--name and --group: expected a name without /, + and #")};
    return worker;
}

void run()
{
    QCommandLineParser early; // the options are made in the language that is shown
    early.addOption(options::language.forParser());
    early.parse(QCoreApplication::arguments());
    loadLanguage(GivenOptions(early).value(options::language));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Velmo::tr("Makes summaries of what kiosks publish at an MQTT broker."));
    parser.addHelpOption();
    parser.addVersionOption();
    for (const Option* const option : options::every)
        parser.addOption(option->forParser());
    parser.process(QCoreApplication::arguments());
    const GivenOptions given(parser);
    for (const Option* const option : options::every)
        given.requireValue(*option);
    if (!parser.positionalArguments().isEmpty())
        throw Fault{
            Velmo::tr("unknown argument \"%1\"").arg(parser.positionalArguments().constFirst())};
    Metrics metrics;
    Worker worker(workerOptions(given), metrics);
    std::optional<WebServer> server;
    if (given.isSet(options::metrics)) {
        server.emplace(given.value(options::metrics), metrics.registry(),
                       WebServer::Sources{[&worker](bool all) { return worker.json(all); }, {}});
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
