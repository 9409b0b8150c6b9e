// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "acceptorstate.h"
#include "devicestate.h"
#include "input.h"
#include "jsonlines.h"
#include "log/sessionline.h"
#include "service/serviceanswer.h"
#include "text/devicename.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

// @param text what is in the file
QJsonObject objectIn(const TextInput& file, const QByteArray& text)
{
    const QJsonDocument document = file.parseJson(text, 1);
    if (!document.isObject())
        throw file.faultAt(1, Velmo::tr("expected a JSON object"));
    return document.object();
}

// Display names by device identifier: {"1": "Validator"}.
QMap<int, QString> readNames(const QString& fileName)
{
    TextInput file = openInput(fileName);
    const QJsonObject object = objectIn(file, file.readAll());
    QMap<int, QString> names;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        bool isNumber = false;
        const int id = entry.key().toInt(&isNumber);
        if (!isNumber || !entry.value().isString()) {
            throw Fault{Velmo::tr("%1: \"%2\": expected a device number and a name")
                            .arg(file.name(), entry.key())};
        }
        names.insert(id, entry.value().toString());
    }
    return names;
}

// What is wrong with the devices, whether or not that stops the service.
QStringList allFaults(const PublishedState& state)
{
    QStringList texts;
    for (const PublishedDevice& device : state.devices) {
        const QStringList faults = deviceFaults(device);
        for (const QString& fault : faults)
            texts += QStringLiteral("%1: %2").arg(deviceName(device.deviceId()), fault);
    }
    return texts;
}

QByteArray reportText(const PublishedState& published, const QMap<int, QString>& names)
{
    const AcceptorState& state = published.service;
    const QStringList reasons = whyNotAccepting(published);
    QString text = state.paymentStateDescr() + QLatin1Char('\n')
        + (reasons.isEmpty() ? Velmo::tr("Accepting money: allowed")
                             : Velmo::tr("Accepting money: not allowed"))
        + QLatin1Char('\n');
    for (const QString& reason : reasons)
        text += QStringLiteral("  - %1\n").arg(reason);
    QStringList faults = allFaults(published);
    for (const QString& reason : reasons)
        faults.removeAll(reason);
    if (!faults.isEmpty())
        text += Velmo::tr("Device faults:") + QLatin1Char('\n');
    for (const QString& fault : std::as_const(faults))
        text += QStringLiteral("  - %1\n").arg(fault);
    text += QLatin1Char('\n') + state.systemStatusDescr(names) + QLatin1Char('\n');
    return printableLines(text).toUtf8();
}

PublishedState serviceStateOf(const QByteArray& text, const TextInput& file, qint64 line)
{
    try {
        return readServiceState(decoded(text));
    } catch (const Fault& fault) {
        file.parseJson(text, line); // knows better what is wrong with the text
        throw file.faultAt(line, fault.message);
    }
}

// Whether the file has a state a line, and not one state over many lines.
bool isStateALine(const QString& fileName)
{
    if (fileName == QLatin1String("-"))
        return true;
    TextInput file = openInput(fileName);
    QByteArray first;
    while (first.trimmed().isEmpty() && file.readLine(first)) { }
    return !QJsonDocument::fromJson(first).isNull();
}

DeviceState checkedState(const QByteArray& text)
{
    const SessionLine line(decoded(text));
    const DeviceReport report =
        line.reports().size() == 1 ? line.reports().front() : DeviceReport();
    const QVariantMap every = DeviceState().toMap();
    for (auto key = every.keyBegin(); key != every.keyEnd(); ++key) {
        if (line.isPublished() || !report.has(DeviceReport::bit(*key)))
            throw Fault{Velmo::tr("key \"%1\" is missing").arg(*key)};
    }
    if (line.startsSession())
        throw Fault{Velmo::tr("unknown key \"%1\"").arg(QLatin1String("session"))};
    if (line.time().isKnown())
        throw Fault{Velmo::tr("unknown key \"%1\"").arg(QLatin1String("time"))};
    DeviceState state;
    report.applyTo(state);
    return state;
}

} // namespace

int reportCommand(const Arguments& arguments)
{
    const QMap<int, QString> given = arguments.isSet(options::names)
        ? readNames(arguments.value(options::names))
        : QMap<int, QString>();
    const bool isJson = arguments.isSet(options::json);
    const bool isWatched = arguments.isSet(options::watch);
    if (isJson && isWatched)
        throw arguments.usageFault();
    StateWriter writer(given);
    const auto toText = [&](const PublishedState& state) {
        return isJson ? '{' + writer.members(state) + "}\n"
                      : reportText(state, deviceNames(state, given));
    };
    const QString fileName = arguments.operands().constFirst();
    const bool hasLines = isStateALine(fileName);
    TextInput file = openInput(fileName);
    if (!hasLines) {
        print(QString::fromUtf8(toText(serviceStateOf(file.readAll(), file, 1))));
        return exitSuccess;
    }
    bool isFirst = true;
    const auto report = [&](const QByteArray& text) {
        const PublishedState state = serviceStateOf(text, file, file.lineNumber());
        QString before;
        if (isWatched)
            before = QStringLiteral("\033[2J\033[H");
        else if (!isJson && !isFirst)
            before = Velmo::tr("-- line %1 --").arg(file.lineNumber()) + QLatin1Char('\n');
        isFirst = false;
        return before.toUtf8() + toText(state);
    };
    return processLines(file, arguments.isSet(options::keepGoing), report);
}

int stateCommand(const Arguments& arguments)
{
    TextInput file = openInput(arguments.operands().constFirst());
    const QByteArray text = file.readAll();
    objectIn(file, text);
    DeviceState state;
    try {
        state = checkedState(text);
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("%1: %2").arg(file.name(), fault.message)};
    }
    const QJsonDocument document(QJsonObject::fromVariantMap(state.toMap()));
    print(arguments.isSet(options::map) ? QString::fromUtf8(document.toJson())
                                        : state.serialize() + QLatin1Char('\n'));
    return exitSuccess;
}
