// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestate.h"

#include "dispenserregistryjson_p.h"
#include "dispenserregistrymodel.h"
#include "recordfields_p.h"

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

RecordField<DeviceState> stateField()
{
    return {&deviceStateDescConst::STATE,
            [](const DeviceState& record) { return QVariant(record.stateAsString()); },
            [](DeviceState& record, const QVariant& value) {
                return DeviceState::stateFromString(Variants::toString(value), record.state);
            },
            [](JsonWriter& json, const DeviceState& record) { json.write(record.stateAsString()); },
            [](JsonReader& json, DeviceState& record, bool& isRead) {
                QString name = record.stateAsString(); // shared when it is the same
                const bool isSound = readJson(json, name);
                isRead = DeviceState::stateFromString(name, record.state);
                return isSound;
            },
            [](DeviceState& record, DeviceState& from) { record.state = from.state; }};
}

// The rows travel outwards only, and only when there are any.
RecordField<DeviceState> registryField()
{
    return {&DispenserRegistryModel::DISPENSER_REGISTRY,
            [](const DeviceState& record) {
                DispenserRegistryModel registry;
                registry.assign(record.dispenserRegistry);
                return registry.toMap().value(DispenserRegistryModel::DISPENSER_REGISTRY);
            },
            nullptr,
            [](JsonWriter& json, const DeviceState& record) {
                writeJson(json, record.dispenserRegistry);
            },
            nullptr,
            nullptr,
            UnreadField,
            [](const DeviceState& record) { return !record.dispenserRegistry.isEmpty(); }};
}

const auto& table()
{
    using namespace deviceStateDescConst;
    using D = DeviceState;
    static const RecordTable table(std::array{
        recordField<D, &D::enabled>(ENABLED),
        stateField(),
        recordField<D, &D::stackerPresent>(STACKER_PRESENT),
        recordField<D, &D::stackerFull>(STACKER_FULL),
        recordField<D, &D::cash>(CASH),
        recordField<D, &D::errorText>(ERROR_TEXT),
        recordField<D, &D::errCritical>(ERROR_CRITICAL),
        recordField<D, &D::halt>(HALT),
        recordField<D, &D::stateText>(STATE_TEXT),
        recordField<D, &D::threadId>(THREAD_ID),
        recordField<D, &D::deviceId>(DEVICE_ID),
        recordField<D, &D::sessionSum>(SESSION_SUM),
        recordField<D, &D::currentNote>(CURRENT_NOTE),
        recordField<D, &D::currentChannel>(CURRENT_CHANNEL),
        recordField<D, &D::dispensedSum>(DISPENSED_SUM),
        recordField<D, &D::idString>(ID_STRING),
        recordField<D, &D::online>(ONLINE),
        registryField(),
    });
    return table;
}

} // namespace

DeviceState& DeviceState::operator=(const DeviceState& other)
{
    // An equal state is left alone: references into its rows stay valid, null texts stay null.
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
    return table().toMap(*this);
}

bool DeviceState::fromMap(const QVariantMap& map)
{
    return table().fromMap(map, *this, nullptr);
}

QString DeviceState::serialize() const
{
    JsonWriter json;
    table().write(json, *this);
    return json.text();
}

bool DeviceState::parse(const QString& text)
{
    return table().parse(text, *this);
}

void DeviceState::setDispenserRegistry(const QList<DispenserRegistryItem>& rows)
{
    dispenserRegistry = rows;
}

bool DeviceState::operator==(const DeviceState& other) const
{
    return fields(*this) == fields(other);
}
