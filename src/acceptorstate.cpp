// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorstate.h"

#include "devicestatesconst.h"
#include "publisheddevices_p.h"

#include <QLocale>
#include <QObject>
#include <QStringList>

#include <algorithm>

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

template <typename Reader>
const auto& deviceTable()
{
    static const DeviceTable<Reader, AcceptorStateItem> table;
    return table;
}

// The devices of a published state; nothing for a text that breaks off.
template <typename Reader>
bool readDevices(Reader& reader, QList<AcceptorStateItem>& devices)
{
    return reader.readObject([&](QStringView key) {
        if (key != AcceptorState::DEVICE_STATES)
            return reader.skipValue();
        devices.clear(); // of doubled keys the last one counts
        return reader.isAtArray() ? deviceTable<Reader>().readList(reader, devices)
                                  : reader.skipValue();
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
    deviceTable<VariantReader>().read(reader, *this, *this);
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
