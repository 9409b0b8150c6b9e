// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "devicestate.h"
#include "dispenserregistrymodel.h"

/// A field of a device's state: its key in the map and, as part of the type, the data member and
/// the getter and setter of the published entry, when that keeps it as it is.
template <auto DataMember, auto... Entry>
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
    using E = AcceptorStateItem;
    return use(
        DeviceStateField<&D::enabled, &E::enabled, &E::setEnabled>{&ENABLED},
        DeviceStateField<&D::state, &E::state, &E::setState>{&STATE},
        DeviceStateField<&D::stackerPresent, &E::stackerPresent, &E::setStackerPresent>{
            &STACKER_PRESENT},
        DeviceStateField<&D::stackerFull, &E::stackerFull, &E::setStackerFull>{&STACKER_FULL},
        DeviceStateField<&D::cash>{&CASH},
        DeviceStateField<&D::errorText, &E::errorText, &E::setErrorText>{&ERROR_TEXT},
        DeviceStateField<&D::errCritical, &E::errorCritical, &E::setErrorCritical>{&ERROR_CRITICAL},
        DeviceStateField<&D::halt, &E::halt, &E::setHalt>{&HALT},
        DeviceStateField<&D::stateText, &E::stateText, &E::setStateText>{&STATE_TEXT},
        DeviceStateField<&D::threadId, &E::threadId, &E::setThreadId>{&THREAD_ID},
        DeviceStateField<&D::deviceId, &E::deviceId, &E::setDeviceId>{&DEVICE_ID},
        DeviceStateField<&D::sessionSum>{&SESSION_SUM},
        DeviceStateField<&D::currentNote>{&CURRENT_NOTE},
        DeviceStateField<&D::currentChannel>{&CURRENT_CHANNEL},
        DeviceStateField<&D::dispensedSum>{&DISPENSED_SUM},
        DeviceStateField<&D::idString, &E::idString, &E::setIdString>{&ID_STRING},
        DeviceStateField<&D::online>{&ONLINE},
        DeviceStateField<&D::dispenserRegistry>{&DispenserRegistryModel::DISPENSER_REGISTRY});
}
