#include "devicestate.h"

#include "dispenserregistrymodel.h"
#include "maprecord_p.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <iterator>
#include <tuple>

using namespace deviceStatesConst;

namespace {

[[maybe_unused]] const int deviceStateTypeId = qRegisterMetaType<DeviceState>("DeviceState");

// Indexed by State.
const QString* const stateNames[] = {
    &DS_IDLING,     &DS_ACCEPTING, &DS_ACCEPTED, &DS_REJECTED, &DS_STACKING, &DS_STACKED,
    &DS_RETURNING,  &DS_RETURNED,  &DS_JAMMED,   &DS_BUSY,     &DS_ERROR,    &DS_UPDATING,
    &DS_DISPENSING, &DS_DISPENSED, &DS_FLOATING, &DS_FLOATED,  &DS_EMPTYING, &DS_EMPTIED,
};
constexpr int stateCount = static_cast<int>(std::size(stateNames));

// Every field in declared order, for comparing and copying.
template <typename Record>
auto fields(Record& r)
{
    return std::tie(r.enabled, r.state, r.stackerPresent, r.stackerFull, r.cash, r.errCritical,
                    r.halt, r.errorText, r.stateText, r.threadId, r.deviceId, r.sessionSum,
                    r.currentNote, r.currentChannel, r.dispensedSum, r.idString, r.online,
                    r.dispenserRegistry);
}

} // namespace

DeviceState& DeviceState::operator=(const DeviceState& other)
{
    if (*this != other)
        fields(*this) = fields(other);
    return *this;
}

void DeviceState::reset()
{
    cash = 0;
    sessionSum = 0;
    idString.clear();
    online = false;
    resetOper();
}

void DeviceState::resetOper()
{
    enabled = false;
    state = STATE_BUSY;
    stackerPresent = true;
    stackerFull = false;
    errorText.clear();
    stateText.clear();
    errCritical = false;
    halt = false;
    currentNote = 0;
    currentChannel = 0;
    dispensedSum = 0;
}

QString DeviceState::stateAsString() const
{
    return state >= 0 && state < stateCount ? *stateNames[state] : QString();
}

bool DeviceState::stateFromString(const QString& name, State& state)
{
    for (int value = 0; value < stateCount; ++value) {
        if (name == *stateNames[value]) {
            state = static_cast<State>(value);
            return true;
        }
    }
    return false;
}

QVariantMap DeviceState::toMap() const
{
    using namespace deviceStateDescConst;
    QVariantMap map{
        {ENABLED, enabled},
        {STATE, stateAsString()},
        {STACKER_PRESENT, stackerPresent},
        {STACKER_FULL, stackerFull},
        {CASH, cash},
        {ERROR_TEXT, errorText},
        {ERROR_CRITICAL, errCritical},
        {HALT, halt},
        {STATE_TEXT, stateText},
        {THREAD_ID, threadId},
        {DEVICE_ID, deviceId},
        {SESSION_SUM, sessionSum},
        {CURRENT_NOTE, currentNote},
        {CURRENT_CHANNEL, int(currentChannel)},
        {DISPENSED_SUM, dispensedSum},
        {ID_STRING, idString},
        {ONLINE, online},
    };
    if (!dispenserRegistry.isEmpty()) {
        DispenserRegistryModel registry;
        registry.assign(dispenserRegistry);
        map.insert(registry.toMap());
    }
    return map;
}

bool DeviceState::fromMap(const QVariantMap& map)
{
    using namespace deviceStateDescConst;
    return RecordReader(map, nullptr)
        .read(ENABLED, enabled)
        .read(STATE, state, stateFromString)
        .read(STACKER_PRESENT, stackerPresent)
        .read(STACKER_FULL, stackerFull)
        .read(CASH, cash)
        .read(ERROR_TEXT, errorText)
        .read(ERROR_CRITICAL, errCritical)
        .read(HALT, halt)
        .read(STATE_TEXT, stateText)
        .read(THREAD_ID, threadId)
        .read(DEVICE_ID, deviceId)
        .read(SESSION_SUM, sessionSum)
        .read(CURRENT_NOTE, currentNote)
        .read(CURRENT_CHANNEL, currentChannel)
        .read(DISPENSED_SUM, dispensedSum)
        .read(ID_STRING, idString)
        .read(ONLINE, online)
        .complete();
}

QString DeviceState::serialize() const
{
    const QJsonDocument document(QJsonObject::fromVariantMap(toMap()));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

bool DeviceState::parse(const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    return error.error == QJsonParseError::NoError && fromMap(document.toVariant().toMap());
}

void DeviceState::setDispenserRegistry(const QList<DispenserRegistryItem>& rows)
{
    dispenserRegistry = rows;
}

bool DeviceState::operator==(const DeviceState& other) const
{
    return fields(*this) == fields(other);
}
