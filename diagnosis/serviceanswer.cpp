// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "serviceanswer.h"

#include "devicename.h"
#include "devicestatesconst.h"
#include "fault.h"
#include "jsonreader_p.h"
#include "logtime.h"
#include "words.h"

#include <QJsonObject>

#include <algorithm>
#include <numeric>

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

JsonText jsonOf(const AcceptorStateItem& device, bool isOffline, const QString& name)
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
         {"wrong", JsonText::list(deviceFaults(device, isOffline))},
         {"notes_inserted", device.notesInserted()},
         {"notes_rejected", device.notesRejected()},
         {"notes_returned", device.notesReturned()},
         {"registry", JsonText::of(QJsonObject::fromVariantMap(device.dispRegistry()))}});
}

// Reads what the entries of the devices do not keep; there is an entry for all but null.
bool readDetails(JsonReader& reader, std::vector<PublishedState::Details>& details)
{
    using namespace deviceStateDescConst;
    details.clear(); // of doubled keys the last one counts
    return reader.readArray([&] {
        QVariant value;
        if (!reader.isAtObject()) {
            const bool isSound = reader.readValue(value);
            if (isSound && !value.isNull())
                details.emplace_back();
            return isSound;
        }
        PublishedState::Details& device = details.emplace_back();
        return reader.readObject([&](const QString& key) {
            if (key != ONLINE && key != SESSION_SUM && key != CURRENT_NOTE)
                return reader.skipValue();
            const bool isSound = reader.readValue(value);
            if (key == ONLINE)
                device.isOffline = !value.toBool();
            else
                (key == SESSION_SUM ? device.sessionSum : device.currentNote) = value.toInt();
            return isSound;
        });
    });
}

} // namespace

qint64 PublishedState::sessionSum() const
{
    return std::accumulate(
        details.begin(), details.end(), qint64(0),
        [](qint64 sum, const Details& device) { return sum + device.sessionSum; });
}

QStringList deviceFaults(const AcceptorStateItem& device, bool isOffline)
{
    QStringList texts;
    for (const auto& fault : faults) {
        if (fault.holds(device))
            texts += Diagnosis::tr(fault.text);
    }
    if (isOffline)
        texts += Diagnosis::tr("The device is offline.");
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
    QStringList reasons = deviceFaults(*last, false);
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

PublishedState readServiceState(const QString& json)
{
    JsonReader reader(json);
    PublishedState state;
    bool hasDevices = false;
    QVariant time;
    const bool isObject = reader.isAtObject();
    const bool isWhole = reader.readObject([&](const QString& key) {
        if (key == AcceptorState::DEVICE_STATES) {
            hasDevices = reader.isAtArray();
            return hasDevices ? readDetails(reader, state.details) : reader.skipValue();
        }
        if (key == QLatin1String("time"))
            return reader.readValue(time);
        if (key != QLatin1String("refusals"))
            return reader.skipValue();
        QVariant refusals;
        const bool isSound = reader.readValue(refusals);
        state.refusals = refusals.toList();
        return isSound;
    });
    if (!isObject || !isWhole || !reader.isAtEnd())
        throw Fault{Diagnosis::tr("expected a JSON object")};
    if (!hasDevices)
        throw Fault{Diagnosis::tr("expected a list \"device_states\"")};
    QDateTime published;
    if (time.isValid())
        published = QDateTime::fromString(LogTime(time).iso(), Qt::ISODateWithMs);
    AcceptorState::loadFromClientState(quorbus::ClientState(json, published), state.service);
    return state;
}

std::vector<JsonText::Member> jsonMembers(const PublishedState& state,
                                          const QMap<int, QString>& names)
{
    const AcceptorState& service = state.service;
    const QDateTime time = service.dt();
    auto details = state.details.begin();
    const auto device = [&](const AcceptorStateItem& item) {
        return jsonOf(item, (details++)->isOffline, names.value(item.deviceId()));
    };
    return {
        {"time", time.isValid() ? JsonText(time.toString(Qt::ISODateWithMs)) : JsonText::null()},
        {"payment_text", service.paymentStateDescr()},
        {"accepting", service.isAcceptingAllowed()},
        {"reasons", JsonText::list(whyNotAccepting(service))},
        {"devices", JsonText::list(service.deviceStates(), device)}};
}
