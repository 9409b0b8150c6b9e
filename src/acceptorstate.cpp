// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorstate.h"

#include "devicestatesconst.h"
#include "dispenserregistrymodel.h"
#include "recordfields_p.h"
#include "statitem.h"

#include <QLocale>
#include <QObject>
#include <QStringList>

#include <algorithm>

const QString AcceptorState::ACCEPTOR_STATE_BUSY = QStringLiteral("busy");

namespace {

const QString deviceStatesKey = QStringLiteral("device_states");

bool isValidator(int deviceId)
{
    return deviceId >= 1 && deviceId <= 99;
}

bool isCoinDevice(int deviceId)
{
    return deviceId >= 100 && deviceId <= 199;
}

bool isCardTerminal(int deviceId)
{
    return deviceId == 200 || deviceId == 201;
}

bool takesNotes(const AcceptorStateItem& device)
{
    return device.enabled() && !device.errorCritical() && !device.halt()
        && device.state() == AcceptorState::ACCEPTOR_STATE_BUSY && device.stackerPresent()
        && !device.stackerFull();
}

using Row = DispenserRegistryItem;

// Files a registry row, without the keys of its owner and its channel, under its kind and channel.
void fileRow(QVariantMap& registry, const QVariantMap& row, const QVariant& channel)
{
    const QString key =
        QStringLiteral("%1_%2_%3_%4")
            .arg(Variants::toString(row.value(Row::BILL_TYPE)), Variants::toString(channel),
                 Variants::toString(row.value(Row::DENOMINATION)),
                 Variants::toString(row.value(Row::CURRENCY)));
    registry.insert(key, row);
}

QVariantMap registryByChannel(const QVariantList& rows)
{
    QVariantMap registry;
    for (const QVariant& element : rows) {
        QVariantMap row = Variants::toMap(element);
        if (row.isEmpty())
            continue;
        const QVariant channel = row.take(Row::CHANNEL);
        row.remove(Row::THREAD_ID);
        row.remove(Row::DEVICE_ID);
        fileRow(registry, row, channel);
    }
    return registry;
}

using Item = AcceptorStateItem;

template <typename Value, auto Setter>
void set(Item& item, const QVariant& value)
{
    (item.*Setter)(fromVariant<Value>(value));
}

// What an entry reads of a device's map.
const struct
{
    const QString& key;
    void (*set)(Item& item, const QVariant& value);
} deviceFields[] = {
    {deviceStateDescConst::DEVICE_ID, set<int, &Item::setDeviceId>},
    {deviceStateDescConst::ENABLED, set<bool, &Item::setEnabled>},
    {deviceStateDescConst::STACKER_PRESENT, set<bool, &Item::setStackerPresent>},
    {deviceStateDescConst::STACKER_FULL, set<bool, &Item::setStackerFull>},
    {deviceStateDescConst::ERROR_CRITICAL, set<bool, &Item::setErrorCritical>},
    {deviceStateDescConst::ERROR_TEXT, set<QString, &Item::setErrorText>},
    {deviceStateDescConst::STATE, set<QString, &Item::setState>},
    {deviceStateDescConst::STATE_TEXT, set<QString, &Item::setStateText>},
    {deviceStateDescConst::THREAD_ID, set<int, &Item::setThreadId>},
    {deviceStateDescConst::HALT, set<bool, &Item::setHalt>},
    {deviceStateDescConst::ID_STRING, set<QString, &Item::setIdString>},
    {StatItem::NOTES_INSERTED, set<int, &Item::setNotesInserted>},
    {StatItem::NOTES_REJECTED, set<int, &Item::setNotesRejected>},
    {StatItem::NOTES_RETURNED, set<int, &Item::setNotesReturned>},
    {DispenserRegistryModel::DISPENSER_REGISTRY,
     [](Item& item, const QVariant& value) {
         item.setDispRegistry(registryByChannel(Variants::toList(value)));
     }},
};

// The constant of a row's key, which costs no memory in each row; any other key itself.
QString sharedKey(const QString& key)
{
    for (const QString& known :
         {Row::BILL_TYPE, Row::COUNT, Row::CURRENCY, Row::DENOMINATION, Row::REJECTED}) {
        if (key == known)
            return known;
    }
    return key;
}

bool readRegistry(JsonReader& json, QVariantMap& registry)
{
    return json.readArray([&] {
        if (!json.isAtObject())
            return json.skipValue();
        QVariantMap row;
        QVariant channel;
        bool hasKeys = false;
        const bool complete = json.readObject([&](const QString& key) {
            hasKeys = true;
            if (key == Row::THREAD_ID || key == Row::DEVICE_ID)
                return json.skipValue();
            return json.readValue(key == Row::CHANNEL ? channel : row[sharedKey(key)]);
        });
        if (hasKeys)
            fileRow(registry, row, channel);
        return complete;
    });
}

bool readDevice(JsonReader& json, AcceptorStateItem& device)
{
    return json.readObject([&](const QString& key) {
        if (key == DispenserRegistryModel::DISPENSER_REGISTRY && json.isAtArray()) {
            QVariantMap registry;
            const bool complete = readRegistry(json, registry);
            device.setDispRegistry(registry);
            return complete;
        }
        for (const auto& field : deviceFields) {
            if (key != field.key)
                continue;
            QVariant value;
            const bool complete = json.readValue(value);
            field.set(device, value);
            return complete;
        }
        return json.skipValue();
    });
}

// The devices of a published state; none for a text that is not JSON.
QList<AcceptorStateItem> readDevices(const QString& text)
{
    const AcceptorStateItem withDefaults{QVariantMap()};
    QList<AcceptorStateItem> devices;
    JsonReader json(text);
    const auto readElement = [&] {
        AcceptorStateItem device = withDefaults;
        QVariant other;
        const bool complete = json.isAtObject() ? readDevice(json, device) : json.readValue(other);
        if (!other.isValid() || !Variants::isNull(other))
            devices.append(device);
        return complete;
    };
    const auto readMember = [&](const QString& key) {
        if (key != deviceStatesKey)
            return json.skipValue();
        devices.clear(); // of doubled keys the last one counts
        return json.isAtArray() ? json.readArray(readElement) : json.skipValue();
    };
    return json.readObject(readMember) && json.isAtEnd() ? devices : QList<AcceptorStateItem>();
}

QString statusPhrase(const QString& state)
{
    using namespace deviceStatesConst;
    // The misspelt texts are what translations are looked up by.
    const struct
    {
        const QString& state;
        const char* phrase;
    } phrases[] = {
        {DS_IDLING, QT_TRANSLATE_NOOP("QObject", "wait money")},
        {DS_JAMMED, QT_TRANSLATE_NOOP("QObject", "jamming")},
        {DS_ACCEPTED, QT_TRANSLATE_NOOP("QObject", "money accepted")},
        {DS_ACCEPTING, QT_TRANSLATE_NOOP("QObject", "money accepting")},
        {DS_STACKING, QT_TRANSLATE_NOOP("QObject", "accepting money in stacker")},
        {DS_STACKED, QT_TRANSLATE_NOOP("QObject", "money accepted in stacker")},
        {DS_RETURNING, QT_TRANSLATE_NOOP("QObject", "disabled money acceptinng or summ overflow")},
        {DS_RETURNED, QT_TRANSLATE_NOOP("QObject", "disabled money acceptinng or summ overflow")},
        {DS_REJECTED, QT_TRANSLATE_NOOP("QObject", "money reject")},
        {AcceptorState::ACCEPTOR_STATE_BUSY, QT_TRANSLATE_NOOP("QObject", "waiting")},
    };
    for (const auto& known : phrases) {
        if (state == known.state)
            return QObject::tr(known.phrase);
    }
    return QObject::tr("unknown state") + QLatin1String(":(") + state + QLatin1Char(')');
}

QStringList deviceReport(const AcceptorStateItem& device, const QString& name)
{
    QStringList lines{
        QObject::tr("DeviceId: %1,ThreadId: %2").arg(device.deviceId()).arg(device.threadId()),
        QObject::tr("Name: %1").arg(name),
        QObject::tr("Activity: %1")
            .arg(device.enabled() ? QObject::tr("enabled") : QObject::tr("disabled"))};
    if (device.errorCritical()) {
        const QString text = device.errorText();
        lines += QObject::tr("Critical error: ")
            + (text.isEmpty() ? QObject::tr("no description") : text);
    }
    if (!device.enabled())
        return lines;
    if (!device.stackerPresent())
        lines += QObject::tr("stacker not present");
    if (device.stackerFull())
        lines += QObject::tr("stacker is full");
    lines += QObject::tr("Status: ") + statusPhrase(device.state());
    if (!device.stateText().isEmpty())
        lines += QObject::tr("status description:") + device.stateText();
    return lines;
}

} // namespace

AcceptorStateItem::AcceptorStateItem(QVariantMap map)
    : m_deviceId(-1)
    , m_threadId(-1)
    , m_stackerPresent(true)
{
    for (const auto& field : deviceFields) {
        const auto entry = map.constFind(field.key);
        if (entry != map.constEnd())
            field.set(*this, *entry);
    }
}

int AcceptorStateItem::deviceId() const
{
    return m_deviceId;
}

void AcceptorStateItem::setDeviceId(int id)
{
    m_deviceId = id;
}

int AcceptorStateItem::threadId() const
{
    return m_threadId;
}

void AcceptorStateItem::setThreadId(int id)
{
    m_threadId = id;
}

bool AcceptorStateItem::enabled() const
{
    return m_enabled;
}

void AcceptorStateItem::setEnabled(bool enabled)
{
    m_enabled = enabled;
}

QString AcceptorStateItem::state() const
{
    return m_state;
}

void AcceptorStateItem::setState(const QString& state)
{
    m_state = state;
}

QString AcceptorStateItem::stateText() const
{
    return m_stateText;
}

void AcceptorStateItem::setStateText(const QString& text)
{
    m_stateText = text;
}

bool AcceptorStateItem::stackerPresent() const
{
    return m_stackerPresent;
}

void AcceptorStateItem::setStackerPresent(bool present)
{
    m_stackerPresent = present;
}

bool AcceptorStateItem::stackerFull() const
{
    return m_stackerFull;
}

void AcceptorStateItem::setStackerFull(bool full)
{
    m_stackerFull = full;
}

bool AcceptorStateItem::errorCritical() const
{
    return m_errorCritical;
}

void AcceptorStateItem::setErrorCritical(bool critical)
{
    m_errorCritical = critical;
}

QString AcceptorStateItem::errorText() const
{
    return m_errorText;
}

void AcceptorStateItem::setErrorText(const QString& text)
{
    m_errorText = text;
}

bool AcceptorStateItem::halt() const
{
    return m_halt;
}

void AcceptorStateItem::setHalt(bool halt)
{
    m_halt = halt;
}

QString AcceptorStateItem::idString() const
{
    return m_idString;
}

void AcceptorStateItem::setIdString(const QString& text)
{
    m_idString = text;
}

int AcceptorStateItem::notesInserted() const
{
    return m_notesInserted;
}

void AcceptorStateItem::setNotesInserted(const int& count)
{
    m_notesInserted = count;
}

int AcceptorStateItem::notesRejected() const
{
    return m_notesRejected;
}

void AcceptorStateItem::setNotesRejected(const int& count)
{
    m_notesRejected = count;
}

int AcceptorStateItem::notesReturned() const
{
    return m_notesReturned;
}

void AcceptorStateItem::setNotesReturned(const int& count)
{
    m_notesReturned = count;
}

QVariantMap AcceptorStateItem::dispRegistry() const
{
    return m_dispRegistry;
}

void AcceptorStateItem::setDispRegistry(const QVariantMap& registry)
{
    m_dispRegistry = registry;
}

QDateTime AcceptorState::dt() const
{
    return m_dt;
}

void AcceptorState::setDt(const QDateTime& dt)
{
    m_dt = dt;
}

QList<AcceptorStateItem> AcceptorState::deviceStates() const
{
    return m_deviceStates;
}

void AcceptorState::setDeviceStates(const QList<AcceptorStateItem>& states)
{
    m_deviceStates = states;
}

bool AcceptorState::allEnabled() const
{
    return !m_deviceStates.isEmpty() && disabledThreads().isEmpty();
}

bool AcceptorState::allDisabled() const
{
    return enabledDeviceIds().isEmpty();
}

bool AcceptorState::stackerUnpresent() const
{
    return std::any_of(m_deviceStates.begin(), m_deviceStates.end(),
                       [](const AcceptorStateItem& device) { return !device.stackerPresent(); });
}

QList<int> AcceptorState::disabledThreads() const
{
    QList<int> threads;
    for (const AcceptorStateItem& device : m_deviceStates) {
        if (!device.enabled())
            threads.append(device.threadId());
    }
    return threads;
}

QList<int> AcceptorState::enabledDeviceIds() const
{
    QList<int> ids;
    for (const AcceptorStateItem& device : m_deviceStates) {
        if (device.enabled())
            ids.append(device.deviceId());
    }
    return ids;
}

bool AcceptorState::isAcceptingAllowed() const
{
    if (allDisabled())
        return false;
    bool blocked = false;
    // Each validator overwrites the verdict of those before it: the last one decides.
    for (const AcceptorStateItem& device : m_deviceStates) {
        if (isValidator(device.deviceId()))
            blocked = !takesNotes(device);
    }
    return !blocked;
}

QString AcceptorState::paymentStatusDescr() const
{
    const QList<int> ids = enabledDeviceIds();
    if (ids.isEmpty())
        return QObject::tr("Money accepting is disabled");
    const bool money = std::any_of(ids.begin(), ids.end(), isValidator);
    const bool coins = std::any_of(ids.begin(), ids.end(), isCoinDevice);
    if (money && coins)
        return QObject::tr("Input money or coin");
    if (money)
        return QObject::tr("Input money");
    if (coins)
        return QObject::tr("Input coin");
    return QObject::tr("Error status unknown");
}

QString AcceptorState::paymentStateDescr() const
{
    const auto holdsCustomer = [](const AcceptorStateItem& device) {
        return device.enabled() && device.state() != deviceStatesConst::DS_IDLING
            && !isCardTerminal(device.deviceId());
    };
    if (m_deviceStates.isEmpty()
        || std::any_of(m_deviceStates.begin(), m_deviceStates.end(), holdsCustomer))
        return QObject::tr("Wait...");
    return paymentStatusDescr();
}

QString AcceptorState::systemStatusDescr(QMap<int, QString> names) const
{
    QStringList lines;
    if (m_deviceStates.isEmpty())
        lines += QObject::tr("Device state list is empty");
    for (const AcceptorStateItem& device : m_deviceStates) {
        lines += deviceReport(device, names.value(device.deviceId(), QObject::tr("Unknown")));
        // Joined with the line feeds around it, this leaves two empty lines.
        lines += QStringLiteral("\n");
    }
    if (m_dt.isValid())
        lines += QLocale::c().toString(m_dt, QStringLiteral("dd.MM.yyyy hh.mm.ss"));
    return lines.join(QLatin1Char('\n'));
}

void AcceptorState::loadFromStateMap(QVariantMap stateMap, AcceptorState& state)
{
    QList<AcceptorStateItem> devices;
    const QVariantList published = Variants::toList(stateMap.value(deviceStatesKey));
    for (const QVariant& device : published) {
        if (!Variants::isNull(device))
            devices.append(AcceptorStateItem(Variants::toMap(device)));
    }
    state.setDeviceStates(devices);
}

AcceptorState AcceptorState::loadFromClientState(quorbus::ClientState clientState,
                                                 AcceptorState& state)
{
    state.setDeviceStates(readDevices(clientState.state()));
    state.setDt(clientState.dt());
    return state;
}
