// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/translations.h"
#include "worker.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSysInfo>

#include <csignal>
#include <cstdio>

namespace {

std::atomic<bool> stopAsked{false};

constexpr char languageName[] = "lang";

QCommandLineOption option(const char* name, const QString& help, const char* value = nullptr,
                          const QString& usual = {})
{
    return {QLatin1String(name), help, QLatin1String(value), usual};
}

// Their words are in the language that is shown when they are made.
struct Options
{
    QCommandLineOption broker = option("broker", Diagnosis::tr("The broker: HOST or HOST:PORT."),
                                       "ADDRESS", QStringLiteral("localhost:1883"));
    QCommandLineOption states =
        option("states", Diagnosis::tr("Where kiosks publish their states."), "TOPIC",
               QStringLiteral("kiosks/+/state"));
    QCommandLineOption summaries =
        option("summaries", Diagnosis::tr("Where their summaries are published."), "TOPIC",
               QLatin1String(usualSummaries));
    QCommandLineOption wills =
        option("wills", Diagnosis::tr("Where a message, its will, says that a kiosk is gone."),
               "TOPIC", QStringLiteral("kiosks/+/will"));
    QCommandLineOption group = option("group", Diagnosis::tr("The workers that share the states."),
                                      "NAME", QStringLiteral("velmo"));
    QCommandLineOption name = option("name",
                                     Diagnosis::tr("What its session at the broker goes by; each "
                                                   "worker has its own, the same at each start."),
                                     "NAME", QSysInfo::machineHostName());
    QCommandLineOption expire =
        option("expire", Diagnosis::tr("How long the broker keeps states for it while it is away."),
               "SECONDS", QStringLiteral("86400"));
    QCommandLineOption silent =
        option("silent", Diagnosis::tr("After how long a kiosk is told of as silent; 0 for never."),
               "SECONDS", QStringLiteral("120"));
    QCommandLineOption metrics =
        option("metrics", Diagnosis::tr("Where Prometheus fetches the metrics."), "ADDRESS");
    QCommandLineOption password =
        option("password-file", Diagnosis::tr("A file with USER:PASSWORD."), "FILE");
    QCommandLineOption ca =
        option("tls-ca", Diagnosis::tr("Connect by TLS and trust these certificates."), "PEM");
    QCommandLineOption certificate =
        option("tls-cert", Diagnosis::tr("The client's own certificate."), "PEM");
    QCommandLineOption key = option("tls-key", Diagnosis::tr("Its key."), "PEM");
    QCommandLineOption language =
        option(languageName,
               Diagnosis::tr("The language of the summaries, as \"ru\", in place of the system's."),
               "LANG");
    QCommandLineOption retire = option("retire",
                                       Diagnosis::tr("Take what waits for the session, then end "
                                                     "it: for a worker that is not to come back."));
};

quint32 numberOf(const QCommandLineParser& parser, const QCommandLineOption& option)
{
    bool isNumber = false;
    const quint32 number = parser.value(option).toUInt(&isNumber);
    if (!isNumber)
        throw Fault{Diagnosis::tr("--%1: expected a number").arg(option.names().constFirst())};
    return number;
}

WorkerOptions workerOptions(const QCommandLineParser& parser, const Options& options)
{
    WorkerOptions worker{{},
                         parser.value(options.name),
                         parser.value(options.group),
                         numberOf(parser, options.expire),
                         KioskTopic(parser.value(options.states)),
                         KioskTopic(parser.value(options.summaries)),
                         KioskTopic(parser.value(options.wills)),
                         std::chrono::seconds(numberOf(parser, options.silent)),
                         parser.isSet(options.retire)};
    worker.broker.take(parser.value(options.broker), parser.value(options.password),
                       parser.value(options.ca), parser.value(options.certificate),
                       parser.value(options.key));
    static const QRegularExpression separators(QStringLiteral("[/+#]"));
    if (worker.name.isEmpty() || worker.group.isEmpty() || worker.group.contains(separators))
        throw Fault{Diagnosis::tr("--name and --group: expected a name without /, + and #")};
    return worker;
}

// Before the options are made, which are in that language.
void loadLanguage()
{
    QCommandLineParser parser;
    parser.addOption(option(languageName, {}, "LANG"));
    parser.parse(QCoreApplication::arguments());
    loadTranslations(QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS),
                     {}, parser.value(QLatin1String(languageName)));
}

void run()
{
    loadLanguage();
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Diagnosis::tr("Makes summaries of what kiosks publish at an MQTT broker."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QList<QCommandLineOption> every{
        options.broker, options.states,      options.summaries, options.wills,    options.group,
        options.name,   options.expire,      options.silent,    options.metrics,  options.password,
        options.ca,     options.certificate, options.key,       options.language, options.retire};
    parser.addOptions(every);
    parser.process(QCoreApplication::arguments());
    for (const QCommandLineOption& given : every) {
        // As where a script's variable is not set: it means nothing, least of all the default.
        if (parser.isSet(given) && !given.valueName().isEmpty() && parser.value(given).isEmpty())
            throw Fault{Diagnosis::tr("--%1: expected a value").arg(given.names().constFirst())};
    }
    if (!parser.positionalArguments().isEmpty())
        throw Fault{Diagnosis::tr("unknown argument \"%1\"")
                        .arg(parser.positionalArguments().constFirst())};
    Metrics metrics(parser.value(options.metrics));
    Worker worker(workerOptions(parser, options), metrics);
    worker.run(stopAsked);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(VERSION));
    qSetMessagePattern(QStringLiteral("velmo-fleet: %{message}"));
    const auto stop = [](int) { stopAsked = true; };
    std::signal(SIGTERM, stop);
    std::signal(SIGINT, stop);
    try {
        run();
        return 0;
    } catch (const Fault& fault) {
        fprintf(stderr, "velmo-fleet: %s\n", qPrintable(fault.message));
        return 2;
    }
}
