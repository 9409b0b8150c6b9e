// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "dispenserregistrymodel.h"

/// A field of a device's state: its key in the map and, as part of the type, the data member.
template <auto DataMember>
struct DeviceStateField
{
    static constexpr auto member = DataMember;
    const QString* key;
};

/// Calls @p use with every field of a device's state, in reading order: what it makes of them is a
/// table that no field is missing from.
template <typename Use>
auto withDeviceStateFields(Use use)
{
    using namespace deviceStateDescConst;
    using D = DeviceState;
    return use(
        DeviceStateField<&D::enabled>{&ENABLED}, DeviceStateField<&D::state>{&STATE},
        DeviceStateField<&D::stackerPresent>{&STACKER_PRESENT},
        DeviceStateField<&D::stackerFull>{&STACKER_FULL}, DeviceStateField<&D::cash>{&CASH},
        DeviceStateField<&D::errorText>{&ERROR_TEXT},
        DeviceStateField<&D::errCritical>{&ERROR_CRITICAL}, DeviceStateField<&D::halt>{&HALT},
        DeviceStateField<&D::stateText>{&STATE_TEXT}, DeviceStateField<&D::threadId>{&THREAD_ID},
        DeviceStateField<&D::deviceId>{&DEVICE_ID}, DeviceStateField<&D::sessionSum>{&SESSION_SUM},
        DeviceStateField<&D::currentNote>{&CURRENT_NOTE},
        DeviceStateField<&D::currentChannel>{&CURRENT_CHANNEL},
        DeviceStateField<&D::dispensedSum>{&DISPENSED_SUM},
        DeviceStateField<&D::idString>{&ID_STRING}, DeviceStateField<&D::online>{&ONLINE},
        DeviceStateField<&D::dispenserRegistry>{&DispenserRegistryModel::DISPENSER_REGISTRY});
}
