// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/serviceanswer.h"

#include "devicestatesconst.h"
#include "statitem.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/logtime.h"
#include "json/jsonreader.h"
#include "json/variants.h"

#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

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

// Beyond so many different ones, texts that come from outside are not remembered.
constexpr int mostRemembered = 1000;

// As Qt::ISODateWithMs has it, in a tenth of the time.
void append(JsonBuffer& json, const QDateTime& time)
{
    if (!time.isValid()) {
        json << "null";
        return;
    }
    const QDate date = time.date();
    if (time.timeSpec() != Qt::UTC || date.year() < 1000 || date.year() > 9999) {
        json.append(time.toString(Qt::ISODateWithMs));
        return;
    }
    const QTime clock = time.time();
    char text[] = "\"yyyy-mm-ddThh:mm:ss.zzzZ\"";
    const auto put = [&text](int at, int digits, int number) {
        for (int place = at + digits - 1; place >= at; --place, number /= 10)
            text[place] = char('0' + number % 10);
    };
    put(1, 4, date.year());
    put(6, 2, date.month());
    put(9, 2, date.day());
    put(12, 2, clock.hour());
    put(15, 2, clock.minute());
    put(18, 2, clock.second());
    put(21, 3, clock.msec());
    json << text;
}

// Reads what the entries of the devices do not keep; there is an entry for all but null.
bool readDetails(JsonReader& reader, std::vector<PublishedState::Details>& details)
{
    using namespace deviceStateDescConst;
    enum Key : std::size_t { CurrentNote, Inserted, Rejected, Returned, Online, SessionSum, Other };
    static const KeyOrder keys(std::array{&CURRENT_NOTE, &StatItem::NOTES_INSERTED,
                                          &StatItem::NOTES_REJECTED, &StatItem::NOTES_RETURNED,
                                          &ONLINE, &SESSION_SUM});
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
        return reader.readObject(keys, [&](std::size_t key, QStringView) {
            if (key == Other)
                return reader.skipValue();
            const bool isSound = reader.readValue(value);
            switch (key) {
            case Inserted:
                device.notesInserted = counterOf(value);
                break;
            case Rejected:
                device.notesRejected = counterOf(value);
                break;
            case Returned:
                device.notesReturned = counterOf(value);
                break;
            case Online:
                device.isOffline = !Variants::toBool(value);
                break;
            default:
                (key == SessionSum ? device.sessionSum : device.currentNote) =
                    Variants::toInt(value);
            }
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

qint64 counterOf(const QVariant& published)
{
    const bool isBeyond = published.userType() == QMetaType::Double
        && std::abs(published.toDouble()) >= 9223372036854775808.0;
    if (!isBeyond)
        return Variants::toLongLong(published);
    return published.toDouble() < 0 ? std::numeric_limits<qint64>::min()
                                    : std::numeric_limits<qint64>::max();
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
    const bool isWhole = reader.readObject([&](QStringView key) {
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
    const QDateTime published = time.isValid() ? LogTime(time).toDateTime() : QDateTime();
    AcceptorState::loadFromClientState(quorbus::ClientState(json, published), state.service);
    return state;
}

StateWriter::StateWriter(const QMap<int, QString>& names)
    : m_names(names)
{
}

QByteArray StateWriter::members(const PublishedState& state)
{
    const AcceptorState& service = state.service;
    JsonBuffer json;
    json << "\"time\":";
    ::append(json, service.dt());
    json << ",\"payment_text\":";
    json.append(service.paymentStateDescr());
    json << ",\"accepting\":";
    json.append(service.isAcceptingAllowed());
    json << ",\"reasons\":" << JsonText::list(whyNotAccepting(service)) << ",\"devices\":";
    char before = '[';
    auto details = state.details.begin();
    const QList<AcceptorStateItem> devices = service.deviceStates();
    for (const AcceptorStateItem& device : devices) {
        json << std::exchange(before, ',');
        append(json, device, *details++);
    }
    if (devices.isEmpty())
        json << before;
    json << ']';
    return json.text();
}

void StateWriter::append(JsonBuffer& json, const AcceptorStateItem& device,
                         const PublishedState::Details& details)
{
    json << "{\"device\":";
    json.append(device.deviceId());
    json << ",\"thread\":";
    json.append(device.threadId());
    json << model(device.deviceId()) << ",\"enabled\":";
    json.append(device.enabled());
    json << state(device.state())
         << ",\"wrong\":" << JsonText::list(deviceFaults(device, details.isOffline));
    json << ",\"notes_inserted\":";
    json.append(details.notesInserted);
    json << ",\"notes_rejected\":";
    json.append(details.notesRejected);
    json << ",\"notes_returned\":";
    json.append(details.notesReturned);
    json << ",\"registry\":";
    const QVariantMap registry = device.dispRegistry();
    json << (registry.isEmpty() ? QByteArrayLiteral("{}")
                                : JsonText::of(QJsonObject::fromVariantMap(registry)));
    json << '}';
}

const QByteArray& StateWriter::model(int number)
{
    if (m_models.size() > mostRemembered)
        m_models.clear();
    QByteArray& known = m_models[number];
    if (known.isNull()) {
        const QString model = modelName(number);
        const auto name = m_names.constFind(number);
        known = ",\"name\":" + JsonText(name == m_names.constEnd() ? deviceName(number) : *name)
            + ",\"model\":" + (model.isEmpty() ? JsonText::null() : JsonText(model))
            + ",\"kind\":" + JsonText(kindName(number));
    }
    return known;
}

const QByteArray& StateWriter::state(const QString& name)
{
    if (m_states.size() > mostRemembered)
        m_states.clear();
    QByteArray& known = m_states[name];
    if (known.isNull()) {
        known = ",\"state\":" + JsonText(name)
            + ",\"state_text\":" + JsonText(AcceptorState::stateDescr(name));
    }
    return known;
}
