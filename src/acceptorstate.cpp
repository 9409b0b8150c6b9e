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
#include <charconv>

const QString AcceptorState::ACCEPTOR_STATE_BUSY = QStringLiteral("busy");
const QString AcceptorState::DEVICE_STATES = QStringLiteral("device_states");

namespace {

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

// Walks a value as JsonReader walks a text.
class VariantReader
{
public:
    explicit VariantReader(const QVariant& value)
        : m_current(&value)
    {
    }

    bool isAtObject() const { return !Variants::toMap(*m_current).isEmpty(); }
    bool isAtArray() const { return !Variants::toList(*m_current).isEmpty(); }

    template <typename Read>
    bool readObject(Read readMember)
    {
        const QVariantMap map = Variants::toMap(*m_current);
        for (auto member = map.constBegin(); member != map.constEnd(); ++member) {
            m_current = &*member;
            readMember(member.key());
        }
        return true;
    }

    template <typename Keys, typename Read>
    bool readObject(const Keys& keys, Read readMember)
    {
        std::size_t likely = 0;
        return readObject([&](QStringView key) { readMember(keys.find(key, likely), key); });
    }

    template <typename Read>
    bool readArray(Read readElement)
    {
        const QVariantList list = Variants::toList(*m_current);
        for (const QVariant& element : list) {
            m_current = &element;
            readElement();
        }
        return true;
    }

    bool readValue(QVariant& value)
    {
        value = *m_current;
        return true;
    }

    static bool skipValue() { return true; }

    const QVariant& value() const { return *m_current; }

private:
    const QVariant* m_current;
};

template <typename T>
bool readJson(VariantReader& reader, T& value)
{
    value = fromVariant<T>(reader.value());
    return true;
}

// A registry row on its way from either reader into an entry's map.
class RegistryRow
{
public:
    // Where the value of a key belongs; null when it is not kept.
    QVariant* place(std::size_t i, QStringView key, const QVariant& likelyCurrency)
    {
        m_isEmpty = false;
        if (i == DeviceId || i == ThreadId)
            return nullptr;
        if (i == Channel)
            return &m_channel;
        // A constant and a text that is shared cost no memory in each row.
        const QString kept = i == keys.size() ? key.toString() : *keys[i];
        QVariant* const value =
            &*m_values.insert(m_values.cend(), kept, i == Currency ? likelyCurrency : QVariant());
        if (i < keys.size())
            m_places[i] = value;
        return value;
    }

    // Stores the row under its kind and channel.
    void file(QVariantMap& registry) const
    {
        if (m_isEmpty)
            return;
        QVarLengthArray<QChar, 64> key;
        append(key, at(BillType));
        key.append(u'_');
        append(key, m_channel);
        key.append(u'_');
        append(key, at(Denomination));
        key.append(u'_');
        append(key, currency());
        registry.insert(registry.cend(), QString(key.constData(), key.size()), m_values);
    }

    QVariant currency() const { return at(Currency); }

    static const auto& order()
    {
        static const KeyOrder order(keys);
        return order;
    }

private:
    using Row = DispenserRegistryItem;
    enum Key : std::size_t { BillType, Channel, Currency, Denomination, DeviceId, ThreadId };
    static constexpr std::array keys{&Row::BILL_TYPE,    &Row::CHANNEL,   &Row::CURRENCY,
                                     &Row::DENOMINATION, &Row::DEVICE_ID, &Row::THREAD_ID,
                                     &Row::COUNT,        &Row::REJECTED};

    QVariant at(Key key) const { return m_places[key] ? *m_places[key] : QVariant(); }

    static void append(QVarLengthArray<QChar, 64>& key, const QVariant& part)
    {
        if (part.userType() != QMetaType::LongLong) {
            const QString text = Variants::toString(part);
            key.append(text.constData(), text.size());
            return;
        }
        char digits[20];
        const char* const end = std::to_chars(digits, digits + 20, part.toLongLong()).ptr;
        for (const char* digit = digits; digit != end; ++digit)
            key.append(QLatin1Char(*digit));
    }

    QVariantMap m_values;
    std::array<const QVariant*, keys.size()> m_places{}; // of those that are kept
    QVariant m_channel;
    bool m_isEmpty = true;
};

template <typename Reader>
bool readRegistry(Reader& reader, AcceptorStateItem& device, const AcceptorStateItem& /*before*/)
{
    QVariantMap registry;
    QVariant currency; // mostly the same in every row
    const auto readRow = [&] {
        RegistryRow row;
        const auto readMember = [&](std::size_t i, QStringView key) {
            QVariant* const value = row.place(i, key, currency);
            return value ? reader.readValue(*value) : reader.skipValue();
        };
        const bool complete = reader.readObject(RegistryRow::order(), readMember);
        row.file(registry);
        currency = row.currency();
        return complete;
    };
    const auto readElement = [&] { return reader.isAtObject() ? readRow() : reader.skipValue(); };
    const bool complete = reader.isAtArray() ? reader.readArray(readElement) : reader.skipValue();
    device.setDispRegistry(registry);
    return complete;
}

// A field of a device's map.
template <typename Reader>
struct DeviceField
{
    const QString* key;
    // Null when it is not read.
    bool (*read)(Reader& reader, AcceptorStateItem& item, const AcceptorStateItem& before);
};

template <typename Reader, auto Getter, auto Setter>
DeviceField<Reader> deviceField(const QString& key)
{
    return {&key, [](Reader& reader, AcceptorStateItem& item, const AcceptorStateItem& before) {
                auto value = (before.*Getter)(); // a text that is the same is shared
                const bool complete = readJson(reader, value);
                (item.*Setter)(value);
                return complete;
            }};
}

// Those that are not read keep the others in step with a map that has them all.
template <typename Reader>
const auto& deviceFields()
{
    using namespace deviceStateDescConst;
    using Item = AcceptorStateItem;
    using DeviceField = DeviceField<Reader>;
    static const std::array fields{
        DeviceField{&CASH, nullptr},
        DeviceField{&CURRENT_CHANNEL, nullptr},
        DeviceField{&CURRENT_NOTE, nullptr},
        deviceField<Reader, &Item::deviceId, &Item::setDeviceId>(DEVICE_ID),
        DeviceField{&DISPENSED_SUM, nullptr},
        DeviceField{&DispenserRegistryModel::DISPENSER_REGISTRY, readRegistry<Reader>},
        deviceField<Reader, &Item::enabled, &Item::setEnabled>(ENABLED),
        deviceField<Reader, &Item::errorCritical, &Item::setErrorCritical>(ERROR_CRITICAL),
        deviceField<Reader, &Item::errorText, &Item::setErrorText>(ERROR_TEXT),
        deviceField<Reader, &Item::halt, &Item::setHalt>(HALT),
        deviceField<Reader, &Item::idString, &Item::setIdString>(ID_STRING),
        deviceField<Reader, &Item::notesInserted, &Item::setNotesInserted>(
            StatItem::NOTES_INSERTED),
        deviceField<Reader, &Item::notesRejected, &Item::setNotesRejected>(
            StatItem::NOTES_REJECTED),
        deviceField<Reader, &Item::notesReturned, &Item::setNotesReturned>(
            StatItem::NOTES_RETURNED),
        DeviceField{&ONLINE, nullptr},
        DeviceField{&SESSION_SUM, nullptr},
        deviceField<Reader, &Item::stackerFull, &Item::setStackerFull>(STACKER_FULL),
        deviceField<Reader, &Item::stackerPresent, &Item::setStackerPresent>(STACKER_PRESENT),
        deviceField<Reader, &Item::state, &Item::setState>(STATE),
        deviceField<Reader, &Item::stateText, &Item::setStateText>(STATE_TEXT),
        deviceField<Reader, &Item::threadId, &Item::setThreadId>(THREAD_ID),
    };
    return fields;
}

template <typename Reader>
bool readDevice(Reader& reader, AcceptorStateItem& device, const AcceptorStateItem& before)
{
    static const auto& fields = deviceFields<Reader>();
    static const KeyOrder order(keysOf(fields));
    return reader.readObject(order, [&](std::size_t i, QStringView) {
        return i < fields.size() && fields[i].read ? fields[i].read(reader, device, before)
                                                   : reader.skipValue();
    });
}

// The devices of a published state; nothing for a text that breaks off.
template <typename Reader>
bool readDevices(Reader& reader, QList<AcceptorStateItem>& devices)
{
    const AcceptorStateItem withDefaults{QVariantMap()};
    const auto readElement = [&] {
        if (reader.isAtObject()) {
            const AcceptorStateItem before = devices.isEmpty() ? withDefaults : devices.last();
            devices.append(withDefaults);
            return readDevice(reader, devices.last(), before);
        }
        QVariant other;
        const bool complete = reader.readValue(other);
        if (!Variants::isNull(other))
            devices.append(withDefaults);
        return complete;
    };
    return reader.readObject([&](QStringView key) {
        if (key != AcceptorState::DEVICE_STATES)
            return reader.skipValue();
        devices.clear(); // of doubled keys the last one counts
        return reader.isAtArray() ? reader.readArray(readElement) : reader.skipValue();
    });
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
    lines += QObject::tr("Status: ") + AcceptorState::stateDescr(device.state());
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
    const QVariant published(map);
    VariantReader reader(published);
    readDevice(reader, *this, *this);
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

QString AcceptorState::stateDescr(const QString& name)
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
        {ACCEPTOR_STATE_BUSY, QT_TRANSLATE_NOOP("QObject", "waiting")},
    };
    for (const auto& known : phrases) {
        if (name == known.state)
            return QObject::tr(known.phrase);
    }
    return QObject::tr("unknown state") + QLatin1String(":(") + name + QLatin1Char(')');
}

QVariantMap AcceptorState::stateMap(const QVariantList& devices)
{
    return {{DEVICE_STATES, devices}};
}

void AcceptorState::loadFromStateMap(QVariantMap stateMap, AcceptorState& state)
{
    const QVariant published(stateMap);
    VariantReader reader(published);
    QList<AcceptorStateItem> devices;
    readDevices(reader, devices);
    state.setDeviceStates(devices);
}

AcceptorState AcceptorState::loadFromClientState(quorbus::ClientState clientState,
                                                 AcceptorState& state)
{
    const QString text = clientState.state();
    JsonReader json(text);
    QList<AcceptorStateItem> devices;
    if (!readDevices(json, devices) || !json.isAtEnd())
        devices.clear();
    state.setDeviceStates(devices);
    state.setDt(clientState.dt());
    return state;
}
