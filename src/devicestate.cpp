// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestate.h"

#include "devicestatefields_p.h"
#include "dispenserregistryjson_p.h"
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
static_assert(stateCount == STATE_EMPTIED + 1, "a state has no name");

// Every field, for comparing and copying.
template <typename Record>
auto fields(Record& record)
{
    return withDeviceStateFields(
        [&](auto... field) { return std::tie(record.*decltype(field)::member...); });
}

bool stateFromName(QStringView name, State& state)
{
    for (int value = 0; value < stateCount; ++value) {
        if (name == *stateNames[value]) {
            state = static_cast<State>(value);
            return true;
        }
    }
    return false;
}

template <auto Member, auto... Entry>
RecordField<DeviceState> tableRow(DeviceStateField<Member, Entry...> field)
{
    return recordField<DeviceState, Member>(*field.key);
}

template <auto... Entry>
RecordField<DeviceState> tableRow(DeviceStateField<&DeviceState::state, Entry...> field)
{
    return {field.key,
            [](const DeviceState& record) { return QVariant(record.stateAsString()); },
            [](DeviceState& record, const QVariant& value) {
                return DeviceState::stateFromString(Variants::toString(value), record.state);
            },
            [](JsonWriter& json, const DeviceState& record) { json.write(record.stateAsString()); },
            [](JsonReader& json, DeviceState& record, bool& isRead) {
                if (QStringView plain; json.readPlain(plain)) { // mostly, and without a copy
                    isRead = stateFromName(plain, record.state);
                    return true;
                }
                QString name;
                const bool isSound = readJson(json, name);
                isRead = stateFromName(name, record.state);
                return isSound;
            },
            [](DeviceState& record, DeviceState& from) { record.state = from.state; }};
}

// The rows travel outwards only, and only when there are any.
RecordField<DeviceState> tableRow(DeviceStateField<&DeviceState::dispenserRegistry> field)
{
    return {field.key,
            [](const DeviceState& record) {
                DispenserRegistryModel registry;
                registry.assign(record.dispenserRegistry);
                return registry.toMap().value(DispenserRegistryModel::DISPENSER_REGISTRY);
            },
            nullptr,
            [](JsonWriter& json, const DeviceState& record) {
                writeJson(json, record.dispenserRegistry);
            },
            [](JsonReader& json, DeviceState&, bool&) { return skipJsonRows(json); },
            nullptr,
            UnreadField,
            [](const DeviceState& record) { return !record.dispenserRegistry.isEmpty(); }};
}

const auto& table()
{
    static const RecordTable table = withDeviceStateFields(
        [](auto... field) { return RecordTable(std::array{tableRow(field)...}); });
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
    return stateFromName(name, state);
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
