#include "statecommands.h"

#include "acceptorstate.h"
#include "commandline.h"
#include "devicestate.h"
#include "fault.h"
#include "jsonlines.h"
#include "output.h"
#include "sessionline.h"
#include "textfile.h"

#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Does what may find fault with the contents of a file, and names the file then.
template <typename Work>
auto inFile(const TextFile& file, Work work)
{
    try {
        return work();
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("%1: %2").arg(file.name(), fault.message)};
    }
}

QJsonObject readObject(TextFile& file)
{
    const QJsonDocument document = file.parseJson(file.readAll(), 1);
    if (!document.isObject())
        throw file.faultAt(1, QStringLiteral("expected a JSON object"));
    return document.object();
}

// Display names by device identifier: {"1": "Validator"}.
QMap<int, QString> readNames(const QString& fileName)
{
    TextFile file(fileName);
    const QJsonObject object = readObject(file);
    QMap<int, QString> names;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        bool isNumber = false;
        const int id = entry.key().toInt(&isNumber);
        if (!isNumber || !entry.value().isString()) {
            throw Fault{QStringLiteral("%1: \"%2\": expected a device number and a name")
                            .arg(file.name(), entry.key())};
        }
        names.insert(id, entry.value().toString());
    }
    return names;
}

QByteArray report(const QJsonObject& published, const QMap<int, QString>& names)
{
    if (!published.value(QStringLiteral("device_states")).isArray())
        throw Fault{QStringLiteral("expected a list \"device_states\"")};
    AcceptorState state;
    AcceptorState::loadFromStateMap(published.toVariantMap(), state);
    const QString allowed =
        state.isAcceptingAllowed() ? QStringLiteral("allowed") : QStringLiteral("not allowed");
    return QStringLiteral("%1\nAccepting money: %2\n\n%3\n")
        .arg(state.paymentStateDescr(), allowed, state.systemStatusDescr(names))
        .toUtf8();
}

DeviceState checkedState(const QJsonObject& object)
{
    const SessionLine line(object);
    const QVariantMap every = DeviceState().toMap();
    for (auto key = every.keyBegin(); key != every.keyEnd(); ++key) {
        if (!object.contains(*key))
            throw Fault{QStringLiteral("key \"%1\" is missing").arg(*key)};
    }
    if (line.startsSession())
        throw Fault{QStringLiteral("unknown key \"session\"")};
    DeviceState state;
    line.applyTo(state);
    return state;
}

} // namespace

int reportCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "What the customer is told, whether money may be accepted, and the service report, for a "
        "published service state {\"device_states\": [...]}."));
    parser.addPositionalArgument(QStringLiteral("report"), QString(), QStringLiteral("report"));
    parser.addPositionalArgument(
        QStringLiteral("STATE.json"),
        QStringLiteral("One state; \"-\" reads standard input, one state a line."));
    const QCommandLineOption namesFile(
        QStringLiteral("names"),
        QStringLiteral("Display names by device identifier: {\"1\": \"Validator\"}."),
        QStringLiteral("NAMES.json"));
    const QCommandLineOption watch(QStringLiteral("watch"),
                                   QStringLiteral("Clear the terminal before every state."));
    const QCommandLineOption keepGoing = keepGoingOption();
    parser.addOptions({namesFile, watch, keepGoing});
    if (!parseArguments(parser, arguments))
        return exitSuccess;
    if (parser.positionalArguments().size() != 2) {
        throw Fault{QStringLiteral(
            "usage: velmo report STATE.json|- [--names NAMES.json] [--watch] [--keep-going]")};
    }

    QMap<int, QString> names;
    if (parser.isSet(namesFile))
        names = readNames(parser.value(namesFile));
    TextFile file(parser.positionalArguments().at(1));
    const QByteArray before = parser.isSet(watch) ? "\033[2J\033[H" : "";
    const auto toText = [&](const QJsonObject& published) {
        return before + report(published, names);
    };
    if (parser.positionalArguments().at(1) == QLatin1String("-"))
        return processJsonLines(file, parser.isSet(keepGoing), toText);
    const QJsonObject published = readObject(file);
    print(QString::fromUtf8(inFile(file, [&] { return toText(published); })));
    return exitSuccess;
}

int stateCommand(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Checks a device state, every key and value of it, and writes it as the "
                       "compact text that the service sends."));
    parser.addPositionalArgument(QStringLiteral("state"), QString(), QStringLiteral("state"));
    parser.addPositionalArgument(
        QStringLiteral("STATE.json"),
        QStringLiteral("The state in either form; \"-\" reads standard input."));
    const QCommandLineOption map(QStringLiteral("map"),
                                 QStringLiteral("Write it as an indented map."));
    parser.addOption(map);
    if (!parseArguments(parser, arguments))
        return exitSuccess;
    if (parser.positionalArguments().size() != 2)
        throw Fault{QStringLiteral("usage: velmo state STATE.json [--map]")};
    TextFile file(parser.positionalArguments().at(1));
    const QJsonObject object = readObject(file);
    const DeviceState state = inFile(file, [&] { return checkedState(object); });
    const QJsonDocument document(QJsonObject::fromVariantMap(state.toMap()));
    print(parser.isSet(map) ? QString::fromUtf8(document.toJson())
                            : state.serialize() + QLatin1Char('\n'));
    return exitSuccess;
}
