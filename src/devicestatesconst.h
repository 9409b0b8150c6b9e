// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>

/// The names of the device states, as maps and texts carry them. They are compared with case.
namespace deviceStatesConst {

extern VELMOLIB_EXPORT const QString DS_IDLING; ///< "idling"
extern VELMOLIB_EXPORT const QString DS_ACCEPTING; ///< "accepting"
extern VELMOLIB_EXPORT const QString DS_ACCEPTED; ///< "accepted"
extern VELMOLIB_EXPORT const QString DS_REJECTED; ///< "rejected"
extern VELMOLIB_EXPORT const QString DS_STACKING; ///< "stacking"
extern VELMOLIB_EXPORT const QString DS_STACKED; ///< "stacked"
extern VELMOLIB_EXPORT const QString DS_RETURNING; ///< "returning"
extern VELMOLIB_EXPORT const QString DS_RETURNED; ///< "returned"
extern VELMOLIB_EXPORT const QString DS_JAMMED; ///< "jammed"
extern VELMOLIB_EXPORT const QString DS_BUSY; ///< "busy"
extern VELMOLIB_EXPORT const QString DS_ERROR; ///< "error"
extern VELMOLIB_EXPORT const QString DS_UPDATING; ///< "updating"
extern VELMOLIB_EXPORT const QString DS_DISPENSING; ///< "dispensing"
extern VELMOLIB_EXPORT const QString DS_DISPENSED; ///< "dispensed"
extern VELMOLIB_EXPORT const QString DS_FLOATING; ///< "floating"
extern VELMOLIB_EXPORT const QString DS_FLOATED; ///< "floated"
extern VELMOLIB_EXPORT const QString DS_EMPTYING; ///< "emptying"
extern VELMOLIB_EXPORT const QString DS_EMPTIED; ///< "emptied"

} // namespace deviceStatesConst

/// The keys of the device state map, in the order in which it is read. The registry rows have the
/// key DispenserRegistryModel::DISPENSER_REGISTRY.
namespace deviceStateDescConst {

extern VELMOLIB_EXPORT const QString ENABLED; ///< "enabled"
extern VELMOLIB_EXPORT const QString STATE; ///< "state"
extern VELMOLIB_EXPORT const QString STACKER_PRESENT; ///< "stacker_present"
extern VELMOLIB_EXPORT const QString STACKER_FULL; ///< "stacker_full"
extern VELMOLIB_EXPORT const QString CASH; ///< "cash"
extern VELMOLIB_EXPORT const QString ERROR_TEXT; ///< "error_text"
extern VELMOLIB_EXPORT const QString ERROR_CRITICAL; ///< "error_critical"
extern VELMOLIB_EXPORT const QString HALT; ///< "halt"
extern VELMOLIB_EXPORT const QString STATE_TEXT; ///< "state_text"
extern VELMOLIB_EXPORT const QString THREAD_ID; ///< "thread_id"
extern VELMOLIB_EXPORT const QString DEVICE_ID; ///< "device_id"
extern VELMOLIB_EXPORT const QString SESSION_SUM; ///< "session_sum"
extern VELMOLIB_EXPORT const QString CURRENT_NOTE; ///< "current_note"
extern VELMOLIB_EXPORT const QString CURRENT_CHANNEL; ///< "current_channel"
extern VELMOLIB_EXPORT const QString DISPENSED_SUM; ///< "dispensed_sum"
extern VELMOLIB_EXPORT const QString ID_STRING; ///< "id_string"
extern VELMOLIB_EXPORT const QString ONLINE; ///< "online"

} // namespace deviceStateDescConst
