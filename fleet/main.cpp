// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fault.h"
#include "translations.h"
#include "words.h"
#include "worker.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSysInfo>

#include <csignal>
#include <cstdio>

namespace {

std::atomic<bool> stopAsked{false};

struct Options
{
    QCommandLineOption broker{QStringLiteral("broker"),
                              QStringLiteral("The broker: HOST or HOST:PORT."),
                              QStringLiteral("ADDRESS"), QStringLiteral("localhost:1883")};
    QCommandLineOption states{QStringLiteral("states"),
                              QStringLiteral("Where kiosks publish their states."),
                              QStringLiteral("TOPIC"), QStringLiteral("kiosks/+/state")};
    QCommandLineOption summaries{QStringLiteral("summaries"),
                                 QStringLiteral("Where their summaries are published."),
                                 QStringLiteral("TOPIC"), QStringLiteral("kiosks/%1/summary")};
    QCommandLineOption wills{
        QStringLiteral("wills"),
        QStringLiteral("Where a message, its will, says that a kiosk is gone."),
        QStringLiteral("TOPIC"), QStringLiteral("kiosks/+/will")};
    QCommandLineOption group{QStringLiteral("group"),
                             QStringLiteral("The workers that share the states."),
                             QStringLiteral("NAME"), QStringLiteral("velmo")};
    QCommandLineOption name{
        QStringLiteral("name"),
        QStringLiteral("What its session at the broker goes by; each worker has "
                       "its own, the same at each start."),
        QStringLiteral("NAME"), QSysInfo::machineHostName()};
    QCommandLineOption expire{QStringLiteral("expire"),
                              QStringLiteral("How long the broker keeps states for it while it is "
                                             "away."),
                              QStringLiteral("SECONDS"), QStringLiteral("86400")};
    QCommandLineOption silent{QStringLiteral("silent"),
                              QStringLiteral("After how long a kiosk is told of as silent; 0 for "
                                             "never."),
                              QStringLiteral("SECONDS"), QStringLiteral("120")};
    QCommandLineOption metrics{QStringLiteral("metrics"),
                               QStringLiteral("Where Prometheus fetches the metrics."),
                               QStringLiteral("ADDRESS")};
    QCommandLineOption password{QStringLiteral("password-file"),
                                QStringLiteral("A file with USER:PASSWORD."),
                                QStringLiteral("FILE")};
    QCommandLineOption ca{QStringLiteral("tls-ca"),
                          QStringLiteral("Connect by TLS and trust these certificates."),
                          QStringLiteral("PEM")};
    QCommandLineOption certificate{QStringLiteral("tls-cert"),
                                   QStringLiteral("The client's own certificate."),
                                   QStringLiteral("PEM")};
    QCommandLineOption key{QStringLiteral("tls-key"), QStringLiteral("Its key."),
                           QStringLiteral("PEM")};
    QCommandLineOption language{QStringLiteral("lang"),
                                QStringLiteral("The language of the summaries, as \"ru\", in place "
                                               "of the system's."),
                                QStringLiteral("LANG")};
    QCommandLineOption retire{QStringLiteral("retire"),
                              QStringLiteral("Take what waits for the session, then end it: for a "
                                             "worker that is not to come back.")};
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
    if (worker.name.isEmpty() || worker.group.isEmpty() || worker.group.contains(QLatin1Char('/')))
        throw Fault{Diagnosis::tr("--name and --group: expected a name without \"/\"")};
    return worker;
}

void run(const QCommandLineParser& parser, const Options& options)
{
    loadTranslations(QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS),
                     {}, parser.value(options.language));
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
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes summaries of what kiosks publish at an MQTT broker."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({options.broker, options.states, options.summaries, options.wills,
                       options.group, options.name, options.expire, options.silent, options.metrics,
                       options.password, options.ca, options.certificate, options.key,
                       options.language, options.retire});
    parser.process(application);
    const auto stop = [](int) { stopAsked = true; };
    std::signal(SIGTERM, stop);
    std::signal(SIGINT, stop);
    try {
        if (!parser.positionalArguments().isEmpty())
            throw Fault{Diagnosis::tr("unknown argument \"%1\"")
                            .arg(parser.positionalArguments().constFirst())};
        run(parser, options);
        return 0;
    } catch (const Fault& fault) {
        fprintf(stderr, "velmo-fleet: %s\n", qPrintable(fault.message));
        return 2;
    }
}
