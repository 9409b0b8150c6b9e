// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "acceptorstate.h"
#include "devicestate.h"
#include "inputfile.h"
#include "jsonlines.h"
#include "options.h"
#include "output.h"
#include "sessionline.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Does what may find fault with the contents of a file, and names the file then.
template <typename Work>
auto inFile(const TextInput& file, Work work)
{
    try {
        return work();
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("%1: %2").arg(file.name(), fault.message)};
    }
}

QJsonObject readObject(TextInput& file, QByteArray* text = nullptr)
{
    const QByteArray read = file.readAll();
    const QJsonDocument document = file.parseJson(read, 1);
    if (!document.isObject())
        throw file.faultAt(1, QStringLiteral("expected a JSON object"));
    if (text)
        *text = read;
    return document.object();
}

// Display names by device identifier: {"1": "Validator"}.
QMap<int, QString> readNames(const QString& fileName)
{
    TextInput file = openInput(fileName);
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

DeviceState checkedState(const QByteArray& text)
{
    const SessionLine line(QString::fromUtf8(text));
    const DeviceReport report =
        line.reports().size() == 1 ? line.reports().front() : DeviceReport();
    const QVariantMap every = DeviceState().toMap();
    for (auto key = every.keyBegin(); key != every.keyEnd(); ++key) {
        if (line.isPublished() || !report.has(DeviceReport::bit(*key)))
            throw Fault{QStringLiteral("key \"%1\" is missing").arg(*key)};
    }
    if (line.startsSession())
        throw Fault{QStringLiteral("unknown key \"session\"")};
    if (line.time().isKnown())
        throw Fault{QStringLiteral("unknown key \"time\"")};
    DeviceState state;
    report.applyTo(state);
    return state;
}

} // namespace

int reportCommand(const Arguments& arguments)
{
    QMap<int, QString> names;
    if (arguments.isSet(options::names))
        names = readNames(arguments.value(options::names));
    const QString fileName = arguments.operands().constFirst();
    TextInput file = openInput(fileName);
    const QByteArray before = arguments.isSet(options::watch) ? "\033[2J\033[H" : "";
    const auto toText = [&](const QJsonObject& published) {
        return before + report(published, names);
    };
    if (fileName == QLatin1String("-"))
        return processJsonLines(file, arguments.isSet(options::keepGoing), toText);
    const QJsonObject published = readObject(file);
    print(QString::fromUtf8(inFile(file, [&] { return toText(published); })));
    return exitSuccess;
}

int stateCommand(const Arguments& arguments)
{
    TextInput file = openInput(arguments.operands().constFirst());
    QByteArray text;
    readObject(file, &text);
    const DeviceState state = inFile(file, [&] { return checkedState(text); });
    const QJsonDocument document(QJsonObject::fromVariantMap(state.toMap()));
    print(arguments.isSet(options::map) ? QString::fromUtf8(document.toJson())
                                        : state.serialize() + QLatin1Char('\n'));
    return exitSuccess;
}
