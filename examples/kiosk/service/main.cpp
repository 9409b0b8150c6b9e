// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorservice.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>
#include <stdexcept>

namespace {

std::runtime_error fault(const QString& message)
{
    return std::runtime_error(message.toStdString());
}

QJsonArray readFilters(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw fault(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isArray())
        throw fault(QStringLiteral("%1: expected a JSON array").arg(fileName));
    return document.array();
}

void setMoney(AcceptorService& service, const QString& money)
{
    static const QRegularExpression form(QStringLiteral("^([A-Z]{3}):([0-4])$"));
    const QRegularExpressionMatch match = form.match(money);
    if (!match.hasMatch())
        throw fault(QStringLiteral("--money %1: expected a currency's code and 0 to 4, as in RUB:2")
                        .arg(money));
    service.setMoney(match.captured(1), match.captured(2).toInt());
}

int run(QCoreApplication& app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A simulated acceptor service."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("SESSION.jsonl..."),
                                 QStringLiteral("What each device reports, a file for each."));
    const QCommandLineOption filters(QStringLiteral("filters"),
                                     QStringLiteral("The note filters of every device."),
                                     QStringLiteral("FILTERS.json"));
    const QCommandLineOption interval(
        QStringLiteral("step"),
        QStringLiteral("The time between two lines; 0 waits for calls of step() on the bus."),
        QStringLiteral("MILLISECONDS"), QStringLiteral("1000"));
    const QCommandLineOption recording(
        QStringLiteral("record"),
        QStringLiteral("Append what the devices report to a session log, for velmo explain."),
        QStringLiteral("LOG.jsonl"));
    const QCommandLineOption looping(QStringLiteral("loop"),
                                     QStringLiteral("Begin again when all sessions are over."));
    const QCommandLineOption money(
        QStringLiteral("money"),
        QStringLiteral(
            "In which currency sums are, and how many digits of them stand after the point."),
        QStringLiteral("RUB:0"));
    const QCommandLineOption change(
        QStringLiteral("change"), QStringLiteral("What becomes of change: none, paid or credited."),
        QStringLiteral("none"));
    parser.addOptions({filters, interval, recording, looping, money, change});
    parser.process(app);

    bool isNumber = false;
    const int milliseconds = parser.value(interval).toInt(&isNumber);
    if (parser.positionalArguments().isEmpty() || !isNumber || milliseconds < 0)
        parser.showHelp(2);

    AcceptorService service(parser.positionalArguments(),
                            parser.isSet(filters) ? readFilters(parser.value(filters))
                                                  : QJsonArray());
    if (parser.isSet(money))
        setMoney(service, parser.value(money));
    if (parser.isSet(change)) {
        const QStringList known{QStringLiteral("none"), QStringLiteral("paid"),
                                QStringLiteral("credited")};
        if (!known.contains(parser.value(change)))
            throw fault(QStringLiteral("--change %1: expected %2")
                            .arg(parser.value(change), known.join(QStringLiteral(", "))));
        service.setChange(parser.value(change));
    }
    if (parser.isSet(recording))
        service.record(parser.value(recording));
    service.setLooping(parser.isSet(looping));
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        throw fault(QStringLiteral("no session bus: %1").arg(bus.lastError().message()));
    // The object first: whoever sees the name may call at once.
    if (!bus.registerObject(acceptorBus::PATH, &service,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals)
        || !bus.registerService(acceptorBus::SERVICE)) {
        throw fault(QStringLiteral("%1 is on the bus already").arg(acceptorBus::SERVICE));
    }
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), &app,
                SLOT(quit()));

    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &service, [&timer, &service] {
        if (!service.step())
            timer.stop();
    });
    if (milliseconds > 0)
        timer.start(milliseconds);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    try {
        return run(app);
    } catch (const std::exception& fault) {
        fprintf(stderr, "acceptorservice: %s\n", fault.what());
        return 2;
    }
}
