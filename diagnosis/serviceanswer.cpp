// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "serviceanswer.h"

#include "devicename.h"
#include "fault.h"
#include "jsonreader_p.h"
#include "logtime.h"
#include "words.h"

#include <QJsonObject>

#include <algorithm>

namespace {

const struct
{
    bool (*holds)(const AcceptorStateItem& device);
    const char* text;
} faults[] = {
    {[](const AcceptorStateItem& device) { return !device.enabled(); },
     QT_TRANSLATE_NOOP("Diagnosis", "The device is disabled.")},
    {[](const AcceptorStateItem& device) { return device.halt(); },
     QT_TRANSLATE_NOOP("Diagnosis", "The device is halted.")},
    {[](const AcceptorStateItem& device) { return !device.stackerPresent(); },
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker is missing.")},
    {[](const AcceptorStateItem& device) { return device.stackerFull(); },
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker is full.")},
};

bool isValidator(const AcceptorStateItem& device)
{
    return device.deviceId() >= 1 && device.deviceId() <= 99;
}

JsonText jsonOf(const AcceptorStateItem& device, const QString& name)
{
    const QString model = modelName(device.deviceId());
    return JsonText::object(
        {{"device", device.deviceId()},
         {"thread", device.threadId()},
         {"name", name},
         {"model", model.isEmpty() ? JsonText::null() : JsonText(model)},
         {"kind", kindName(device.deviceId())},
         {"enabled", device.enabled()},
         {"state", device.state()},
         {"state_text", AcceptorState::stateDescr(device.state())},
         {"wrong", JsonText::list(deviceFaults(device))},
         {"notes_inserted", device.notesInserted()},
         {"notes_rejected", device.notesRejected()},
         {"notes_returned", device.notesReturned()},
         {"registry", JsonText::of(QJsonObject::fromVariantMap(device.dispRegistry()))}});
}

} // namespace

QStringList deviceFaults(const AcceptorStateItem& device)
{
    QStringList texts;
    for (const auto& fault : faults) {
        if (fault.holds(device))
            texts += Diagnosis::tr(fault.text);
    }
    if (device.errorCritical()) {
        const QString error =
            device.errorText().isEmpty() ? device.stateText() : device.errorText();
        texts += Diagnosis::tr("The device has a critical error: %1.")
                     .arg(error.isEmpty() ? Diagnosis::tr("no description") : error);
    }
    return texts;
}

QStringList whyNotAccepting(const AcceptorState& state)
{
    const QList<AcceptorStateItem> devices = state.deviceStates();
    if (devices.isEmpty())
        return {Diagnosis::tr("The service tells of no device.")};
    if (state.allDisabled())
        return {Diagnosis::tr("Every device is disabled.")};
    if (state.isAcceptingAllowed())
        return {};
    // Then it is the last validator that decides.
    const auto last = std::find_if(devices.rbegin(), devices.rend(), isValidator);
    QStringList reasons = deviceFaults(*last);
    if (last->state() != AcceptorState::ACCEPTOR_STATE_BUSY) {
        reasons += Diagnosis::tr("The device is not ready for notes; its state: %1.")
                       .arg(AcceptorState::stateDescr(last->state()));
    }
    const QString name = deviceName(last->deviceId());
    for (QString& reason : reasons)
        reason = QStringLiteral("%1: %2").arg(name, reason);
    return reasons;
}

QMap<int, QString> deviceNames(const AcceptorState& state, const QMap<int, QString>& given)
{
    QMap<int, QString> names = given;
    const QList<AcceptorStateItem> devices = state.deviceStates();
    for (const AcceptorStateItem& device : devices) {
        if (!names.contains(device.deviceId()))
            names.insert(device.deviceId(), deviceName(device.deviceId()));
    }
    return names;
}

AcceptorState readServiceState(const QString& json)
{
    JsonReader reader(json);
    bool hasDevices = false;
    QVariant time;
    const bool isObject = reader.isAtObject();
    const bool isWhole = reader.readObject([&](const QString& key) {
        if (key == AcceptorState::DEVICE_STATES)
            hasDevices = reader.isAtArray();
        return key == QLatin1String("time") ? reader.readValue(time) : reader.skipValue();
    });
    if (!isObject || !isWhole || !reader.isAtEnd())
        throw Fault{Diagnosis::tr("expected a JSON object")};
    if (!hasDevices)
        throw Fault{Diagnosis::tr("expected a list \"device_states\"")};
    QDateTime published;
    if (time.isValid())
        published = QDateTime::fromString(LogTime(time).iso(), Qt::ISODateWithMs);
    AcceptorState state;
    AcceptorState::loadFromClientState(quorbus::ClientState(json, published), state);
    return state;
}

std::vector<JsonText::Member> jsonMembers(const AcceptorState& state,
                                          const QMap<int, QString>& names)
{
    const QDateTime time = state.dt();
    const auto device = [&](const AcceptorStateItem& item) {
        return jsonOf(item, names.value(item.deviceId()));
    };
    return {
        {"time", time.isValid() ? JsonText(time.toString(Qt::ISODateWithMs)) : JsonText::null()},
        {"payment_text", state.paymentStateDescr()},
        {"accepting", state.isAcceptingAllowed()},
        {"reasons", JsonText::list(whyNotAccepting(state))},
        {"devices", JsonText::list(state.deviceStates(), device)}};
}
